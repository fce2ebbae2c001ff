// The user guide and the about box without their windows: what a click loads, opens or starts.
#include "replay/stage.h"

#include <gtest/gtest.h>
#include <map>

using namespace selvane;
using replay::Stage;

namespace {

const std::string kTool = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
const std::string kToolFolder = "SOFTWARE\\Microsoft\\Shared Tools Location";

// A machine with a registry of text keys; notes what it is asked, in order.
class Machine : public replay::ScriptedPlatform
{
public:
    std::map<std::string, RegistryValue> registry; // by "key|value"
    std::set<std::string> files, startable;
    std::vector<std::string> asked;
    int keysOpen = 0;

    bool StartProgram(const std::string& path) override
    {
        asked.push_back("start " + path);
        return startable.contains(path);
    }
    bool FileExists(const std::string& path) const override { return files.contains(path); }
    void ShowMessage(std::string_view text, std::string_view title) override
    {
        asked.push_back(std::string(title) + ": " + std::string(text));
    }
    std::optional<RegistryKey> OpenKey(std::uint32_t root, const std::string& path,
                                       std::uint32_t access) override
    {
        EXPECT_EQ(root, 0x80000002);
        EXPECT_EQ(access, 0x2003F);
        asked.push_back("key " + path);
        if (!registry.contains(path)) return std::nullopt;
        ++keysOpen;
        opened_ = path;
        return RegistryKey{7};
    }
    std::optional<RegistryValue> QueryValue(RegistryKey key, const std::string& name,
                                            std::uint32_t bufferSize) override
    {
        EXPECT_EQ(key, RegistryKey{7});
        EXPECT_EQ(bufferSize, 1024);
        const auto found = registry.find(opened_ + "|" + name);
        if (found == registry.end()) return std::nullopt;
        return found->second;
    }
    void CloseKey(RegistryKey) override { --keysOpen; }

    void Put(const std::string& key, const std::string& value, std::uint32_t type,
             const std::string& bytes)
    {
        registry[key] = {};
        registry[key + "|" + value] = {type, bytes};
    }

private:
    std::string opened_;
};

struct Desk
{
    replay::RecordingSurface pictures[2]{{800, 600}, {400, 300}};
    Machine machine;
    Simulation sim{pictures[0], pictures[1], machine, TheWiring()};
};

using Strings = std::vector<std::string>;
const std::string kUnavailable = "Selvane: System Information Is Unavailable At This Time";

} // namespace

TEST(AboutBox, CaptionsAreSetAtEachLoadAndOkDropsThem)
{
    Stage desk;
    mnAbout_Click(desk.sim);
    const AboutWindow& box = desk.sim.windows.frmAbout;
    EXPECT_EQ(box.caption, "About Selvane");
    EXPECT_EQ(box.lblTitle, "Selvane");
    EXPECT_EQ(box.lblVersion, "Version " SELVANE_VERSION);
    EXPECT_TRUE(box.lblDisclaimer.ends_with("\n\rhttps://selvane.example.org"));
    frmAbout::cmdOK_Click(desk.sim);
    EXPECT_FALSE(IsLoaded(desk.sim, WindowId::About));
    EXPECT_EQ(box.caption, "");
}

TEST(DocumentLinks, LeadToADocumentOfTheFolderInTheirOwnPane)
{
    Stage desk;
    mnUserGuide_Click(desk.sim);
    const std::string &guide = desk.sim.windows.frmUserGuide.txtHelp.document,
                      &main = desk.sim.controls.txtHelp.document;
    FollowDocumentLink(desk.sim, WindowId::UserGuide, "Energy.rtf");
    FollowDocumentLink(desk.sim, WindowId::Main, "Molniya.rtf");
    for (const char* none : {"../Energy.rtf", "Energy.txt", "Energy.rtf/"})
        FollowDocumentLink(desk.sim, WindowId::Main, none);
    FollowDocumentLink(desk.sim, WindowId::About, "Energy.rtf"); // it is not loaded
    EXPECT_EQ(guide, "Energy.rtf");
    EXPECT_EQ(main, "Molniya.rtf");
}

TEST(SystemInformation, TheFirstValueIsTakenAtItsWord)
{
    Desk desk;
    desk.machine.Put(kTool, "PATH", 1, std::string("C:\\info.exe\0", 12));
    desk.machine.Put(kToolFolder, "MSINFO", 1, "C:\\Tools");
    desk.machine.startable = {"C:\\info.exe"};
    StartSysInfo(desk.sim);
    EXPECT_EQ(desk.machine.asked, (Strings{"key " + kTool, "start C:\\info.exe"}));
    desk.machine.startable.clear();
    desk.machine.asked.clear();
    StartSysInfo(desk.sim);
    EXPECT_EQ(desk.machine.asked, (Strings{"key " + kTool, "start C:\\info.exe", kUnavailable}));
    desk.machine.asked.clear();
    desk.machine.Put(kTool, "PATH", 3, "binary"); // no text: an empty path is started, and fails
    StartSysInfo(desk.sim);
    EXPECT_EQ(desk.machine.asked, (Strings{"key " + kTool, "start ", kUnavailable}));
}

TEST(SystemInformation, TheSecondValueIsAFolderThatMustHoldTheTool)
{
    Desk desk;
    desk.machine.registry[kTool] = {}; // the key is there, its value is not
    StartSysInfo(desk.sim);
    EXPECT_EQ(desk.machine.asked, (Strings{"key " + kTool, "key " + kToolFolder, kUnavailable}));
    desk.machine.Put(kToolFolder, "MSINFO", 1, "C:\\Tools\\");
    const std::string tool = "C:\\Tools\\\\MSINFO32.EXE";
    desk.machine.startable = {tool};
    desk.machine.asked.clear();
    StartSysInfo(desk.sim);
    EXPECT_EQ(desk.machine.asked.back(), kUnavailable);
    desk.machine.files = {tool};
    StartSysInfo(desk.sim);
    EXPECT_EQ(desk.machine.asked.back(), "start " + tool);
    EXPECT_EQ(desk.machine.keysOpen, 0);
}

TEST(Registry, AValueIsReadByItsType)
{
    struct Case
    {
        std::uint32_t type;
        std::string bytes, before, after;
    };
    const std::vector<Case> cases = {
        {1, std::string("text\0", 5), "old", "text"},
        {1, "text", "old", "text"},
        {1, std::string("a\0\0", 3), "", std::string("a\0", 2)}, // one ending zero, no more
        {1, std::string(1024, 'x'), "", std::string(1024, 'x')}, // as long as the buffer
        {1, "", "old", ""},
        {4, std::string("\x03\x00\x00\x00", 4), "", "&h003"}, // the last byte is an ending zero
        {4, std::string("\x78\x56\x34\xFA", 4), "", "&hFA345678"},
        {4, "\x01\x0A", "old", "&holdA1"}, // no leading zeros; what stood there stays in front
        {4, "", "old", "&hold"},
        {2, "%TEMP%", "old", "old"},
    };
    for (const Case& c : cases) {
        Desk desk;
        desk.machine.Put("key", "name", c.type, c.bytes);
        std::string value = c.before;
        EXPECT_TRUE(GetKeyValue(desk.sim, 0x80000002, "key", "name", value));
        EXPECT_EQ(value, c.after) << "type " << c.type;
        EXPECT_FALSE(GetKeyValue(desk.sim, 0x80000002, "key", "other", value));
        EXPECT_EQ(value, "");
        EXPECT_EQ(desk.machine.keysOpen, 0);
    }
}
