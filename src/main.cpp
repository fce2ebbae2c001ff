// Selvane: the entry point.
#include "qt/appearance.h"
#include "qt/fonts_ahead.h"
#include "qt/qt_platform.h"
#include "qt/shell.h"

#include <QApplication>

namespace {

QtMessageHandler tellAsUsual = nullptr;

// The toolkit looks for a display in the user's run-time folder and complains where a desktop has
// none, which is no fault of the user's.
void TellButThat(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith("QStandardPaths: XDG_RUNTIME_DIR not set"))
        tellAsUsual(type, context, message);
}

} // namespace

int main(int argc, char** argv)
{
    tellAsUsual = qInstallMessageHandler(TellButThat);
    selvane::PrepareApplication();
    selvane::FontsAhead fonts;
    QApplication application(argc, argv);
    selvane::SetUpApplication(application);
    selvane::ChooseWorkingFolder();
    selvane::QtPlatform platform;
    fonts.Wait();
    selvane::Shell shell(platform, selvane::Shell::Opens::PictureFirst);
    shell.Show();
    return QApplication::exec();
}
