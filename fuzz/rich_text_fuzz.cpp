// libFuzzer target: any bytes give the reader's document or error, and nothing worse; the
// document's HTML has its text and no markup but what the writer makes.
#include "markup.h"
#include "require.h"
#include "rich_text/html.h"
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

// Links of all kinds, and addresses that no program would give.
HtmlLink AnyLink(std::string_view link)
{
    return {static_cast<HtmlLink::Kind>(link.size() % 3), std::string(link)};
}

void CheckDocument(const Document& document)
{
    bool hasTables = false;
    for (const Block& block : document.blocks)
        hasTables = hasTables || std::holds_alternative<Table>(block.content);
    std::string text;
    for (const Paragraph* paragraph : Paragraphs(document.blocks)) {
        CheckParagraph(document, *paragraph);
        if (paragraph->item) text += paragraph->item->label;
        text += PlainText(*paragraph);
    }
    const Markup markup = ReadMarkup(ToHtml(document, AnyLink));
    Require(markup.fault.empty(), markup.fault);
    Require(hasTables || Visible(markup.text) == Visible(text), "text of the page is another");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const ReadResult result = Read(bytes);
    if (const auto* document = std::get_if<Document>(&result)) CheckDocument(*document);
    return 0;
}
