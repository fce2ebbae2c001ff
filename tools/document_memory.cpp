// document_memory [LOADS]: loads that many documents through the window (2,000 unless said) and
// fails where the program's resident memory grows by more than 1 MiB. Needs the C library's own
// heap: the sanitizers' one keeps what is freed.
#include "program/program.h"
#include "qt/appearance.h"
#include "qt/qt_platform.h"
#include "qt/shell.h"
#include "replay/action.h"
#include "virtual_screens.h"

#include <QApplication>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace selvane {

namespace {

constexpr int kLoads = 2000, kWarmUp = 200; // the first ones fill fonts' and layouts' caches
constexpr long kMostGrowth = 1024;          // KiB

// Of what is in use: pages of the heap that are only kept for later come and go by themselves.
long ResidentKiB()
{
    malloc_trim(0);
    std::ifstream file("/proc/self/statm");
    long whole = 0, resident = 0;
    file >> whole >> resident;
    return resident * (sysconf(_SC_PAGESIZE) / 1024);
}

// A class that leafs through the tutorials and now and then opens the guide.
class Reader
{
public:
    explicit Reader(Shell& shell) : shell_(shell) {}

    void LoadOne()
    {
        constexpr int kTutorialSteps = 32, kGuideSteps = 8; // the last one closes the guide
        const int step = turn_++ % (kTutorialSteps + kGuideSteps);
        if (step < kTutorialSteps)
            InMainWindow(step / 3 % 2 == 0 ? btnNext2 : btnBack2);
        else
            InGuide(step - kTutorialSteps);
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private:
    void InMainWindow(ButtonId button)
    {
        shell_.Dispatcher().Act(WindowId::Main, [button](Simulation& sim) { Click(sim, button); });
    }

    void InGuide(int step)
    {
        constexpr int kTopics = 7;
        if (step == 0)
            shell_.Dispatcher().Act(WindowId::Main,
                                    [](Simulation& sim) { Choose(sim, mnUserGuide); });
        if (step < kTopics)
            shell_.Dispatcher().Act(WindowId::UserGuide, [step](Simulation& sim) {
                ClickTopic(sim, static_cast<Topic>(step));
            });
        else
            shell_.Windows().Widget(WindowId::UserGuide)->close();
    }

    Shell& shell_;
    int turn_ = 0;
};

int Measure(int loads)
{
    QtPlatform platform;
    Shell shell(platform);
    shell.EventTimers().StandStill();
    shell.Show();
    QApplication::processEvents();
    Reader reader(shell);
    for (int load = 0; load < kWarmUp; ++load) reader.LoadOne();
    const long before = ResidentKiB();
    for (int load = 0; load < loads; ++load) reader.LoadOne();
    const long growth = ResidentKiB() - before;
    std::printf("%d documents: %ld KiB more\n", loads, growth);
    return growth <= kMostGrowth ? 0 : 1;
}

} // namespace

} // namespace selvane

int main(int argc, char** argv)
{
    using selvane::replay::ParseWholeNumber;
    const int loads = argc == 2 ? ParseWholeNumber(argv[1]).value_or(0) : selvane::kLoads;
    if (argc > 2 || loads <= 0) {
        std::fputs("usage: document_memory [LOADS]\n", stderr);
        return 2;
    }
    const selvane::VirtualScreens screens{{1920, 1200, 1}};
    selvane::PrepareApplication();
    QApplication application(argc, argv);
    selvane::SetUpApplication(application);
    selvane::ChooseWorkingFolder(argv[0]);
    return selvane::Measure(loads);
}
