// Reads rich text (RTF 1.9 and what its many writers make of it) into plain values.
#pragma once

#include "rich_text/document.h"

#include <string_view>
#include <variant>

namespace selvane::rich_text {

enum class ReadError {
    TooBig,          // over kMaxBytes
    NotRichText,     // does not begin with {\rtf
    NothingReadable, // cut off before any text
};

using ReadResult = std::variant<Document, ReadError>;

inline constexpr std::size_t kMaxBytes = std::size_t{32} << 20;

// Damaged rich text gives what could be read of it. Time grows linearly with the size.
ReadResult Read(std::string_view bytes);

} // namespace selvane::rich_text
