#include "qt/rich_text_document.h"

#include "app/help_pane.h"
#include "qt/appearance.h"
#include "qt/picture_decoder.h"
#include "rich_text/layout.h"
#include "rich_text/table_grid.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>
#include <QTextImageFormat>
#include <QTextTable>
#include <QUrl>
#include <algorithm>

namespace selvane {
namespace {

using namespace rich_text;
using rich_text::Colour;

constexpr int kMargin = 10; // pixels round the text

QColor ToColour(Colour colour)
{
    return {colour.red, colour.green, colour.blue};
}

Qt::Alignment ToAlignment(ParagraphAlignment alignment)
{
    switch (alignment) {
    case ParagraphAlignment::Centre:
        return Qt::AlignHCenter;
    case ParagraphAlignment::Right:
        return Qt::AlignRight;
    case ParagraphAlignment::Justified:
        return Qt::AlignJustify;
    case ParagraphAlignment::Left:
        break;
    }
    return Qt::AlignLeft;
}

QTextOption::TabType ToTabType(TabKind kind)
{
    switch (kind) {
    case TabKind::Centre:
        return QTextOption::CenterTab;
    case TabKind::Right:
        return QTextOption::RightTab;
    case TabKind::Decimal:
        return QTextOption::DelimiterTab;
    case TabKind::Left:
        break;
    }
    return QTextOption::LeftTab;
}

// Text as the toolkit takes it: a line break has a character of its own, and the characters that
// the toolkit keeps for itself are none.
QString ToText(const std::string& text)
{
    QString converted = TextOf(text);
    for (QChar& character : converted) {
        const char16_t code = character.unicode();
        if (code == u'\n') character = QChar::LineSeparator;
        if (code == 0xFFFC || code == 0xFDD0 || code == 0xFDD1 || code == 0x2029) character = u' ';
    }
    return converted;
}

class Writer
{
public:
    Writer(const Document& text, QTextDocument& document, double zoom, int pictureWidth)
        : text_(text),
          document_(document),
          cursor_(&document),
          zoom_(zoom),
          pictureWidth_(pictureWidth)
    {}

    void Write(const std::vector<Block>& blocks)
    {
        for (const Block& block : blocks) {
            if (const auto* table = std::get_if<Table>(&block.content))
                WriteTable(*table);
            else
                WriteParagraph(std::get<Paragraph>(block.content));
        }
    }

private:
    double Pixels(int twips) const { return twips * zoom_ / kTwipsPerPixel; }

    QList<QTextOption::Tab> TabsOf(const Paragraph& paragraph) const
    {
        QList<QTextOption::Tab> tabs;
        for (const TabStop& stop : TabStopsOf(paragraph))
            tabs.append({Pixels(stop.position), ToTabType(stop.kind), u'.'});
        return tabs;
    }

    void SetLineHeight(QTextBlockFormat& block, const ParagraphFormat& format) const
    {
        const int spacing = format.lineSpacing;
        if (spacing == 0 || (format.lineSpacingIsMultiple && spacing == kWholeLine)) return;
        if (format.lineSpacingIsMultiple)
            block.setLineHeight(std::clamp(100.0 * spacing / kWholeLine, 50.0, 500.0),
                                QTextBlockFormat::ProportionalHeight);
        else
            block.setLineHeight(std::abs(Pixels(spacing)), spacing < 0
                                                               ? QTextBlockFormat::FixedHeight
                                                               : QTextBlockFormat::MinimumHeight);
    }

    QTextBlockFormat BlockFormatOf(const Paragraph& paragraph) const
    {
        const ParagraphFormat& format = paragraph.format;
        const Indents indents = IndentsOf(paragraph);
        QTextBlockFormat block;
        block.setAlignment(ToAlignment(format.alignment));
        block.setLeftMargin(Pixels(indents.left));
        block.setRightMargin(std::max(Pixels(format.rightIndent), 0.0));
        block.setTextIndent(Pixels(indents.firstLine));
        block.setTopMargin(std::max(Pixels(format.spaceBefore), 0.0));
        block.setBottomMargin(std::max(Pixels(format.spaceAfter), 0.0));
        SetLineHeight(block, format);
        if (format.rightToLeft) block.setLayoutDirection(Qt::RightToLeft);
        if (format.headingLevel > 0) block.setHeadingLevel(format.headingLevel);
        const QList<QTextOption::Tab> tabs = TabsOf(paragraph);
        if (!tabs.isEmpty()) block.setTabPositions(tabs);
        return block;
    }

    void SetFont(QTextCharFormat& to, const CharacterFormat& format) const
    {
        to.setProperty(QTextFormat::FontPixelSize, FontPixels(format.size, zoom_));
        if (format.bold) to.setFontWeight(QFont::Bold);
        if (format.italic) to.setFontItalic(true);
        if (format.underline) to.setFontUnderline(true);
        if (format.strike) to.setFontStrikeOut(true);
        if (format.allCapitals) to.setFontCapitalization(QFont::AllUppercase);
        if (format.smallCapitals) to.setFontCapitalization(QFont::SmallCaps);
        const auto font = text_.fonts.find(format.font);
        if (font == text_.fonts.end()) return;
        const QStringList own = document_.defaultFont().families();
        to.setFontFamilies(QStringList{TextOf(font->second)} + own);
    }

