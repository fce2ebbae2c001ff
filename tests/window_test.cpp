// What only the window shows: the focus, keys, dragging, typing while the satellite flies, small
// screens, other languages, what a screen reader says, and which window is active.
#include "program/program.h"
#include "qt/appearance.h"
#include "qt/control_widgets.h"
#include "qt/picture_widget.h"
#include "qt/shell.h"
#include "replay/scripted_platform.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QBackingStore>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>
#include <QWindow>
#include <clocale>
#include <gtest/gtest.h>
#include <map>
#include <set>

using namespace selvane;

namespace {

enum Screen { kWide = 0, kFirstSmall = 3, kScreens = 6 };

class WindowTest : public testing::Test
{
protected:
    replay::ScriptedPlatform platform;
    std::unique_ptr<Shell> shell;

    void SetUp() override { Start(kWide); }

    void Start(int screen)
    {
        shell = std::make_unique<Shell>(platform);
        shell->EventTimers().StandStill();
        shell->Window().setScreen(QGuiApplication::screens().at(screen));
        shell->Window().FitToScreen();
        shell->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&shell->Window(), 2000));
        QApplication::processEvents();
    }

    template <typename Widget = QWidget> Widget& Find(std::string_view name)
    {
        return *shell->Window().findChild<Widget*>(TextOf(name));
    }
    QScrollBar& Bar(ScrollBarId bar) { return Find<QScrollBar>(ScrollBarTable()[Index(bar)].name); }
    QLineEdit& Field(FieldId field) { return Find<QLineEdit>(FieldTable()[Index(field)].name); }

    void Click(const char* name) { QTest::mouseClick(&Find(name), Qt::LeftButton); }
    void Trigger(std::string_view item) { Find<QAction>(item).trigger(); }
    void Retype(FieldId field, const QString& text)
    {
        Field(field).clear();
        QTest::keyClicks(&Field(field), text);
    }

    const Simulation& Sim() { return shell->Sim(); }
    void Ticks(int count)
    {
        for (int tick = 0; tick < count; ++tick) shell->Dispatcher().Tick(tmrSat);
    }
    void Do(Dispatch::Event event) { shell->Dispatcher().Report(std::move(event)); }

    std::string FocusName()
    {
        const QWidget* const focus = QApplication::focusWidget();
        return focus ? focus->objectName().toStdString() : "";
    }
};

std::vector<std::string> VisibleNames(QWidget& window)
{
    std::vector<std::string> names;
    for (const std::string_view name : ReadingOrder())
        if (window.findChild<QWidget*>(TextOf(name))->isVisible()) names.emplace_back(name);
    return names;
}

QAccessibleInterface& Spoken(QWidget& widget)
{
    return *QAccessible::queryAccessibleInterface(&widget);
}

} // namespace

// What is on the screen after a flight in small repaints, and a walk of the focus, is what a whole
// repaint shows.
TEST_F(WindowTest, RepaintsAllThatChanged)
{
    for (int tick = 0; tick < 100; ++tick, QApplication::processEvents()) Ticks(1);
    QWidget& window = shell->Window();
    for (const std::string& name : VisibleNames(window)) {
        Find(name).setFocus();
        QApplication::processEvents();
    }
    const auto& onScreen = dynamic_cast<QImage&>(*window.backingStore()->paintDevice());
    EXPECT_EQ(onScreen.convertToFormat(QImage::Format_RGB32),
              window.grab().toImage().convertToFormat(QImage::Format_RGB32));
}

TEST_F(WindowTest, TabWalksAllControlsInReadingOrderAndTheFocusIsSeen)
{
    const std::vector<std::string> expected = VisibleNames(shell->Window());
    std::vector<std::string> there, back;
    for (std::size_t at = 0; at < expected.size(); ++at) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        there.push_back(FocusName());
        QWidget& control = *QApplication::focusWidget();
        const QImage focused = control.grab().toImage();
        control.clearFocus();
        EXPECT_NE(control.grab().toImage(), focused) << "the focus is not seen on " << there.back();
        control.setFocus();
    }
    EXPECT_EQ(there, expected);
    while (back.size() < expected.size()) {
        back.insert(back.begin(), FocusName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    }
    EXPECT_EQ(back, expected);

    for (const QWidget* child :
         Find("panel").findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const bool walked = std::ranges::count(ReadingOrder(), child->objectName().toStdString());
        EXPECT_EQ(child->focusPolicy() != Qt::NoFocus, walked) << child->objectName().toStdString();
    }
}

