#include "qt/appearance.h"

#include "qt/application_icon.h"

#include <QApplication>
#include <QPalette>
#include <QPixmapCache>
#include <QStyle>
#include <QToolTip>
#include <clocale>

namespace selvane {

namespace {

// The style's cache names its pictures after each window's own palette, so that windows opened
// again and again would fill the toolkit's 10 MiB. All that one window shows takes a quarter of
// this.
constexpr int kStylePicturesKiB = 2048;

// Every colour is named, so that a dark desktop changes none of them.
QPalette LightPalette()
{
    const QColor face = ColourOf(kWindowColour);
    const QColor ink = Qt::black;
    const QColor faded(120, 120, 120);
    QPalette palette(face);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, ink);
    palette.setColor(QPalette::Window, face);
    palette.setColor(QPalette::Button, QColor(239, 239, 239));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(245, 245, 245));
    palette.setColor(QPalette::ToolTipBase, QColor(255, 255, 225));
    palette.setColor(QPalette::Highlight, kFocusColour);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, kLinkColour);
    palette.setColor(QPalette::LinkVisited, kLinkColour);
    palette.setColor(QPalette::PlaceholderText, faded);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faded);
    return palette;
}

QtMessageHandler toolkitsOwnHandler = nullptr;

// Remarks of the toolkit about the machine that are no concern of the user's: a root shell has no
// runtime folder, and screens that nobody sees know no size hints and raise no window. All others
// pass.
void PassMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    for (const char* const remark :
         {"QStandardPaths: XDG_RUNTIME_DIR not set", "This plugin does not support"})
        if (text.startsWith(remark)) return;
    toolkitsOwnHandler(type, context, text);
}

} // namespace

void PrepareApplication()
{
    toolkitsOwnHandler = qInstallMessageHandler(PassMessage);
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    // The desktop's theme would bring its own palette, fonts and messages.
    QApplication::setDesktopSettingsAware(false);
    // The menu bar is the window's; a desktop that shows it elsewhere is not asked.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
}

void SetUpApplication(QApplication& application)
{
    std::setlocale(LC_NUMERIC, "C");
    application.setApplicationName("selvane");
    application.setDesktopFileName("org.example.selvane");
    application.setLayoutDirection(Qt::LeftToRight);
    application.setStyle("Fusion");
    application.setPalette(LightPalette());
    application.setFont(FontOf(kTextPoints));
    application.setWindowIcon(ApplicationIcon());
    QPixmapCache::setCacheLimit(kStylePicturesKiB);
    QToolTip::setPalette(LightPalette());
    QToolTip::setFont(FontOf(kTextPoints));
}

QFont FontOf(double points, Weight weight, Underline underline)
{
    QFont font("Carlito");
    font.setPixelSize(qRound(points * 4 / 3));
    font.setBold(weight == Weight::Bold);
    font.setUnderline(underline == Underline::Yes);
    return font;
}

QString TextOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace selvane
