// Reads rich text (RTF 1.9 and what its many writers make of it) into plain values.
#pragma once

#include "rich_text/rich_text.h"

#include <filesystem>
#include <string_view>
#include <variant>

namespace selvane::rich_text {

enum class RichTextError {
    CannotOpen, // missing, unreadable, or no plain file (a pipe, a device)
    Folder,
    TooBig,          // over kMaxRichTextBytes, or more than memory holds
    NotRichText,     // does not begin with {\rtf
    NothingReadable, // cut off before any text
};

using RichTextResult = std::variant<RichText, RichTextError>;

inline constexpr std::size_t kMaxRichTextBytes = std::size_t{32} << 20;

// Damaged rich text gives what could be read of it. Time grows linearly with the size.
RichTextResult ReadRichText(std::string_view bytes) noexcept;
RichTextResult ReadRichTextFile(const std::filesystem::path& path) noexcept;

} // namespace selvane::rich_text