TEST_F(WindowTest, KeysMoveABarInTheDirectionTheyPoint)
{
    using enum Qt::Key;
    for (const auto& [key, change] : {std::pair{Key_Right, 1},
                                      {Key_Down, 1},
                                      {Key_Left, -1},
                                      {Key_Up, -1},
                                      {Key_PageDown, 10},
                                      {Key_PageUp, -10}}) {
        const int before = Value(Sim(), sclApo);
        QTest::keyClick(&Bar(sclApo), key);
        EXPECT_EQ(Value(Sim(), sclApo), before + change);
        EXPECT_EQ(Bar(sclApo).value(), before + change);
    }
    QTest::keyClick(&Bar(sclApo), Key_End);
    EXPECT_EQ(Value(Sim(), sclApo), 1000);

    // The pan bars spring back to 0; which way they went the picture shows.
    const auto moved = [&](ScrollBarId bar, Qt::Key key) {
        const Picture& picture = Sim().picSelvane;
        const QPointF before(picture.ScaleLeft, picture.ScaleTop);
        QTest::keyClick(&Bar(bar), key);
        return QPointF(picture.ScaleLeft, picture.ScaleTop) - before;
    };
    for (const ScrollBarId bar : {sclLR, sclUD}) {
        const QPointF raised = moved(bar, Qt::Key_Down);
        EXPECT_EQ(moved(bar, Qt::Key_Right), raised);
        EXPECT_EQ(moved(bar, Qt::Key_Left), -raised);
        EXPECT_EQ(moved(bar, Qt::Key_Up), -raised);
        EXPECT_EQ(moved(bar, Qt::Key_PageUp), -10 * raised);
        EXPECT_GT(raised.manhattanLength(), 0);
        EXPECT_EQ(Bar(bar).value(), 0);
    }
    Bar(sclPeri).setFocus();
    QTest::keyClick(&Bar(sclPeri), Qt::Key_Home); // the program goes on to 0
    EXPECT_EQ(Bar(sclPeri).value(), 0);
    EXPECT_EQ(Field(txtPeri).text(), "0");
}

TEST_F(WindowTest, TheWheelTurnsTheBarWithTheFocusAndNoOther)
{
    const auto turn = [&](int angle) {
        QScrollBar& bar = Bar(sclApo);
        QWheelEvent event(QPointF(5, 5), bar.mapToGlobal(QPointF(5, 5)), {}, {0, angle},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&bar, &event);
    };
    turn(-120);
    EXPECT_EQ(Value(Sim(), sclApo), 32);
    Bar(sclApo).setFocus();
    turn(-120);
    EXPECT_EQ(Value(Sim(), sclApo), 33);
    turn(60);
    turn(60); // a fine wheel's two halves of a notch
    EXPECT_EQ(Value(Sim(), sclApo), 32);
}

TEST_F(WindowTest, SpaceAndEnterPressAndTheFocusStaysAtItsPlace)
{
    QWidget& pause = Find("btnPause");
    pause.setFocus();
    const QImage usual = pause.grab().toImage();
    EXPECT_EQ(usual.mirrored(true, true), usual) << "the two bars stand in the middle";
    QTest::keyPress(&pause, Qt::Key_Space);
    EXPECT_NE(pause.grab().toImage(), usual) << "it shows that it is held down";
    QTest::keyRelease(&pause, Qt::Key_Space);
    EXPECT_FALSE(Sim().controls.timers[Index(tmrSat)].enabled);
    EXPECT_EQ(FocusName(), "btnPlay");
    QTest::keyClick(&Find("btnPlay"), Qt::Key_Return);
    EXPECT_TRUE(Sim().controls.timers[Index(tmrSat)].enabled);
    EXPECT_EQ(FocusName(), "btnPause");

    Field(txtPeri).setFocus();
    Click("btnPause");
    QTest::mouseClick(&Find("panel"), Qt::LeftButton, {}, {500, 640});
    EXPECT_EQ(FocusName(), "txtPeri") << "a click on a button or beside leaves the field its focus";

    Do([](Simulation& sim) { Choose(sim, mnGeo); });
    QWidget& link = Find("lblReturnToTutorial");
    ASSERT_TRUE(link.isVisible());
    link.setFocus();
    QTest::keyClick(&link, Qt::Key_Enter);
    EXPECT_EQ(Sim().controls.txtHelp.document, "Help(20).rtf");
}

