// How the paragraphs and pictures of a document stand in a pane: what every shell shows alike.
#pragma once

#include "rich_text/document.h"

#include <vector>

namespace selvane::rich_text {

inline constexpr int kWholeLine = 240; // line spacing of one line, where it is a multiple

struct Indents
{
    std::int32_t left = 0;      // twips, from 0
    std::int32_t firstLine = 0; // twips, from -left
};

// An item of a list whose paragraph gives no indents hangs its label out, deeper by level.
Indents IndentsOf(const Paragraph& paragraph);

// Tab stops in growing order, twips from where the lines begin (left, or left + firstLine where
// that hangs out). A hanging first line has one at the left indent whatever the document gives.
std::vector<TabStop> TabStopsOf(const Paragraph& paragraph);

// A size in half-points as whole pixels at this zoom, at least 1.
int FontPixels(std::int32_t size, double zoom);

struct PixelSize
{
    double width = 0, height = 0;
};

// The size to show a picture in at zoom 1; 32 x 32 where nothing is known of it.
PixelSize ShownSize(const Picture& picture);

// What the label of a list's item, or an empty paragraph, looks like.
CharacterFormat LabelFormat(const Paragraph& paragraph);
CharacterFormat FirstFormat(const Paragraph& paragraph);

} // namespace selvane::rich_text
