// Selvane: the entry point.
#include "qt/appearance.h"
#include "qt/heap.h"
#include "qt/qt_platform.h"
#include "qt/shell.h"

#include <QApplication>
#include <QDBusConnection>
#include <future>
#include <memory>
#include <thread>

int main(int argc, char** argv)
{
    selvane::ShareOneHeap();
    selvane::PrepareApplication();
    selvane::ChooseWorkingFolder(argv[0]);
    selvane::QtPlatform platform;
    // The toolkit takes its time to start, and so does the bus over which the first window asks for
    // assistive technology.
    std::future painting = std::async(std::launch::async, [&platform] {
        return std::make_unique<selvane::PaintedSimulation>(platform);
    });
    QApplication application(argc, argv);
    const std::jthread connecting([] { QDBusConnection::sessionBus(); });
    selvane::SetUpApplication(application);
    selvane::Shell shell(painting.get(), selvane::Shell::Opens::PictureFirst);
    shell.Show();
    return QApplication::exec();
}
