// The rich-text pane, the user guide and the about box as a user meets them.
#include "app/help_pane.h"
#include "qt/about_window.h"
#include "qt/appearance.h"
#include "qt/dispatch.h"
#include "qt/help_pane_widget.h"
#include "qt/user_guide_window.h"
#include "replay/stage.h"
#include "rich_text/document.h"

#include <QBuffer>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextTable>
#include <gtest/gtest.h>

using namespace selvane;

namespace {

constexpr auto kNone = Qt::NoModifier;

// A document with its words, links between angle brackets: "see <Energy.rtf>".
HelpPane PaneOf(const std::string& body)
{
    QString text = QString::fromStdString(body);
    text.replace('<', "{\\field{\\*\\fldinst HYPERLINK \"").replace('>', "\"}{\\fldrslt link}}");
    return {"Test.rtf",
            ReadPaneText("{\\rtf1{\\colortbl;\\red200\\green0\\blue0;}\\fs20 " +
                         text.toStdString() + "}"),
            1};
}

struct Pane
{
    HelpPaneWidget widget;
    QSignalSpy links{&widget, &HelpPaneWidget::linkClicked};

    Pane()
    {
        widget.resize(400, 256);
        widget.show();
        widget.activateWindow();
        widget.setFocus();
    }
    void Key(Qt::Key key, Qt::KeyboardModifiers held = kNone)
    {
        QTest::keyClick(&widget, key, held);
    }
    int Top() const { return widget.verticalScrollBar()->value(); }
    QTextCharFormat FormatAt(int position) const
    {
        QTextCursor cursor(widget.document());
        cursor.setPosition(position + 1);
        return cursor.charFormat();
    }
};

// A secondary window that is made to match its record after each event.
template <typename Frame> struct Opened
{
    replay::Stage stage;
    Dispatch dispatcher{stage.sim, stage.platform};
    Frame frame{dispatcher};

    explicit Opened(MenuId item)
    {
        QObject::connect(&dispatcher, &Dispatch::settled, &frame,
                         [this] { frame.Mirror(stage.sim); });
        dispatcher.Act(WindowId::Main, [item](Simulation& sim) { Choose(sim, item); });
        frame.show();
        frame.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&frame));
    }
    QWidget* Find(std::string_view name) const
    {
        return frame.template findChild<QWidget*>(TextOf(name));
    }
    void Press(std::string_view name, Qt::Key key)
    {
        Find(name)->setFocus();
        QTest::keyClick(Find(name), key);
    }
    void Click(std::string_view name)
    {
        QTest::mouseClick(Find(name), Qt::LeftButton, kNone, {4, 4});
    }
};

} // namespace

TEST(Pane, ALinkIsReportedByMouseAndKeyAndOneThatLeadsNowhereIsPlainText)
{
    for (const auto& [link, leads] : {std::pair{"Help%2820%29.rtf", true},
                                      {"ENERGY.RTF", true},
                                      {"./Energy.rtf#top", true},
                                      {"https://a.example.org/b?c=1", true},
                                      {"file:///home/Energy.rtf", false},
                                      {"#Energy", false}}) {
        Pane pane;
        pane.widget.ShowPane(PaneOf("<" + std::string(link) + "> words"));
        EXPECT_EQ(pane.FormatAt(0).isAnchor(), leads) << link;
        QTest::mouseClick(pane.widget.viewport(), Qt::LeftButton, kNone, QPoint(16, 20));
        pane.Key(Qt::Key_Tab);
        pane.Key(Qt::Key_Return); // the same link again
        EXPECT_EQ(pane.links.size(), leads ? 2 : 0) << link;
        for (const auto& report : pane.links) EXPECT_EQ(report.front().toString(), link);
        EXPECT_TRUE(pane.widget.toPlainText().endsWith("words"));
    }
}

TEST(Pane, ALoadStartsAtTheTopAndTheSameOneTouchesNothing)
{
    Pane pane;
    const HelpPane record = PaneOf(QString("line\\par ").repeated(80).toStdString());
    pane.widget.ShowPane(record);
    for (const auto& [key, back] : {std::pair{Qt::Key_Down, Qt::Key_Up},
                                    {Qt::Key_PageDown, Qt::Key_PageUp},
                                    {Qt::Key_End, Qt::Key_Home}}) {
        EXPECT_EQ(pane.Top(), 0);
        pane.Key(key);
        EXPECT_GT(pane.Top(), 0) << key;
        pane.Key(back);
    }
    pane.Key(Qt::Key_End);
    pane.Key(Qt::Key_A, Qt::ControlModifier);
    const int bottom = pane.Top();
    pane.widget.ShowPane(record);
    EXPECT_EQ(pane.Top(), bottom);
    EXPECT_TRUE(pane.widget.textCursor().hasSelection());
    HelpPane again = record;
    ++again.loads;
    pane.widget.ShowPane(again);
    EXPECT_EQ(pane.Top(), 0);
    EXPECT_FALSE(pane.widget.textCursor().hasSelection());
    again = {{}, nullptr, again.loads + 1};
    pane.widget.ShowPane(again);
    EXPECT_EQ(pane.widget.toPlainText(), "");
}

