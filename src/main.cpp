// Selvane: the entry point.
#include "qt/appearance.h"
#include "qt/qt_platform.h"
#include "qt/shell.h"

#include <QApplication>

int main(int argc, char** argv)
{
    selvane::PrepareApplication();
    selvane::ChooseWorkingFolder(argv[0]);
    selvane::QtPlatform platform;
    QApplication application(argc, argv);
    selvane::SetUpApplication(application);
    selvane::Shell shell(platform);
    shell.Show();
    return QApplication::exec();
}
