#include "rich_text/layout.h"

#include <algorithm>
#include <cmath>

namespace selvane::rich_text {

namespace {

constexpr std::int32_t kListStep = 360; // twips, of a list whose items give no indents

} // namespace

Indents IndentsOf(const Paragraph& paragraph)
{
    Indents indents{std::max(paragraph.format.leftIndent, 0), paragraph.format.firstLineIndent};
    const bool labelled = paragraph.item && !paragraph.item->label.empty();
    if (paragraph.item && indents.left == 0 && indents.firstLine == 0)
        indents = {kListStep * (paragraph.item->level + 1), labelled ? -kListStep : 0};
    indents.firstLine = std::max(indents.firstLine, -indents.left);
    return indents;
}

std::vector<TabStop> TabStopsOf(const Paragraph& paragraph)
{
    const Indents indents = IndentsOf(paragraph);
    const std::int32_t begin = indents.left + std::min(indents.firstLine, 0);
    std::vector<TabStop> stops;
    if (indents.firstLine < 0) stops.push_back({-indents.firstLine, TabKind::Left});
    for (const TabStop& stop : paragraph.format.tabStops)
        if (stop.position > begin) stops.push_back({stop.position - begin, stop.kind});
    std::ranges::sort(stops, {}, &TabStop::position);
    return stops;
}

int FontPixels(std::int32_t size, double zoom)
{
    return std::max(static_cast<int>(std::lround(size * zoom * 2 / 3)), 1);
}

PixelSize ShownSize(const Picture& picture)
{
    if (picture.widthTwips > 0 && picture.heightTwips > 0)
        return {picture.widthTwips / double{kTwipsPerPixel},
                picture.heightTwips / double{kTwipsPerPixel}};
    if (picture.widthPixels > 0 && picture.heightPixels > 0)
        return {double(picture.widthPixels), double(picture.heightPixels)};
    return {32, 32};
}

CharacterFormat FirstFormat(const Paragraph& paragraph)
{
    return paragraph.runs.empty() ? CharacterFormat{} : paragraph.runs.front().format;
}

CharacterFormat LabelFormat(const Paragraph& paragraph)
{
    CharacterFormat format = FirstFormat(paragraph);
    format.bold = format.italic = format.underline = format.strike = false;
    return format;
}

} // namespace selvane::rich_text
