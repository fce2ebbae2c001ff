// Selvane: the entry point.
#include "qt/appearance.h"
#include "qt/qt_platform.h"
#include "qt/shell.h"
#ifdef _WIN32
#include "win32/platform_win32.h"
#endif

#include <QApplication>

int main(int argc, char** argv)
{
    selvane::PrepareApplication();
    selvane::ChooseWorkingFolder(argv[0]);
#ifdef _WIN32
    selvane::PlatformWin32 platform;
#else
    selvane::QtPlatform platform;
#endif
    QApplication application(argc, argv);
    selvane::SetUpApplication(application);
    selvane::Shell shell(platform);
    shell.Show();
    return QApplication::exec();
}