TEST_F(WindowTest, MenusOpenByKeyAndEveryItemHasAnAccessKey)
{
    QMenuBar& bar = *shell->Window().menuBar();
    const auto press = [](auto key) {
        QWidget* const menu = QApplication::activePopupWidget();
        QTest::keyClick(menu ? menu : QApplication::focusWidget(), key);
    };
    for (const Qt::Key key : {Qt::Key_F10, Qt::Key_Alt})
        for (const QAction* const title : bar.actions()) {
            Field(txtPeri).setFocus();
            const QImage usual = bar.grab().toImage();
            press(key);
            EXPECT_EQ(bar.activeAction(), &Find<QAction>("mnFile")) << key;
            EXPECT_NE(bar.grab().toImage(), usual) << "the title is marked, though no menu is open";
            press(title->text().at(title->text().indexOf('&') + 1).toLower().toLatin1());
            EXPECT_EQ(QApplication::activePopupWidget(), title->menu()) << key;
            for (int each = 0; each < 2; ++each) press(Qt::Key_Escape);
            EXPECT_EQ(bar.activeAction(), nullptr);
            EXPECT_EQ(FocusName(), "txtPeri");
        }

    std::map<std::optional<MenuId>, std::set<QChar>> keys;
    for (const MenuRow& row : MenuTable()) {
        const QString text = Find<QAction>(row.name).text();
        if (row.caption.empty()) continue;
        EXPECT_TRUE(keys[row.under].insert(text.at(text.indexOf('&') + 1).toLower()).second);
    }
    for (const MenuId item : {mnMars, mnGeo, mnEarth, mnEarth, mnSunSynch}) {
        Trigger(MenuTable()[Index(item)].name); // it flips, and is put right
        for (const MenuRow& row : MenuTable())
            EXPECT_EQ(Find<QAction>(row.name).isChecked(), IsChecked(Sim(), row.id)) << row.name;
    }

    QTest::keyClick(&shell->Window(), Qt::Key_F1);
    EXPECT_TRUE(IsActive(Sim(), WindowId::UserGuide));
    EXPECT_TRUE(shell->Windows().Widget(WindowId::UserGuide)->isVisible());
}

