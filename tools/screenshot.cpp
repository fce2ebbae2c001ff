// screenshot OUT.png [--scale S] [--script FILE] [--window main|guide|about]
// Renders one of the program's windows to a picture, without a display. The script's lines are
// those of replay; timers tick only where it says so, and the clock stands still.
#include "program/program.h"
#include "qt/appearance.h"
#include "qt/qt_platform.h"
#include "qt/shell.h"
#include "replay/action.h"
#include "virtual_screens.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <cstdio>
#include <string>

namespace selvane {

namespace {

// The desktop, with a clock that the script sets, and that opens and starts nothing.
class StillPlatform : public QtPlatform
{
public:
    LocalTime now{2012, 7, 28, 14, 48, 46};

    LocalTime Now() const override { return now; }
    void OpenLink(std::string_view) override {}
    bool StartProgram(const std::string&) override { return true; }
    void ShowMessage(std::string_view, std::string_view) override {}
};

struct Driver
{
    Dispatch& dispatcher;
    StillPlatform& platform;

    void operator()(const replay::ScrollTo& to) const
    {
        Do([to](Simulation& sim) { return Scroll(sim, to.bar, to.value); });
    }
    void operator()(const replay::ArrowClick& on) const
    {
        Do([on](Simulation& sim) { return StepBar(sim, on.bar, on.direction); });
    }
    void operator()(const replay::PageClick& on) const
    {
        Do([on](Simulation& sim) { return PageBar(sim, on.bar, on.direction); });
    }
    void operator()(const replay::TypeText& typed) const
    {
        Do([typed](Simulation& sim) { return Type(sim, typed.field, typed.text); });
    }
    void operator()(const replay::ButtonClick& on) const
    {
        Do([on](Simulation& sim) { return Click(sim, on.button); });
    }
    void operator()(const replay::MenuChoice& on) const
    {
        Do([on](Simulation& sim) { return Choose(sim, on.item); });
    }
    void operator()(const replay::LabelClick& on) const
    {
        Do([on](Simulation& sim) { return ClickLabel(sim, on.label); });
    }
    void operator()(const replay::TimerTick& of) const { dispatcher.Tick(of.timer); }
    void operator()(const replay::Activation& of) const
    {
        Do([of](Simulation& sim) { return ActivateByUser(sim, of.window); });
    }
    void operator()(const replay::Closing& of) const
    {
        Do([of](Simulation& sim) { return CloseByUser(sim, of.window); });
    }
    void operator()(const replay::TopicClick& on) const
    {
        Do([on](Simulation& sim) { return ClickTopic(sim, on.topic); });
    }
    void operator()(const replay::AboutClick& on) const
    {
        Do([on](Simulation& sim) { return ClickAbout(sim, on.control); });
    }
    void operator()(const replay::ClockSetting& to) const { platform.now = to.time; }
    void operator()(const replay::DocumentChange&) const {} // the real documents are shown

private:
    template <typename Event> void Do(Event event) const
    {
        dispatcher.Report([event](Simulation& sim) { event(sim); });
    }
};

struct Order
{
    QString out, script;
    WindowId window = WindowId::Main;
    double scale = 1;
};

std::optional<WindowId> WindowNamed(const QString& name)
{
    if (name == "main") return WindowId::Main;
    if (name == "guide") return WindowId::UserGuide;
    if (name == "about") return WindowId::About;
    return std::nullopt;
}

std::optional<Order> Read(const QStringList& words)
{
    Order order;
    for (qsizetype at = 0; at < words.size(); ++at) {
        const QString& word = words[at];
        if (!word.startsWith("--")) {
            order.out = word;
            continue;
        }
        if (++at == words.size()) return std::nullopt;
        bool known = true;
        if (word == "--scale")
            order.scale = words[at].toDouble(&known);
        else if (word == "--script")
            order.script = words[at];
        else if (const auto window = WindowNamed(words[at]); word == "--window" && window)
            order.window = *window;
        else
            known = false;
        if (!known) return std::nullopt;
    }
    return order.out.isEmpty() || order.scale <= 0 ? std::nullopt : std::optional(order);
}

bool Play(const QString& script, const Driver& driver)
{
    QFile file(script);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(script));
        return false;
    }
    while (!file.atEnd()) {
        const std::string line = file.readLine().trimmed().toStdString();
        if (replay::IsRemark(line)) continue;
        const std::optional<replay::Action> action = replay::ParseAction(line);
        if (!action) {
            std::fprintf(stderr, "no action: %s\n", line.c_str());
            return false;
        }
        std::visit(driver, *action);
    }
    return true;
}

int Render(const Order& order)
{
    StillPlatform platform;
    Shell shell(platform);
    shell.EventTimers().StandStill();
    shell.Show();
    if (!order.script.isEmpty() && !Play(order.script, {shell.Dispatcher(), platform})) return 2;
    if (order.window == WindowId::UserGuide)
        shell.Dispatcher().Report([](Simulation& sim) { Choose(sim, mnUserGuide); });
    if (order.window == WindowId::About)
        shell.Dispatcher().Report([](Simulation& sim) { Choose(sim, mnAbout); });
    QApplication::processEvents();
    QWidget* const window = shell.Windows().Widget(order.window);
    return window && window->grab().save(order.out) ? 0 : 2;
}

} // namespace

} // namespace selvane

int main(int argc, char** argv)
{
    const auto order = selvane::Read(QStringList(argv + 1, argv + argc));
    if (!order) {
        std::fputs("usage: screenshot OUT.png [--scale S] [--script FILE] "
                   "[--window main|guide|about]\n",
                   stderr);
        return 2;
    }
    const selvane::VirtualScreens screens{{1920, 1200, order->scale}};
    selvane::PrepareApplication();
    QApplication application(argc, argv);
    selvane::SetUpApplication(application);
    const QString folder = QDir::currentPath();
    selvane::ChooseWorkingFolder(argv[0]);
    selvane::Order absolute = *order;
    absolute.out = QDir(folder).absoluteFilePath(order->out);
    if (!order->script.isEmpty()) absolute.script = QDir(folder).absoluteFilePath(order->script);
    return selvane::Render(absolute);
}
