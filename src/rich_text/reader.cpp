#include "rich_text/reader.h"

#include "rich_text/interpreter.h"

#include <fstream>
#include <string>

namespace selvane::rich_text {

namespace {

// The document from its first brace on; empty if the bytes are none.
std::string_view DocumentIn(std::string_view bytes)
{
    if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
    const std::size_t start = bytes.find_first_not_of(std::string_view(" \t\r\n\f\v\0", 7));
    if (start == std::string_view::npos) return {};
    const std::string_view document = bytes.substr(start);
    return document.starts_with("{\\rtf") ? document : std::string_view();
}

RichTextResult ReadFile(const std::filesystem::path& path)
{
    std::error_code error;
    const auto status = std::filesystem::status(path, error); // opening a pipe would wait
    if (std::filesystem::is_directory(status)) return RichTextError::Folder;
    if (!std::filesystem::is_regular_file(status)) return RichTextError::CannotOpen;
    const auto size = std::filesystem::file_size(path, error);
    if (error) return RichTextError::CannotOpen;
    if (size > kMaxRichTextBytes) return RichTextError::TooBig;

    std::ifstream file(path, std::ios::binary);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    if (!file) return RichTextError::CannotOpen;
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (file.bad()) return RichTextError::CannotOpen;
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return ReadRichText(bytes);
}

} // namespace

RichTextResult ReadRichText(std::string_view bytes) noexcept
{
    if (bytes.size() > kMaxRichTextBytes) return RichTextError::TooBig;
    const std::string_view document = DocumentIn(bytes);
    if (document.empty()) return RichTextError::NotRichText;
    try {
        return RichTextInterpreter(document).Read();
    } catch (...) { // memory is all that can run out
        return RichTextError::TooBig;
    }
}

RichTextResult ReadRichTextFile(const std::filesystem::path& path) noexcept
{
    try {
        return ReadFile(path);
    } catch (...) {
        return RichTextError::TooBig;
    }
}

} // namespace selvane::rich_text