TEST_F(WindowTest, TicksLeaveTheFieldThatIsBeingTypedInAlone)
{
    QLineEdit& field = Field(txtApo);
    field.setFocus();
    field.selectAll();
    QTest::keyClicks(&field, "4500");
    field.setCursorPosition(1);
    QTest::keyClick(&field, Qt::Key_Right, Qt::ShiftModifier);
    Ticks(3);
    EXPECT_EQ(field.text(), "4500");
    EXPECT_EQ(Text(Sim(), txtApo), "4500");
    EXPECT_EQ(field.selectedText(), "5");
    EXPECT_TRUE(field.isUndoAvailable());
    QTest::keyClick(&field, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(field.text(), "4500");
    EXPECT_EQ(field.text().toStdString(), Text(Sim(), txtApo));

    QTest::keyClick(&Bar(sclApo), Qt::Key_Right);
    EXPECT_EQ(field.text(), "3300") << "a bar rewrites what was typed";
}

TEST_F(WindowTest, OnlyTheFirstLineOfWhatIsPastedCounts)
{
    for (const char* const text : {"12\n34\n56", "12\r34", "\n12\x01\x02"}) {
        QLineEdit& field = Field(txtARGP);
        field.selectAll();
        QApplication::clipboard()->setText(text);
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        Ticks(1);
        EXPECT_EQ(field.text(), "12");
        EXPECT_EQ(Text(Sim(), txtARGP), "12");
        EXPECT_EQ(Find<QLabel>("lblOutput(8)").text(), "ARGP = 12 Degrees");
        EXPECT_EQ(Sim().state.ARGP, 102);
    }
}

TEST_F(WindowTest, ALongReadOutEndsBeforeItsNeighbourAndTheTipHasTheWhole)
{
    const QString typed = QString("9").repeated(300);
    for (const FieldId field : {txtARGP, txtSMajAxis, txtSMinAxis}) Field(field).setText(typed);
    Ticks(1);
    std::size_t shortened = 0;
    const QRect panel = Find("Shape1").geometry();
    for (const LabelRow& row : LabelTable()) {
        if (!RoomOf(row.id)) continue;
        auto& label = Find<QLabel>(row.name);
        EXPECT_TRUE(panel.contains(label.geometry())) << row.name;
        for (const LabelRow& other : LabelTable()) {
            const bool neighbour = &other != &row && RoomOf(other.id);
            EXPECT_FALSE(neighbour && label.geometry().intersects(Find(other.name).geometry()))
                << row.name;
        }
        const bool isLong = label.text().size() > 60;
        shortened += isLong;
        constexpr int kDots = 12; // pixels that a shortened text may fall short
        EXPECT_GE(label.width() + kDots,
                  std::min(label.fontMetrics().horizontalAdvance(label.text()), *RoomOf(row.id)))
            << row.name;
        EXPECT_EQ(Spoken(label).text(QAccessible::Name), label.text());
        QHelpEvent hover(QEvent::ToolTip, {2, 2}, label.mapToGlobal(QPoint(2, 2)));
        QApplication::sendEvent(&label, &hover);
        if (row.toolTip.empty()) continue; // nothing to show but what stands there
        const QString whole = isLong ? label.text() + TextOf(row.toolTip) : TextOf(row.toolTip);
        EXPECT_EQ(QToolTip::text().remove('\n'), whole);
    }
    EXPECT_EQ(shortened, 2u); // ARGP, and the true anomaly that follows from it
    QToolTip::hideText();
}

TEST_F(WindowTest, AFieldThatDescribesNoOrbitSaysSoUntilItDoes)
{
    QLineEdit& field = Field(txtSMajAxis);
    const QColor usual = field.palette().color(QPalette::Text);
    Retype(txtSMajAxis, "wide");
    Click("btnAxisCalculate");
    EXPECT_NE(field.palette().color(QPalette::Text), usual);
    EXPECT_FALSE(field.toolTip().isEmpty());
    EXPECT_TRUE(Spoken(field).text(QAccessible::Description).startsWith(field.toolTip()));
    for (const FieldId either : {txtSMinAxis, txtSMajAxis}) Retype(either, "9000");
    Ticks(1);
    EXPECT_EQ(field.palette().color(QPalette::Text), usual);
    EXPECT_TRUE(field.toolTip().isEmpty());
}

TEST_F(WindowTest, AThumbThatIsHeldStaysInTheHandThroughTicksAndCountsWhenLetGo)
{
    QScrollBar& bar = Bar(sclViewD);
    const int before = bar.value();
    const QPoint thumb(bar.width() / 2 + 2, bar.height() / 2);
    QTest::mousePress(&bar, Qt::LeftButton, {}, thumb);
    ASSERT_TRUE(bar.isSliderDown());
    QTest::mouseMove(&bar, thumb + QPoint(6, 0));
    const int held = bar.sliderPosition();
    ASSERT_NE(held, before);
    Ticks(5);
    EXPECT_TRUE(bar.isSliderDown());
    EXPECT_EQ(bar.sliderPosition(), held);
    EXPECT_EQ(Value(Sim(), sclViewD), before);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, thumb + QPoint(6, 0));
    EXPECT_NE(Value(Sim(), sclViewD), before);
    EXPECT_EQ(bar.value(), Value(Sim(), sclViewD));
}

TEST_F(WindowTest, ATickThatChangesNoIntervalKeepsTheBeat)
{
    shell = nullptr;
    shell = std::make_unique<Shell>(platform); // with its timers running
    shell->Show();
    QTimer& timer = *shell->EventTimers().findChild<QTimer*>("tmrSat");
    ASSERT_TRUE(timer.isActive());
    EXPECT_EQ(timer.timerType(), Qt::PreciseTimer);
    QTest::qSleep(40);
    const int left = timer.remainingTime();
    ASSERT_LT(left, 215);
    Do([](Simulation&) {});
    EXPECT_LE(timer.remainingTime(), left);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return Sim().controls.timers[Index(tmrSat)].interval != 250; }, 2000));
    EXPECT_EQ(timer.interval(), Sim().controls.timers[Index(tmrSat)].interval);

    shell->Window().hide(); // nobody sees it fly
    EXPECT_TRUE(QTest::qWaitFor([&] { return !timer.isActive(); }, 2000));
    EXPECT_TRUE(Sim().controls.timers[Index(tmrSat)].enabled);
    shell->Window().show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return timer.isActive(); }, 2000));
}

