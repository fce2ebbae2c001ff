// Selvane: the entry point.
#include "qt/appearance.h"
#include "qt/heap.h"
#include "qt/qt_platform.h"
#include "qt/shell.h"

#include <QApplication>
#include <QDBusConnection>
#include <thread>

int main(int argc, char** argv)
{
    selvane::ShareOneHeap();
    selvane::PrepareApplication();
    selvane::ChooseWorkingFolder(argv[0]);
    selvane::QtPlatform platform;
    QApplication application(argc, argv);
    // The first window asks for assistive technology over the bus, which takes its time to answer.
    const std::jthread connecting([] { QDBusConnection::sessionBus(); });
    selvane::SetUpApplication(application);
    selvane::Shell shell(platform);
    shell.Show();
    return QApplication::exec();
}
