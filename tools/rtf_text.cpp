// Prints what the rich-text reader makes of a document, for developers.
//   rtf_text FILE           the text of its body, one paragraph a line
//   rtf_text --marks FILE   its formatting, one line a mark: kind, a tab, the marked text
// Exits with 1 if the reader refuses the file, with 2 on wrong usage.
#include "rich_text/reader.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>

namespace {

using namespace selvane::rich_text;

// A mark's line holds all of its text, so a line break inside is written as U+2028.
void PrintMark(const std::string& kind, const std::string& text)
{
    std::string line;
    for (const char c : text) line += c == '\n' ? std::string("\u2028") : std::string(1, c);
    std::cout << kind << '\t' << line << '\n';
}

// The kind of mark a run has, or nothing.
using MarkOf = std::function<std::string(const Run&)>;

// One line for each longest stretch of runs with the same mark.
void PrintRunMarks(const Paragraph& paragraph, const MarkOf& markOf)
{
    std::string kind;
    std::string text;
    const auto flush = [&] {
        if (!kind.empty() && !text.empty()) PrintMark(kind, text);
        text.clear();
    };
    for (const Run& run : paragraph.runs) {
        const std::string next = markOf(run);
        if (next != kind) flush();
        kind = next;
        text += run.text;
    }
    flush();
}

MarkOf Switch(bool CharacterFormat::*member, const char* name)
{
    return [=](const Run& run) { return std::string(run.format.*member ? name : ""); };
}

std::string VerticalMark(const Run& run)
{
    const CharacterFormat& format = run.format;
    if (format.position == VerticalPosition::Superscript || format.raise > 0) return "super";
    if (format.position == VerticalPosition::Subscript || format.raise < 0) return "sub";
    return {};
}

std::string ColourMark(const Run& run)
{
    if (!run.format.colour) return {};
    char text[16];
    const Colour colour = *run.format.colour;
    std::snprintf(text, sizeof text, "colour:#%02x%02x%02x", colour.red, colour.green, colour.blue);
    return text;
}

std::string SizeMark(const Run& run)
{
    return "size:" + std::to_string(run.format.size / 2) + (run.format.size % 2 != 0 ? ".5" : "");
}

void PrintParagraph(const Document& document, const Paragraph& paragraph)
{
    const auto linkMark = [&](const Run& run) {
        return run.link < 0 ? std::string()
                            : "link:" + document.links[static_cast<std::size_t>(run.link)];
    };
    const MarkOf marks[] = {
        Switch(&CharacterFormat::bold, "bold"),
        Switch(&CharacterFormat::italic, "italic"),
        Switch(&CharacterFormat::underline, "underline"),
        Switch(&CharacterFormat::strike, "strike"),
        VerticalMark,
        ColourMark,
        SizeMark,
        linkMark,
    };
    for (const MarkOf& mark : marks) PrintRunMarks(paragraph, mark);

    const std::string text = PlainText(paragraph);
    switch (paragraph.format.alignment) {
    case ParagraphAlignment::Left:
        break;
    case ParagraphAlignment::Centre:
        PrintMark("align:center", text);
        break;
    case ParagraphAlignment::Right:
        PrintMark("align:right", text);
        break;
    case ParagraphAlignment::Justified:
        PrintMark("align:justify", text);
        break;
    }
    if (paragraph.item) PrintMark("item:" + std::to_string(paragraph.item->level), text);
}

std::string BySize(std::size_t first, std::size_t second)
{
    return std::to_string(first) + 'x' + std::to_string(second);
}

void PrintPictures(const Document& document, const Paragraph& paragraph)
{
    for (const Run& run : paragraph.runs) {
        if (run.picture < 0) continue;
        const Picture& picture = document.pictures[static_cast<std::size_t>(run.picture)];
        const bool isKnown = picture.widthPixels > 0;
        const auto width = isKnown ? picture.widthPixels : picture.widthTwips / kTwipsPerPixel;
        const auto height = isKnown ? picture.heightPixels : picture.heightTwips / kTwipsPerPixel;
        PrintMark("picture",
                  BySize(static_cast<std::size_t>(width), static_cast<std::size_t>(height)));
    }
}

// Tables nest at most eight deep.
void PrintMarks(const Document& document, const std::vector<Block>& blocks)
{
    for (const Block& block : blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block.content)) {
            PrintParagraph(document, *paragraph);
            PrintPictures(document, *paragraph);
            continue;
        }
        const Table& table = std::get<Table>(block.content);
        std::size_t columns = 0;
        for (const Row& row : table.rows) columns = std::max(columns, row.cells.size());
        PrintMark("table", BySize(table.rows.size(), columns));
        for (const Row& row : table.rows)
            for (const Cell& cell : row.cells) PrintMarks(document, cell.blocks);
    }
}

// The bytes of a plain file, at most one more than the reader takes. Opening a pipe would wait.
std::optional<std::string> BytesOf(const char* path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
    const auto size = std::filesystem::file_size(path, error);
    if (error) return std::nullopt;
    std::string bytes(std::min<std::uintmax_t>(size, kMaxBytes + 1), '\0');
    std::ifstream file(path, std::ios::binary);
    if (!file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) return std::nullopt;
    return bytes;
}

const char* Explanation(ReadError error)
{
    switch (error) {
    case ReadError::TooBig:
        return "is too big";
    case ReadError::NotRichText:
        return "is no rich text";
    case ReadError::NothingReadable:
        return "has nothing readable in it";
    }
    return "";
}

} // namespace

int main(int argc, char** argv)
{
    const bool marks = argc == 3 && std::string_view(argv[1]) == "--marks";
    if (argc != 2 && !marks) {
        std::cerr << "usage: rtf_text [--marks] FILE\n";
        return 2;
    }
    const char* path = argv[argc - 1];
    const std::optional<std::string> bytes = BytesOf(path);
    if (!bytes) {
        std::cerr << path << " cannot be opened or is no plain file\n";
        return 1;
    }
    const ReadResult result = Read(*bytes);
    if (const auto* error = std::get_if<ReadError>(&result)) {
        std::cerr << path << ' ' << Explanation(*error) << '\n';
        return 1;
    }
    const Document& document = std::get<Document>(result);
    if (marks)
        PrintMarks(document, document.blocks);
    else
        std::cout << PlainText(document.blocks);
    return 0;
}