TEST_F(WindowTest, TheMarkerStaysOnTheOrbitUnderZoomAndPan)
{
    QWidget& marker = Find("lblSat");
    EXPECT_FALSE(marker.isVisible()) << "it has no place before the first step";
    Ticks(100);
    const auto expectInPlace = [&] {
        const Marker& record = Sim().controls.lblSat;
        const Picture& picture = Sim().picSelvane;
        EXPECT_EQ(marker.x(),
                  qRound((*record.left - picture.ScaleLeft) * 800 / picture.ScaleWidth));
        EXPECT_EQ(marker.y(), qRound((*record.top - picture.ScaleTop) * 600 / picture.ScaleHeight));
        EXPECT_EQ(marker.isVisible(), record.visible);
    };
    expectInPlace();
    for (const ScrollBarId bar : {sclZoom, sclLR, sclUD}) {
        const QPoint before = marker.pos();
        QTest::keyClick(&Bar(bar), Qt::Key_PageDown);
        EXPECT_NE(marker.pos(), before);
        expectInPlace();
    }
    Trigger("mnViewSatellite");
    EXPECT_FALSE(marker.isVisible());
}

TEST_F(WindowTest, TheWindowFitsEveryScreenAndTheFocusScrollsIntoView)
{
    for (int screen = kWide; screen < kScreens; ++screen) {
        Start(screen);
        MainWindow& window = shell->Window();
        const QRect room = window.screen()->availableGeometry();
        ASSERT_EQ(window.screen(), QGuiApplication::screens().at(screen));
        EXPECT_TRUE(room.contains(window.frameGeometry()));
        const auto& area = Find<QScrollArea>("area");
        const bool small = screen >= kFirstSmall;
        EXPECT_EQ(area.verticalScrollBar()->isVisible(), small) << screen;
        EXPECT_EQ(area.horizontalScrollBar()->isVisible(), room.width() < kClientWidth) << screen;
        for (const std::string& name : VisibleNames(window)) {
            Find(name).setFocus();
            EXPECT_EQ(Find(name).visibleRegion().boundingRect(), Find(name).rect()) << name;
        }
        EXPECT_EQ(Find<PictureWidget>("picSelvane").Image().devicePixelRatio(),
                  window.devicePixelRatioF());

        for (const MenuId item : {mnUserGuide, mnAbout}) {
            Do([item](Simulation& sim) {
                ActivateByUser(sim, WindowId::Main);
                Choose(sim, item);
            });
            const WindowId opened = Sim().windows.order.back();
            const QRect other = shell->Windows().Widget(opened)->frameGeometry();
            EXPECT_TRUE(std::ranges::any_of(QGuiApplication::screens(), [&](const QScreen* any) {
                return any->availableGeometry().contains(other);
            }));
        }
    }
}

TEST_F(WindowTest, CaptionsAreTheSameInEveryLanguage)
{
    const auto captions = [&] {
        Start(kWide);
        Ticks(30);
        QStringList all;
        for (const auto* label : shell->Window().findChildren<QLabel*>()) all += label->text();
        for (const auto* action : shell->Window().findChildren<QAction*>()) all += action->text();
        for (const auto* field : shell->Window().findChildren<QLineEdit*>()) all += field->text();
        return all;
    };
    const QLocale before;
    QStringList missing;
    const QStringList expected = captions();
    EXPECT_TRUE(expected.contains("Zoom"));
    for (const char* const name : {"de_DE", "fr_FR", "tr_TR", "ar_EG", "hi_IN"}) {
        QLocale::setDefault(QLocale(name));
        if (!std::setlocale(LC_ALL, (std::string(name) + ".UTF-8").c_str())) missing += name;
        EXPECT_EQ(captions(), expected) << name;
    }
    QLocale::setDefault(before);
    std::setlocale(LC_ALL, "C");
    if (!missing.isEmpty())
        GTEST_SKIP() << "not installed on this machine: " << missing.join(' ').toStdString();
}

TEST_F(WindowTest, AScreenReaderIsToldEveryControl)
{
    constexpr std::pair<const char*, QAccessible::Role> kRoles[] = {
        {"picSelvane", QAccessible::Graphic},      {"picDemo", QAccessible::Graphic},
        {"sclPeri", QAccessible::ScrollBar},       {"txtPeri", QAccessible::EditableText},
        {"btnReverse", QAccessible::Button},       {"lblReturnToTutorial", QAccessible::Link},
        {"lblOutput(0)", QAccessible::StaticText}, {"lblSat", QAccessible::Client}};
    for (const auto& [name, role] : kRoles) EXPECT_EQ(Spoken(Find(name)).role(), role) << name;
    for (const std::string_view name : ReadingOrder())
        EXPECT_FALSE(Spoken(Find(name)).text(QAccessible::Name).isEmpty()) << name;
    EXPECT_EQ(Spoken(Find("btnAdvance")).text(QAccessible::Name), "Step forward");
    EXPECT_EQ(Spoken(Find("lblOutput(4)")).text(QAccessible::Name), "Eccentricity = 0.157");
    Trigger("mnTimeStandards"); // the range bar goes with the step
    EXPECT_EQ(Spoken(Bar(sclRange)).text(QAccessible::Name), "Solar Days");

    const auto words = [&] { return Spoken(Find("picSelvane")).text(QAccessible::Description); };
    EXPECT_TRUE(words().endsWith("has not been placed yet."));
    Ticks(40);
    const QString anomaly = Find<QLabel>("lblOutput(10)").text().section(' ', 3, 3);
    EXPECT_TRUE(words().contains("true anomaly " + anomaly)) << words().toStdString();
    EXPECT_TRUE(Spoken(Find("picDemo")).text(QAccessible::Description).contains("step 1 of 2"));
}