    QTextCharFormat CharFormatOf(const CharacterFormat& format) const
    {
        QTextCharFormat to;
        SetFont(to, format);
        if (format.position == VerticalPosition::Superscript)
            to.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
        if (format.position == VerticalPosition::Subscript)
            to.setVerticalAlignment(QTextCharFormat::AlignSubScript);
        if (format.raise != 0)
            to.setBaselineOffset(
                std::clamp(100.0 * format.raise / std::max<int>(format.size, 1), -100.0, 100.0));
        if (format.colour) to.setForeground(ToColour(*format.colour));
        if (format.background) to.setBackground(ToColour(*format.background));
        return to;
    }

    void SetLink(QTextCharFormat& to, int link) const
    {
        if (link < 0 || static_cast<std::size_t>(link) >= text_.links.size()) return;
        const std::string& address = text_.links[static_cast<std::size_t>(link)];
        if (LinkTargetOf(address).kind == LinkTarget::Kind::None) return;
        to.setAnchor(true);
        to.setAnchorHref(ToText(address));
        to.setFontUnderline(true);
        to.setForeground(kLinkColour);
    }

    void WriteRun(const Run& run)
    {
        QTextCharFormat format = CharFormatOf(run.format);
        SetLink(format, run.link);
        if (run.picture >= 0)
            WritePicture(run.picture, format);
        else
            cursor_.insertText(ToText(run.text), format);
    }

    void WritePicture(int index, const QTextCharFormat& around)
    {
        if (static_cast<std::size_t>(index) >= text_.pictures.size()) return;
        const Picture& picture = text_.pictures[static_cast<std::size_t>(index)];
        const QSize shown = ShownSize(picture, zoom_, pictureWidth_);
        const QUrl name(QStringLiteral("picture:%1").arg(index));
        if (document_.resource(QTextDocument::ImageResource, name).isNull()) {
            QImage image = decoder_.Decode(picture, shown);
            if (image.isNull()) image = EmptyFrame(shown);
            document_.addResource(QTextDocument::ImageResource, name, image);
        }
        QTextImageFormat format;
        format.merge(around);
        format.setName(name.toString());
        format.setWidth(shown.width());
        format.setHeight(shown.height());
        cursor_.insertImage(format);
    }

    // The first paragraph of a cell, or after a table, fills the one that stands there. Its own
    // character format is left alone: in a cell, that is where the toolkit keeps the cell's.
    void Begin(const QTextBlockFormat& block, const QTextCharFormat& format)
    {
        if (fresh_)
            cursor_.setBlockFormat(block);
        else
            cursor_.insertBlock(block, format);
        fresh_ = false;
    }

    void WriteParagraph(const Paragraph& paragraph)
    {
        Begin(BlockFormatOf(paragraph), CharFormatOf(FirstFormat(paragraph)));
        if (paragraph.item && !paragraph.item->label.empty())
            cursor_.insertText(ToText(paragraph.item->label) + u'\t',
                               CharFormatOf(LabelFormat(paragraph)));
        for (const Run& run : paragraph.runs) WriteRun(run);
    }

    QTextTableFormat TableFormatOf(const TableGrid& grid) const
    {
        const int whole = grid.Width();
        QList<QTextLength> widths;
        for (const int width : grid.columnWidths)
            widths.append(QTextLength(QTextLength::PercentageLength, 100.0 * width / whole));
        QTextTableFormat format;
        format.setColumnWidthConstraints(widths);
        format.setWidth(grid.IsWide() ? QTextLength(QTextLength::PercentageLength, 100)
                                      : QTextLength(QTextLength::FixedLength, Pixels(whole)));
        format.setCellPadding(3 * zoom_);
        format.setCellSpacing(0);
        format.setBorder(0);
        format.setBorderCollapse(true);
        return format;
    }

    void WriteTable(const Table& table)
    {
        const TableGrid grid = MakeGrid(table);
        if (!fresh_)
            cursor_.insertBlock(QTextBlockFormat());
        else
            cursor_.setBlockFormat(QTextBlockFormat());
        QTextTable* made =
            cursor_.insertTable(static_cast<int>(table.rows.size()),
                                static_cast<int>(grid.columnWidths.size()), TableFormatOf(grid));
        for (const PlacedCell& cell : grid.cells) WriteCell(*made, cell);
        cursor_.setPosition(made->lastPosition() + 1);
        fresh_ = true;
    }

    void WriteCell(QTextTable& table, const PlacedCell& placed)
    {
        if (placed.rows > 1 || placed.columns > 1)
            table.mergeCells(placed.row, placed.column, placed.rows, placed.columns);
        QTextTableCell cell = table.cellAt(placed.row, placed.column);
        QTextTableCellFormat format = cell.format().toTableCellFormat(); // knows what is merged
        if (placed.format->background) format.setBackground(ToColour(*placed.format->background));
        if (placed.format->bordered) {
            format.setBorder(1);
            format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
            format.setBorderBrush(kFrameColour);
        }
        cell.setFormat(format);
        cursor_ = cell.firstCursorPosition();
        fresh_ = true;
        for (const std::vector<Block>* blocks : placed.contents) Write(*blocks);
    }

    const Document& text_;
    QTextDocument& document_;
    QTextCursor cursor_;
    PictureDecoder decoder_;
    const double zoom_;
    const int pictureWidth_;
    bool fresh_ = true; // the cursor stands in an empty paragraph that is still to be used
};

} // namespace

std::unique_ptr<QTextDocument> MakeTextDocument(const rich_text::Document& text, const QFont& font,
                                                double zoom, int pictureWidth)
{
    auto document = std::make_unique<QTextDocument>();
    document->setUndoRedoEnabled(false);
    document->setDefaultFont(font);
    document->setDocumentMargin(kMargin);
    Writer(text, *document, zoom, pictureWidth).Write(text.blocks);
    return document;
}

} // namespace selvane
