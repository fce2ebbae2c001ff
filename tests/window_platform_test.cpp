// What the window's program asks of the desktop: documents, programs, the time, the shapes of
// words, and the one key of a registry that there is not.
#include "qt/qt_platform.h"
#include "qt/text_masks.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace selvane {
namespace {

class DesktopTest : public testing::Test
{
protected:
    DesktopTest() { QDir::setCurrent(folder.path()); }
    ~DesktopTest() override { QDir::setCurrent(before); }

    static void Write(const QString& name, const QByteArray& bytes, qint64 size = -1)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        if (size >= 0) file.resize(size);
    }

    const QString before = QDir::currentPath();
    const QTemporaryDir folder;
    QtPlatform desktop;
};

TEST_F(DesktopTest, ReadsPlainDocumentsOfTheWorkingFolderOnly)
{
    Write("Energy.RTF", "{\\rtf1 a}");
    Write("empty.rtf", "");
    Write("large.rtf", "{", (32 << 20) + 1);
    QDir().mkdir("folder.rtf");
    QDir().mkdir("below");
    Write("below/inner.rtf", "{}");

    EXPECT_EQ(desktop.ReadDocument("energy.rtf"), desktop.ReadDocument("Energy.RTF"));
    EXPECT_TRUE(desktop.ReadDocument("energy.rtf").value_or("").starts_with("{\\rtf1 a"));
    EXPECT_EQ(desktop.ReadDocument("empty.rtf"), "");
    for (const char* name : {"", "missing.rtf", "large.rtf", "folder.rtf", "below/inner.rtf"})
        EXPECT_FALSE(desktop.ReadDocument(name)) << name;
}

TEST_F(DesktopTest, TheWorkingFolderStaysWhereItHoldsTheFirstDocument)
{
    ChooseWorkingFolder("selvane");
    const QString found = QDir::currentPath();
    EXPECT_NE(found, QDir(folder.path()).canonicalPath()) << "those of the build are found";
    EXPECT_TRUE(QFile::exists("Help(20).rtf"));

    QDir::setCurrent(folder.path());
    Write("Help(20).rtf", "{}");
    ChooseWorkingFolder("selvane");
    EXPECT_EQ(QDir::current(), QDir(folder.path()));
}

TEST_F(DesktopTest, KnowsTheTimeOfTheClock)
{
    const QDateTime earliest = QDateTime::currentDateTime();
    const LocalTime now = desktop.Now();
    const QDateTime local({now.year, now.month, now.day}, {now.hour, now.minute, now.second});
    EXPECT_GE(local, earliest.addSecs(-1));
    EXPECT_LE(local, QDateTime::currentDateTime());
}

TEST_F(DesktopTest, StartsProgramsByTheirPathOnTheirOwn)
{
    Write("program", "#!/bin/sh\ntouch started\n");
    const QString program = folder.filePath("program");
    EXPECT_FALSE(desktop.StartProgram(program.toStdString())) << "not allowed to run";
    QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_TRUE(desktop.FileExists(program.toStdString()));
    EXPECT_FALSE(desktop.FileExists(folder.path().toStdString())) << "a folder is no program";
    EXPECT_TRUE(desktop.StartProgram(program.toStdString()));
    EXPECT_TRUE(QTest::qWaitFor([] { return QFile::exists("started"); }));
}

TEST_F(DesktopTest, AnswersTheKeyOfTheSystemInformationToolAlone)
{
    Write("hardinfo", "#!/bin/sh\n");
    QFile::setPermissions("hardinfo", QFile::ReadOwner | QFile::ExeOwner);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toLocal8Bit());
    EXPECT_FALSE(desktop.OpenKey(0, "SOFTWARE\\Microsoft\\Windows", 0));
    const auto key = desktop.OpenKey(0, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", 0);
    ASSERT_TRUE(key);
    const auto value = desktop.QueryValue(*key, "PATH", 1024);
    EXPECT_EQ(value ? value->bytes : "", folder.filePath("hardinfo").toStdString());
    EXPECT_FALSE(desktop.QueryValue(*key, "PATH", 4)) << "longer than the buffer";
    EXPECT_FALSE(desktop.QueryValue(*key, "NAME", 1024));
    qputenv("PATH", path);
}

TEST(TextMasks, GrowWithTheScale)
{
    QtTextMasks texts;
    const raster::Mask plain = texts.MaskOf("Celestial Equator", 1);
    const int width = plain.width, height = plain.height;
    for (const double scale : {1.25, 2.0, 3.0}) {
        const raster::Mask larger = texts.MaskOf("Celestial Equator", scale);
        EXPECT_NEAR(larger.width, scale * width, scale);
        EXPECT_NEAR(larger.height, scale * height, scale);
    }
}

} // namespace
} // namespace selvane