// document_memory counts the bytes.
TEST_F(WindowTest, OnlyTheDocumentThatIsShownIsKept)
{
    const auto documents = [&] { return Find("txtHelp").findChildren<QTextDocument*>().size(); };
    const qsizetype usual = documents();
    for (const auto button : {"btnNext2", "btnNext2", "btnBack2", "btnNext2"}) Click(button);
    EXPECT_EQ(Sim().controls.txtHelp.document, "Help(22).rtf");
    EXPECT_EQ(documents(), usual);
}

// Place and frame are the core's.
TEST_F(WindowTest, TheFrameStandsRoundThePairThatRules)
{
    const auto expectRoundOf = [&](const char* bar, const char* caption, const char* button) {
        const QRect frame = Find("rulingFrame").geometry();
        for (const char* const name : {bar, caption, button})
            EXPECT_TRUE(frame.adjusted(1, 1, -1, -1).contains(Find(name).geometry())) << name;
        for (const char* const each : {"btnApsisCalculate", "btnECalculate", "btnAxisCalculate"})
            EXPECT_EQ(frame.intersects(Find(each).geometry()), each == std::string(button));
        EXPECT_TRUE(Find("shpShape").geometry().adjusted(1, 1, -1, -1).contains(frame));
    };
    expectRoundOf("sclPeri", "lblPeriapsis", "btnApsisCalculate");
    QTest::keyClick(&Bar(sclE), Qt::Key_Right);
    expectRoundOf("sclE", "lblPeriE", "btnECalculate");
    Retype(txtSMajAxis, "far");
    Click("btnAxisCalculate");
    expectRoundOf("sclSMajAxis", "lblSMin", "btnAxisCalculate");
}

TEST_F(WindowTest, OnlyAReturnFromTheProgramsOwnWindowsStartsOver)
{
    const auto tutorialOpen = [&] { return IsChecked(Sim(), mnSatelliteTracking); };
    ASSERT_TRUE(tutorialOpen()); // each return turns it round

    const auto reactivate = [&](QWidget& window) {
        QEvent leave(QEvent::WindowDeactivate), come(QEvent::WindowActivate);
        QApplication::sendEvent(&window, &leave);
        QApplication::sendEvent(&window, &come);
    };
    shell->Window().move(33, 22);
    reactivate(shell->Window()); // from another program
    EXPECT_EQ(shell->Window().pos(), QPoint(33, 22)) << "it stays where the user has moved it";
    EXPECT_TRUE(tutorialOpen());

    Trigger("mnAbout");
    QWidget* const about = shell->Windows().Widget(WindowId::About);
    ASSERT_TRUE(about && QTest::qWaitForWindowActive(about, 2000));
    about->move(-50, 40);
    reactivate(*about);
    EXPECT_EQ(about->pos(), QPoint(-50, 40)) << "so does this one";
    EXPECT_TRUE(IsActive(Sim(), WindowId::About));

    Click("btnPause"); // the window first, then the click
    EXPECT_FALSE(tutorialOpen());
    EXPECT_TRUE(Find("btnPlay").isVisible());

    about->close(); // behind the main window: nothing else changes
    EXPECT_EQ(shell->Windows().Widget(WindowId::About), nullptr);
    EXPECT_FALSE(tutorialOpen());

    Trigger("mnUserGuide");
    shell->Windows().Widget(WindowId::UserGuide)->close(); // in front: back to the main window
    EXPECT_TRUE(tutorialOpen());
    EXPECT_TRUE(Find("btnPause").isVisible());

    Trigger("mnUserGuide");
    shell->Window().close();
    EXPECT_FALSE(Sim().windows.running);
    EXPECT_EQ(shell->Windows().Widget(WindowId::UserGuide), nullptr);
}
