// The user guide and the about box without their windows: what a click loads, opens or starts.
#include "app/help_pane.h"
#include "documents/system_information.h"
#include "registry_values.h"
#include "replay/stage.h"

#include <gtest/gtest.h>
#include <map>

using namespace selvane;
using replay::Stage;

namespace {

using Strings = std::vector<std::string>;

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
        if (found == registry.end() || found->second.bytes.size() > bufferSize) return std::nullopt;
        return found->second;
    }
    void CloseKey(RegistryKey) override { --keysOpen; }

    // All that starting the tool asks.
    Strings StartTool()
    {
        asked.clear();
        StartSysInfo(*this);
        return asked;
    }

    void Put(const std::string& key, const std::string& value, std::uint32_t type,
             const std::string& bytes)
    {
        registry[key] = {};
        registry[key + "|" + value] = {type, bytes};
    }

private:
    std::string opened_;
};

const std::string kUnavailable = "Selvane: System Information Is Unavailable At This Time";

} // namespace

TEST(AboutBox, SaysWhereToFindTheMaker)
{
    Stage desk;
    mnAbout_Click(desk.sim);
    EXPECT_TRUE(
        desk.sim.windows.frmAbout.lblDisclaimer.ends_with("\n\rhttps://selvane.example.org"));
    frmAbout::cmdOK_Click(desk.sim);
    EXPECT_EQ(desk.sim.windows.frmAbout.caption, "");
}

TEST(DocumentLinks, LeadToADocumentOfTheFolderInTheirOwnPaneOrToTheWeb)
{
    Stage desk;
    mnUserGuide_Click(desk.sim);
    const std::string &guide = desk.sim.windows.frmUserGuide.txtHelp.document,
                      &main = desk.sim.controls.txtHelp.document;
    const auto follow = [&](WindowId window, std::string_view link) {
        FollowLink(desk.sim, window, link);
        CarryOut(desk.sim, desk.platform);
    };
    follow(WindowId::UserGuide, "ENERGY.RTF");
    follow(WindowId::Main, "./Help%2831%29.rtf#top");
    follow(WindowId::About, "Energy.rtf"); // it is not loaded
    EXPECT_EQ(guide, "ENERGY.RTF");
    EXPECT_EQ(main, "Help(31).rtf");
    EXPECT_EQ(desk.platform.Calls(), 0U);

    for (const char* none :
         {"../Energy.rtf", "%2e%2e%2fEnergy.rtf", "Energy.txt", "Energy.rtf/", ".rtf",
          "C:Energy.rtf", "..\\Energy.rtf", "#Energy", "file:///home/Energy.rtf",
          "mailto:a@example.org", "javascript:1", "https:", "https://", "https://:80/a",
          "https://u@:80/a", "http://a b.example.org", "%", "%4"})
        follow(WindowId::Main, none);
    EXPECT_EQ(main, "Help(31).rtf");
    EXPECT_EQ(desk.platform.Calls(), 0U);

    for (const char* web :
         {"https://a.example.org/b?c=1", "HTTP://a.example.org", "http://u@a.org:8"}) {
        follow(WindowId::Main, web);
        EXPECT_EQ(desk.platform.LastCall(), std::string("open ") + web);
    }
}

// A pane shows what was asked for last and could be read; what was asked for a pane that has been
// emptied or closed since is forgotten.
TEST(Documents, AreLoadedInTheOrderInWhichTheyWereAskedFor)
{
    Stage desk;
    const HelpPane& pane = desk.sim.controls.txtHelp;
    desk.platform.missing = {"Molniya.rtf"};
    LoadDocument(desk.sim, WindowId::Main, "Energy.rtf");
    LoadDocument(desk.sim, WindowId::Main, "Molniya.rtf");
    EXPECT_EQ(pane.document, "Help(20).rtf");
    CarryOut(desk.sim, desk.platform);
    EXPECT_EQ(pane.document, "Energy.rtf");

    LoadDocument(desk.sim, WindowId::Main, "SunSynch.rtf");
    LoadDocument(desk.sim, WindowId::UserGuide, "Energy.rtf");
    EmptyPane(desk.sim, WindowId::Main);
    CarryOut(desk.sim, desk.platform);
    EXPECT_EQ(pane.text, nullptr);
    EXPECT_EQ(desk.sim.windows.frmUserGuide.txtHelp.text, nullptr) << "the guide is not open";
    EXPECT_TRUE(desk.sim.requests.empty());
}

TEST(SystemInformation, TheFirstValueIsTakenAtItsWord)
{
    Machine machine;
    machine.Put(kTool, "PATH", 1, std::string("C:\\info.exe\0", 12));
    machine.Put(kToolFolder, "MSINFO", 1, "C:\\Tools");
    machine.startable = {"C:\\info.exe"};
    EXPECT_EQ(machine.StartTool(), (Strings{"key " + kTool, "start C:\\info.exe"}));
    machine.startable.clear();
    EXPECT_EQ(machine.StartTool(), (Strings{"key " + kTool, "start C:\\info.exe", kUnavailable}));
    machine.Put(kTool, "PATH", 3, "binary"); // no text: an empty path is started, and fails
    EXPECT_EQ(machine.StartTool(), (Strings{"key " + kTool, "start ", kUnavailable}));
}

TEST(SystemInformation, TheSecondValueIsAFolderThatMustHoldTheTool)
{
    const std::string tool = "C:\\Tools\\\\MSINFO32.EXE";
    Machine machine;
    machine.registry[kTool] = {}; // the key is there, its value is not
    machine.startable = {tool};
    const Strings nothing{"key " + kTool, "key " + kToolFolder, kUnavailable};
    EXPECT_EQ(machine.StartTool(), nothing);
    machine.Put(kToolFolder, "MSINFO", 1, "C:\\Tools\\");
    EXPECT_EQ(machine.StartTool(), nothing);
    machine.files = {tool};
    EXPECT_EQ(machine.StartTool().back(), "start " + tool);
    EXPECT_EQ(machine.keysOpen, 0);
}

TEST(Registry, AValueIsReadByItsType)
{
    auto cases = RegistryValueCases();
    cases.push_back({"no bytes", 1, "", true, ""});
    cases.push_back({"two ending zeros", 1, std::string("a\0\0", 3), true, std::string("a\0", 2)});
    for (const RegistryValueCase& value : cases) {
        Machine machine;
        machine.Put("key", "name", value.type, value.stored);
        std::string text = "old";
        EXPECT_EQ(GetKeyValue(machine, 0x80000002, "key", "name", text), value.isRead)
            << value.what;
        EXPECT_EQ(text, value.text) << value.what;
        EXPECT_FALSE(GetKeyValue(machine, 0x80000002, "key", "other", text));
        EXPECT_EQ(text, "");
        EXPECT_EQ(machine.keysOpen, 0);
    }
}
