// The about box's questions to a real registry, which the test fills, and its start of a program.
#include "../registry_values.h"
#include "documents/system_information.h"
#include "win32/platform_win32.h"

#include <gtest/gtest.h>
#include <vector>
#include <windows.h>

using namespace selvane;

namespace {

constexpr std::uint32_t kLocalMachine = 0x80000002;
const std::string kTool = "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO";
const std::string kToolFolder = "SOFTWARE\\Microsoft\\Shared Tools Location";
const std::string kProgram = "C:\\windows\\system32\\hostname.exe";

// Its message boxes are kept, as nobody is there to press their buttons.
class Machine : public PlatformWin32
{
public:
    std::vector<std::string> messages;
    void ShowMessage(std::string_view text, std::string_view) override
    {
        messages.emplace_back(text);
    }
};

class RealRegistry : public testing::Test
{
protected:
    void SetUp() override { Empty(); }
    void TearDown() override { Empty(); }

    static void Empty()
    {
        RegDeleteTreeA(HKEY_LOCAL_MACHINE, kTool.c_str());
        RegDeleteTreeA(HKEY_LOCAL_MACHINE, kToolFolder.c_str());
    }

    // Stores the bytes as they are. The system adds an ending zero of its own to a text that is
    // followed by one in memory, so something else follows here.
    static void Put(const std::string& path, const std::string& name, DWORD type,
                    const std::string& bytes)
    {
        const std::string followed = bytes + "!";
        HKEY key = nullptr;
        ASSERT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, path.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS,
                                  nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(RegSetValueExA(key, name.c_str(), 0, type,
                                 reinterpret_cast<const BYTE*>(followed.data()),
                                 static_cast<DWORD>(bytes.size())),
                  ERROR_SUCCESS);
        RegCloseKey(key);
    }

    std::vector<std::string> MessagesOfSystemInfo()
    {
        machine_.messages.clear();
        StartSysInfo(machine_);
        return machine_.messages;
    }

    Machine machine_;
};

} // namespace

TEST_F(RealRegistry, ValuesAreReadByTheirType)
{
    std::string text = "old";
    EXPECT_FALSE(GetKeyValue(machine_, kLocalMachine, kTool, "PATH", text)) << "no such key";
    EXPECT_EQ(text, "");
    for (const RegistryValueCase& value : RegistryValueCases()) {
        Put(kTool, "PATH", value.type, value.stored);
        text = "old";
        EXPECT_EQ(GetKeyValue(machine_, kLocalMachine, kTool, "PATH", text), value.isRead)
            << value.what;
        EXPECT_EQ(text, value.text) << value.what;
    }
    EXPECT_FALSE(GetKeyValue(machine_, kLocalMachine, kTool, "OTHER", text)) << "no such value";
    EXPECT_EQ(text, "");
}

TEST_F(RealRegistry, SystemInformationIsStartedFromWhereTheRegistrySays)
{
    using Messages = std::vector<std::string>;
    const Messages none, unavailable{"System Information Is Unavailable At This Time"};
    EXPECT_EQ(MessagesOfSystemInfo(), unavailable);

    // A folder that does not hold the tool, then one that does.
    const std::string folder = "C:\\two words", tool = folder + "\\MSINFO32.EXE";
    Put(kToolFolder, "MSINFO", REG_SZ, folder);
    EXPECT_EQ(MessagesOfSystemInfo(), unavailable);
    CreateDirectoryA(folder.c_str(), nullptr);
    ASSERT_TRUE(CopyFileA(kProgram.c_str(), tool.c_str(), FALSE));
    EXPECT_EQ(MessagesOfSystemInfo(), none);

    // A path of its own goes first, also where nothing is.
    Put(kTool, "PATH", REG_SZ, "C:\\nowhere\\MSINFO32.EXE");
    EXPECT_EQ(MessagesOfSystemInfo(), unavailable);
    Put(kTool, "PATH", REG_SZ, kProgram);
    EXPECT_EQ(MessagesOfSystemInfo(), none);
}
