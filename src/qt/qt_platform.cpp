#include "qt/qt_platform.h"

#include "qt/appearance.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <filesystem>

namespace selvane {

namespace {

constexpr char kFirstDocument[] = "Help(20).rtf";
constexpr RegistryKey kToolKey{1};
constexpr std::uint32_t kStringType = 1; // the registry's own number

bool HoldsDocuments(const QString& folder)
{
    return QFileInfo(folder, kFirstDocument).isFile();
}

// By the system's own word where it has one, otherwise by the name it was started with.
std::filesystem::path ProgramFolder(const char* program)
{
    std::error_code failure;
    std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", failure);
    if (failure) path = std::filesystem::absolute(program, failure);
    return path.parent_path();
}

// Installed beside the program's folder; built, in a folder above it.
QStringList DocumentFolders(const std::filesystem::path& programFolder)
{
    QDir folder(programFolder);
    QStringList folders{folder.filePath("../share/help/C/selvane")};
    do folders += folder.filePath("help");
    while (folder.cdUp());
    return folders;
}

// The name of that file in the working folder, however its letters are written there.
QString NameOnDisk(const QString& name)
{
    if (QFileInfo::exists(name)) return name;
    for (const QString& file : QDir().entryList(QDir::Files))
        if (file.compare(name, Qt::CaseInsensitive) == 0) return file;
    return name;
}

QString SystemInformationTool()
{
    for (const char* const name : {"hardinfo2", "hardinfo", "kinfocenter", "mate-system-monitor",
                                   "gnome-system-monitor", "plasma-systemmonitor", "ksysguard"}) {
        const QString path = QStandardPaths::findExecutable(name);
        if (!path.isEmpty()) return path;
    }
    return {};
}

} // namespace

void ChooseWorkingFolder(const char* program)
{
    if (HoldsDocuments(".")) return;
    for (const QString& folder : DocumentFolders(ProgramFolder(program)))
        if (HoldsDocuments(folder)) {
            QDir::setCurrent(folder);
            return;
        }
}

LocalTime QtPlatform::Now() const
{
    const QDateTime now = QDateTime::currentDateTime();
    const QDate date = now.date();
    const QTime time = now.time();
    return {date.year(), date.month(), date.day(), time.hour(), time.minute(), time.second()};
}

std::optional<std::string> QtPlatform::ReadDocument(std::string_view name) const
{
    constexpr qint64 kLargest = 32 << 20;
    const QString bare = TextOf(name);
    if (bare.isEmpty() || bare.contains('/')) return std::nullopt;
    // A pipe or a device of that name is not even opened.
    const QFileInfo info(NameOnDisk(bare));
    if (!info.isFile() || info.size() > kLargest) return std::nullopt;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    const QByteArray bytes = file.read(info.size()); // all that is asked for is set aside
    if (file.error() != QFileDevice::NoError) return std::nullopt;
    return bytes.toStdString();
}

void QtPlatform::OpenLink(std::string_view target)
{
    const QUrl link(TextOf(target));
    QMetaObject::invokeMethod(
        this, [link] { QDesktopServices::openUrl(link); }, Qt::QueuedConnection);
}

bool QtPlatform::StartProgram(const std::string& path)
{
    return QProcess::startDetached(QString::fromStdString(path), {});
}

bool QtPlatform::FileExists(const std::string& path) const
{
    return QFileInfo(QString::fromStdString(path)).isFile();
}

void QtPlatform::ShowMessage(std::string_view text, std::string_view title)
{
    const QString words = TextOf(text);
    const QString heading = TextOf(title);
    const auto show = [words, heading] {
        auto* const box = new QMessageBox(QMessageBox::NoIcon, heading, words, QMessageBox::Ok,
                                          QApplication::activeWindow());
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->open(); // the flight goes on behind it
    };
    QMetaObject::invokeMethod(this, show, Qt::QueuedConnection);
}

std::optional<RegistryKey> QtPlatform::OpenKey(std::uint32_t, const std::string& path,
                                               std::uint32_t)
{
    if (path != "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO") return std::nullopt;
    return kToolKey;
}

std::optional<RegistryValue> QtPlatform::QueryValue(RegistryKey key, const std::string& name,
                                                    std::uint32_t bufferSize)
{
    if (key != kToolKey || name != "PATH") return std::nullopt;
    const std::string path = SystemInformationTool().toStdString();
    if (path.empty() || path.size() > bufferSize) return std::nullopt;
    return RegistryValue{kStringType, path};
}

} // namespace selvane
