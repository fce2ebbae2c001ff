#include "rich_text/html.h"

#include "rich_text/ascii.h"
#include "rich_text/layout.h"
#include "rich_text/table_grid.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace selvane::rich_text {

namespace {

constexpr std::size_t kMostBytes = std::size_t{16} << 20;
constexpr double kLinePerFont = 1.4414; // height of a line by its font size, as the window has it
constexpr std::string_view kHexDigits = "0123456789abcdef";

// "12.5", at most two decimals.
std::string Decimal(double number)
{
    const long hundredths = std::lround(number * 100);
    const long rest = std::labs(hundredths % 100);
    std::string text = hundredths < 0 ? "-" : "";
    text += std::to_string(std::labs(hundredths / 100));
    if (rest != 0) text += (rest < 10 ? ".0" : ".") + std::to_string(rest);
    return text;
}

std::string Pixels(double pixels)
{
    return Decimal(pixels) + "px";
}

std::string TwipsInPixels(std::int32_t twips)
{
    return Pixels(twips / double{kTwipsPerPixel});
}

std::string Colours(Colour colour)
{
    std::string text = "#";
    for (const std::uint8_t channel : {colour.red, colour.green, colour.blue}) {
        text += kHexDigits[channel / 16];
        text += kHexDigits[channel % 16];
    }
    return text;
}

// Safe in text and between double quotes.
std::string Escaped(std::string_view text)
{
    static constexpr std::pair<char, std::string_view> kEntities[] = {
        {'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&#39;"}};
    std::string escaped;
    for (const char c : text) {
        const auto* entity =
            std::ranges::find(kEntities, c, &std::pair<char, std::string_view>::first);
        if (entity != std::end(kEntities))
            escaped += entity->second;
        else if (static_cast<unsigned char>(c) >= 0x20 && c != 0x7F)
            escaped += c;
    }
    return escaped;
}

std::string Base64(std::string_view bytes)
{
    static constexpr std::string_view kDigits =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        std::uint32_t three = 0;
        for (std::size_t i = at; i < at + 3; ++i)
            three = three * 256 + (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0);
        for (const int shift : {18, 12, 6, 0}) text += kDigits[three >> shift & 63];
    }
    for (std::size_t i = bytes.size() % 3; i > 0 && i < 3; ++i) text[text.size() - 3 + i] = '=';
    return text;
}

bool IsWebAddress(std::string_view address)
{
    for (const std::string_view scheme : {"HTTP://", "HTTPS://", "MAILTO:"})
        if (address.size() > scheme.size() && Capitals(address.substr(0, scheme.size())) == scheme)
            return true;
    return false;
}

// The declarations of a style attribute.
class Style
{
public:
    void Add(std::string_view property, std::string_view value)
    {
        text_.append(property).append(":").append(value).append(";");
    }
    std::string Attribute() const { return " style=\"" + text_ + '"'; }

private:
    std::string text_;
};

Style StyleOf(const CharacterFormat& format, bool isLink)
{
    Style style;
    const bool isRaised = format.position != VerticalPosition::Baseline;
    const int size = FontPixels(format.size, isRaised ? 2.0 / 3 : 1);
    style.Add("font-size", Pixels(size));
    if (format.bold) style.Add("font-weight", "bold");
    if (format.italic) style.Add("font-style", "italic");
    if (format.underline || format.strike || isLink)
        style.Add("text-decoration", !format.strike               ? "underline"
                                     : format.underline || isLink ? "underline line-through"
                                                                  : "line-through");
    if (format.allCapitals) style.Add("text-transform", "uppercase");
    if (format.smallCapitals) style.Add("font-variant-caps", "small-caps");
    if (isRaised) {
        style.Add("vertical-align",
                  format.position == VerticalPosition::Superscript ? "super" : "sub");
        style.Add("line-height", "0");
    }
    if (format.raise != 0) {
        const int most = format.size;
        style.Add("position", "relative");
        style.Add("top", Pixels(std::clamp<int>(-format.raise, -most, most) * 2 / 3.0));
    }
    if (format.colour && !isLink) style.Add("color", Colours(*format.colour));
    if (format.background) style.Add("background-color", Colours(*format.background));
    return style;
}

std::string LineHeight(const Paragraph& paragraph)
{
    const std::int32_t spacing = paragraph.format.lineSpacing;
    if (spacing < 0) return TwipsInPixels(-spacing);
    int largest = FontPixels(FirstFormat(paragraph).size, 1);
    for (const Run& run : paragraph.runs)
        largest = std::max(largest, FontPixels(run.format.size, 1));
    const double line = std::round(largest * kLinePerFont);
    if (paragraph.format.lineSpacingIsMultiple && spacing > 0)
        return Pixels(line * std::clamp(static_cast<double>(spacing) / kWholeLine, 0.5, 5.0));
    return Pixels(std::max(spacing / double{kTwipsPerPixel}, line));
}

Style StyleOf(const Paragraph& paragraph)
{
    const ParagraphFormat& format = paragraph.format;
    const Indents indents = IndentsOf(paragraph);
    Style style;
    style.Add("margin", TwipsInPixels(format.spaceBefore) + ' ' +
                            TwipsInPixels(std::max(format.rightIndent, 0)) + ' ' +
                            TwipsInPixels(format.spaceAfter) + ' ' + TwipsInPixels(indents.left));
    style.Add("font-size", Pixels(FontPixels(FirstFormat(paragraph).size, 1)));
    style.Add("font-weight", "normal");
    if (indents.firstLine != 0) style.Add("text-indent", TwipsInPixels(indents.firstLine));
    if (format.alignment == ParagraphAlignment::Centre) style.Add("text-align", "center");
    if (format.alignment == ParagraphAlignment::Right) style.Add("text-align", "right");
    if (format.alignment == ParagraphAlignment::Justified) style.Add("text-align", "justify");
    style.Add("line-height", LineHeight(paragraph));
    return style;
}

class Writer
{
public:
    Writer(const Document& document, const LinkRule& linkRule)
        : document_(document), linkRule_(linkRule)
    {}

    std::string Write()
    {
        html_ = "<div style=\"white-space:pre-wrap;tab-size:80px;overflow-wrap:break-word;\">";
        WriteBlocks(document_.blocks);
        return html_ + "</div>";
    }

private:
    bool IsFull() const { return html_.size() - pictureBytes_ > kMostBytes; }

    void WriteBlocks(const std::vector<Block>& blocks)
    {
        bool inList = false;
        const auto setInList = [&](bool wanted) {
            if (wanted != inList) html_ += wanted ? "<div role=\"list\">" : "</div>";
            inList = wanted;
        };
        for (const Block& block : blocks) {
            if (IsFull()) break;
            const auto* paragraph = std::get_if<Paragraph>(&block.content);
            setInList(paragraph && paragraph->item);
            if (paragraph)
                WriteParagraph(*paragraph);
            else
                WriteTable(std::get<Table>(block.content));
        }
        setInList(false);
    }

    void WriteParagraph(const Paragraph& paragraph)
    {
        const int level = paragraph.item ? 0 : paragraph.format.headingLevel;
        const std::string name = level > 0 ? "h" + std::to_string(level) : "p";
        html_ += '<' + name + StyleOf(paragraph).Attribute();
        if (paragraph.item) html_ += " role=\"listitem\"";
        if (paragraph.format.rightToLeft) html_ += " dir=\"rtl\"";
        html_ += '>';
        WriteLines(paragraph);
        html_ += "</" + name + '>';
    }

    // A piece of a run between tabs and line breaks.
    struct Piece
    {
        const Run* run;
        std::string_view text;
    };
    using Pieces = std::vector<Piece>;

    void WriteLines(const Paragraph& paragraph)
    {
        std::vector<Pieces> betweenTabs(1);
        const std::vector<TabStop> stops = TabStopsOf(paragraph);
        const auto splitAtTabs = [&](const Run& run) {
            std::string_view rest = run.text;
            for (;;) {
                const std::size_t end = rest.find_first_of("\t\n");
                betweenTabs.back().push_back({&run, rest.substr(0, end)});
                if (end == std::string_view::npos) return;
                if (rest[end] == '\n') {
                    WriteLine(betweenTabs, stops);
                    html_ += "<br>";
                    betweenTabs.clear();
                }
                betweenTabs.emplace_back();
                rest.remove_prefix(end + 1);
            }
        };
        Run label;
        if (paragraph.item && !paragraph.item->label.empty()) {
            label = {paragraph.item->label + '\t', LabelFormat(paragraph)};
            splitAtTabs(label);
        }
        for (const Run& run : paragraph.runs) splitAtTabs(run);
        WriteLine(betweenTabs, stops);
        if (paragraph.runs.empty() || html_.ends_with("<br>")) html_ += "<br>"; // an empty line
    }

    // What stands before a tab is as wide as the way to its stop; past the last stop, the browser's
    // own tabs do.
    void WriteLine(const std::vector<Pieces>& betweenTabs, const std::vector<TabStop>& stops)
    {
        std::int32_t begin = 0;
        for (std::size_t i = 0; i + 1 < betweenTabs.size(); ++i) {
            if (i >= stops.size()) {
                WritePieces(betweenTabs[i]);
                html_ += '\t';
                continue;
            }
            html_ += "<span style=\"display:inline-block;min-width:" +
                     TwipsInPixels(stops[i].position - begin) + ";text-indent:0;\">";
            WritePieces(betweenTabs[i]);
            html_ += "</span>";
            begin = stops[i].position;
        }
        WritePieces(betweenTabs.back());
    }

    void WritePieces(const Pieces& pieces)
    {
        for (const Piece& piece : pieces) {
            if (IsFull()) return;
            if (piece.text.empty() && piece.run->picture < 0) continue;
            const std::string link = LinkAttributes(piece.run->link);
            const std::string style = StyleOf(piece.run->format, !link.empty()).Attribute();
            html_ += link.empty() ? "<span" + style + '>' : "<a" + link + style + '>';
            if (piece.run->picture >= 0)
                WritePicture(piece.run->picture);
            else
                html_ += Escaped(piece.text);
            html_ += link.empty() ? "</span>" : "</a>";
        }
    }

    std::string LinkAttributes(std::int32_t link) const
    {
        if (link < 0 || static_cast<std::size_t>(link) >= document_.links.size()) return {};
        const HtmlLink target = linkRule_(document_.links[static_cast<std::size_t>(link)]);
        if (target.kind == HtmlLink::Kind::Document)
            return " href=\"#\" data-link=\"" + std::to_string(link) + '"';
        if (target.kind == HtmlLink::Kind::Web && IsWebAddress(target.address))
            return " href=\"" + Escaped(target.address) +
                   "\" target=\"_blank\" rel=\"noopener noreferrer\"";
        return {};
    }

    void WritePicture(std::int32_t index)
    {
        if (static_cast<std::size_t>(index) >= document_.pictures.size()) return;
        const Picture& picture = document_.pictures[static_cast<std::size_t>(index)];
        const PixelSize size = ShownSize(picture);
        const std::string width = "max-width:100%;width:" + Pixels(size.width);
        if (picture.kind == PictureKind::Placeholder) {
            html_ += "<span style=\"display:inline-block;box-sizing:border-box;" + width +
                     ";height:" + Pixels(size.height) +
                     ";background-color:#f0f0f0;border:1px solid #a0a0a0;\"></span>";
            return;
        }
        const std::string data = Base64(picture.bytes);
        pictureBytes_ += data.size();
        html_ += "<img alt=\"\" style=\"" + width + ";aspect-ratio:" + Decimal(size.width) + " / " +
                 Decimal(size.height) + ";\" src=\"data:image/" +
                 (picture.kind == PictureKind::Png ? "png" : "jpeg") + ";base64," + data + "\">";
    }

    void WriteTable(const Table& table)
    {
        const TableGrid grid = MakeGrid(table);
        const int whole = grid.Width();
        html_ += "<table style=\"border-collapse:collapse;table-layout:fixed;width:" +
                 (grid.IsWide() ? "100%" : TwipsInPixels(whole)) + ";\"><colgroup>";
        for (const int width : grid.columnWidths)
            html_ += "<col style=\"width:" + Decimal(100.0 * width / whole) + "%;\">";
        html_ += "</colgroup><tbody>";
        auto cell = grid.cells.begin();
        for (std::size_t row = 0; row < table.rows.size() && !IsFull(); ++row) {
            html_ += "<tr>";
            for (; cell != grid.cells.end() && cell->row == static_cast<int>(row); ++cell)
                WriteCell(*cell, table.rows[row].repeatedHeader);
            html_ += "</tr>";
        }
        html_ += "</tbody></table>";
    }

    void WriteCell(const PlacedCell& cell, bool isHeader)
    {
        const std::string name = isHeader ? "th" : "td";
        html_ += '<' + name + " style=\"padding:3px;vertical-align:top;text-align:start;";
        if (cell.format->bordered) html_ += "border:1px solid #808080;";
        if (cell.format->background)
            html_ += "background-color:" + Colours(*cell.format->background) + ';';
        html_ += '"';
        if (cell.rows > 1) html_ += " rowspan=\"" + std::to_string(cell.rows) + '"';
        if (cell.columns > 1) html_ += " colspan=\"" + std::to_string(cell.columns) + '"';
        html_ += '>';
        for (const std::vector<Block>* blocks : cell.contents) WriteBlocks(*blocks);
        html_ += "</" + name + '>';
    }

    const Document& document_;
    const LinkRule& linkRule_;
    std::string html_;
    std::size_t pictureBytes_ = 0;
};

} // namespace

std::string ToHtml(const Document& document, const LinkRule& linkRule)
{
    return Writer(document, linkRule).Write();
}

} // namespace selvane::rich_text
