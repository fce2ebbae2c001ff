// libFuzzer target: any bytes give the reader's document or error, and nothing worse.
#include "require.h"
#include "rich_text/reader.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

using namespace selvane;
using namespace selvane::rich_text;

bool IsUtf8Boundary(std::string_view text, std::size_t at)
{
    return at >= text.size() || (static_cast<unsigned char>(text[at]) & 0xC0) != 0x80;
}

// What a shell relies on: indices within their tables, whole characters in each run.
void CheckParagraph(const Document& document, const Paragraph& paragraph)
{
    for (const Run& run : paragraph.runs) {
        Require(run.link < static_cast<std::int32_t>(document.links.size()));
        Require(run.picture < static_cast<std::int32_t>(document.pictures.size()));
        Require(run.text.empty() == (run.picture >= 0));
        Require(IsUtf8Boundary(run.text, 0));
        Require(run.format.size >= 2 && run.format.size <= 3276);
    }
    Require(paragraph.format.headingLevel >= 0 && paragraph.format.headingLevel <= 6);
    Require(!paragraph.item || (paragraph.item->level >= 0 && paragraph.item->level <= 8));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const ReadResult result = Read(bytes);
    if (const auto* document = std::get_if<Document>(&result))
        for (const Paragraph* paragraph : Paragraphs(document->blocks))
            CheckParagraph(*document, *paragraph);
    return 0;
}
