#include "rich_text/document.h"

namespace selvane::rich_text {

namespace {

// Tables nest at most eight deep, so walking down them by calls is safe.
void Collect(const std::vector<Block>& blocks, std::vector<const Paragraph*>& found)
{
    for (const Block& block : blocks) {
        if (const auto* paragraph = std::get_if<Paragraph>(&block.content)) {
            found.push_back(paragraph);
        } else {
            for (const Row& row : std::get<Table>(block.content).rows)
                for (const Cell& cell : row.cells) Collect(cell.blocks, found);
        }
    }
}

} // namespace

std::string PlainText(const Paragraph& paragraph)
{
    std::string text;
    for (const Run& run : paragraph.runs) text += run.text;
    return text;
}

std::vector<const Paragraph*> Paragraphs(const std::vector<Block>& blocks)
{
    std::vector<const Paragraph*> found;
    Collect(blocks, found);
    return found;
}

std::string PlainText(const std::vector<Block>& blocks)
{
    std::string text;
    for (const Paragraph* paragraph : Paragraphs(blocks)) text += PlainText(*paragraph) + '\n';
    return text;
}

} // namespace selvane::rich_text