TEST(Pane, FormattingArrivesAndGrowsWithTheZoom)
{
    Pane pane;
    pane.widget.ShowPane(
        PaneOf("{\\b b}{\\i i}{\\ul u}{\\strike s}{\\super 2}{\\cf1 r}n{\\caps c}\\par "
               "\\pard\\qc\\li300\\sa150 centred\\par"));
    EXPECT_EQ(pane.FormatAt(0).fontWeight(), QFont::Bold);
    EXPECT_TRUE(pane.FormatAt(1).fontItalic());
    EXPECT_TRUE(pane.FormatAt(2).fontUnderline());
    EXPECT_TRUE(pane.FormatAt(3).fontStrikeOut());
    EXPECT_EQ(pane.FormatAt(4).verticalAlignment(), QTextCharFormat::AlignSuperScript);
    EXPECT_EQ(pane.FormatAt(5).foreground().color(), QColor(200, 0, 0));
    EXPECT_FALSE(pane.FormatAt(6).hasProperty(QTextFormat::ForegroundBrush)) << "automatic";
    EXPECT_EQ(pane.FormatAt(6).fontCapitalization(), QFont::MixedCase);
    EXPECT_EQ(pane.FormatAt(7).fontCapitalization(), QFont::AllUppercase);
    const auto size = [&] { return pane.FormatAt(6).intProperty(QTextFormat::FontPixelSize); };
    EXPECT_EQ(size(), 13); // 10 points
    const QTextBlockFormat centred = pane.widget.document()->lastBlock().blockFormat();
    EXPECT_EQ(centred.alignment(), Qt::AlignHCenter);
    EXPECT_EQ(centred.leftMargin(), 20);
    EXPECT_EQ(centred.bottomMargin(), 10);
    for (int i = 0; i < 10; ++i) pane.Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(size(), 27);
    EXPECT_EQ(pane.FormatAt(0).fontWeight(), QFont::Bold);
    for (int i = 0; i < 40; ++i) pane.Key(Qt::Key_Minus, Qt::ControlModifier);
    EXPECT_EQ(pane.widget.ZoomPercent(), 50);
    pane.Key(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(size(), 13);
    QWheelEvent turn({50, 50}, {50, 50}, {}, {0, 120}, Qt::NoButton, Qt::ControlModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(pane.widget.viewport(), &turn);
    EXPECT_EQ(pane.widget.ZoomPercent(), 110);
}

TEST(Pane, KeysSelectAndZoomKeepsTheSelection)
{
    Pane pane;
    pane.widget.ShowPane(PaneOf("one two three\\par four"));
    pane.Key(Qt::Key_Right, Qt::ShiftModifier | Qt::ControlModifier);
    pane.Key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(pane.widget.textCursor().selectedText(), "one t");
    pane.Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(pane.widget.textCursor().selectedText(), "one t");
    pane.Key(Qt::Key_X);
    pane.Key(Qt::Key_Delete);
    EXPECT_EQ(pane.widget.toPlainText(), "one two three\nfour") << "read only";
}

TEST(Pane, ZoomKeepsThePlaceThatIsRead)
{
    Pane pane;
    std::string lines;
    for (int line = 0; line < 200; ++line) lines += "line " + std::to_string(line) + "\\par ";
    pane.widget.ShowPane(PaneOf(lines));
    const auto firstLine = [&] { return pane.widget.cursorForPosition({0, 2}).blockNumber(); };
    pane.widget.verticalScrollBar()->setValue(1000);
    const int before = firstLine();
    EXPECT_GT(before, 30);
    for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_0}) {
        pane.Key(key, Qt::ControlModifier);
        EXPECT_EQ(firstLine(), before);
    }
    pane.widget.verticalScrollBar()->setValue(0);
    pane.Key(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(pane.Top(), 0);
}

TEST(Pane, TablesStandInAGridAndBrokenPicturesInAFrame)
{
    Pane pane;
    pane.widget.ShowPane(PaneOf("\\trowd\\clmgf\\cellx1500\\clmrg\\cellx3000\\clvmgf\\cellx4500\\in"
                                "tbl a\\cell\\cell c\\cell\\row"
                                "\\trowd\\clcbpat1\\cellx1000\\cellx3000\\clvmrg\\cellx4500\\intbl "
                                "d\\cell e\\cell\\cell\\row\\pard "
                                "{\\pict\\pngblip\\picwgoal30000\\pichgoal15000 00ff}"));
    QTextCursor cursor(pane.widget.document());
    cursor.setPosition(1);
    const QTextTable* table = cursor.currentTable();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->columns(), 4); // edges at 1000, 1500, 3000 and 4500
    EXPECT_EQ(table->cellAt(0, 0).columnSpan(), 3);
    EXPECT_EQ(table->cellAt(0, 3).rowSpan(), 2);
    EXPECT_EQ(table->cellAt(1, 0).format().background().color(), QColor(200, 0, 0));
    EXPECT_EQ(table->cellAt(1, 1).firstCursorPosition().block().text(), "e");
    const int shown = int(pane.widget.document()->size().width());
    EXPECT_LE(shown, pane.widget.viewport()->width()) << "a wide picture is held to the pane";
}

