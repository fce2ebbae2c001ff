// The tests that need a window share one application object and screens that nobody sees.
#include "qt/appearance.h"
#include "virtual_screens.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <optional>

namespace {

// In normal running the toolkit has nothing to say. What this platform lacks is no fault of ours.
void FailOnMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    if (!text.startsWith("This plugin does not support"))
        ADD_FAILURE() << "the toolkit says: " << text.toStdString();
}

} // namespace

int main(int argc, char** argv)
{
    QTemporaryDir runtime;
    // The first has room for everything; then finer scales, then small screens.
    std::optional<selvane::VirtualScreens> screens;
    if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == "offscreen")
        screens.emplace(std::initializer_list<selvane::VirtualScreen>{{1920, 1200, 1},
                                                                      {2880, 1800, 1.5},
                                                                      {3840, 2400, 2},
                                                                      {1366, 768, 1},
                                                                      {1280, 720, 1},
                                                                      {1024, 768, 1}});
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
    selvane::PrepareApplication();
    QApplication application(argc, argv);
    selvane::SetUpApplication(application);
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(FailOnMessage);
    return RUN_ALL_TESTS();
}
