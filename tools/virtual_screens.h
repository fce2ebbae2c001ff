// Screens for windows that nobody sees, each as large and as finely scaled as is asked for.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>
#include <initializer_list>

namespace selvane {

struct VirtualScreen
{
    int width, height; // before scaling
    double scale;
};

// Side by side, the first being the primary one. To be made before the application object, and to
// be kept as long.
class VirtualScreens
{
public:
    VirtualScreens(std::initializer_list<VirtualScreen> screens)
    {
        const QString path = QDir(folder_.path()).filePath("screens.json");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly)) return;
        QTextStream text(&file);
        int count = 0; // the platform sorts them by name
        int left = 0;
        for (const VirtualScreen& screen : screens) {
            text << (count == 0 ? R"({"screens":[)" : ",")
                 << QString(R"({"name":"screen %1","x":%2,"y":0,"width":%3,"height":%4,)"
                            R"("logicalDpi":96,"logicalBaseDpi":96,"dpr":%5})")
                        .arg(count)
                        .arg(left)
                        .arg(screen.width)
                        .arg(screen.height)
                        .arg(screen.scale);
            ++count;
            left += screen.width; // places are not scaled
        }
        text << "]}";
        qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + path.toUtf8());
    }

private:
    QTemporaryDir folder_;
};

} // namespace selvane