TEST(Pane, LinesKeepTheirDistance)
{
    const auto height = [](const std::string& spacing) {
        Pane pane;
        pane.widget.ShowPane(PaneOf("\\fs24" + spacing + " one\\line two\\line three\\par"));
        return pane.widget.document()->size().height();
    };
    const double font = height("");
    EXPECT_EQ(height("\\sl30"), font) << "at least, and the font needs more";
    EXPECT_NEAR(height("\\sl600") - font, 3 * (40 - (font - 20) / 3), 1);
    EXPECT_NEAR(height("\\sl-600"), height("\\sl600"), 1);
    EXPECT_NEAR(height("\\sl-240"), 3 * 16 + 20, 1) << "exactly, though the font needs more";
    EXPECT_EQ(height("\\sl480\\slmult1"), height("\\sl-480\\slmult1"));
}

TEST(Pane, APictureIsDecodedAndShownInItsSize)
{
    QImage stripes(3, 2, QImage::Format_RGB32);
    stripes.fill(QColor(10, 200, 30));
    stripes.setPixelColor(0, 0, QColor(250, 0, 0));
    for (const char* format : {"png", "jpeg"}) {
        QBuffer bytes;
        stripes.scaled(30, 20).save(&bytes, format, 100);
        const std::string hex = bytes.data().toHex().toStdString();
        Pane pane;
        pane.widget.ShowPane(PaneOf("{\\pict\\" + std::string(format) +
                                    "blip\\picwgoal900\\pichgoal600 " + hex + "}"));
        const QTextImageFormat shown = pane.FormatAt(0).toImageFormat();
        EXPECT_EQ(QSizeF(shown.width(), shown.height()), QSizeF(60, 40)) << format;
        const auto image = pane.widget.document()
                               ->resource(QTextDocument::ImageResource, QUrl(shown.name()))
                               .value<QImage>();
        ASSERT_EQ(image.size(), QSize(30, 20)) << format;
        const QImage window = pane.widget.viewport()->grab().toImage();
        const auto isNear = [](QColor one, QColor other) {
            const int miss[] = {one.red() - other.red(), one.green() - other.green(),
                                one.blue() - other.blue()};
            return std::ranges::all_of(miss, [](int each) { return std::abs(each) < 20; });
        };
        EXPECT_TRUE(isNear(image.pixelColor(3, 3), QColor(250, 0, 0))) << format;
        EXPECT_TRUE(isNear(window.pixelColor(16, 16), QColor(250, 0, 0))) << format;
        EXPECT_TRUE(isNear(window.pixelColor(60, 40), QColor(10, 200, 30))) << format;
    }
}

TEST(UserGuideFrame, ThePaneFollowsTheWindowAndNothingElseMoves)
{
    Opened<UserGuideFrame> guide(mnUserGuide);
    for (const QSize size : {QSize(600, 700), QSize(450, 300), QSize(20, 90)}) {
        guide.frame.resize(size);
        QCoreApplication::processEvents();
        const QSize outer = guide.frame.frameGeometry().size();
        EXPECT_EQ(guide.Find("txtHelp")->geometry(),
                  QRect(QPoint(8, 56),
                        QSize(std::max(outer.width() - 33, 0), std::max(outer.height() - 104, 0))));
        EXPECT_EQ(guide.Find("lblEnergy")->pos(), QPoint(278, 8));
    }
}

TEST(AboutFrame, ControlsAnswerToMouseAndKeys)
{
    Opened<AboutFrame> about(mnAbout);
    const auto& platform = about.stage.platform;
    EXPECT_EQ(about.frame.windowTitle(), "About Selvane");
    EXPECT_EQ(about.frame.focusWidget(), about.Find("cmdOK"));
    about.Click("LblWebsite");
    about.Press("Label1", Qt::Key_Return);
    about.Press("Label1", Qt::Key_Space);
    EXPECT_EQ(platform.Calls(), 3);
    EXPECT_TRUE(platform.LastCall().starts_with("open mailto:")) << platform.LastCall();
    about.Press("cmdSysInfo", Qt::Key_Return); // the one with the focus, not the default one
    QTest::keyClick(&about.frame, Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return platform.Calls() == 5; }, 500)) << platform.LastCall();
    EXPECT_TRUE(IsLoaded(about.stage.sim, WindowId::About));
    EXPECT_EQ(about.frame.minimumSize(), about.frame.maximumSize());
}
