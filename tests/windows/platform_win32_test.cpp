// The about box's questions to a real registry, which the test fills, and its start of a program.
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

    using Answer = std::pair<bool, std::string>; // was it read, and what the text is then

    Answer Read(const std::string& path, const std::string& name)
    {
        std::string value = "before";
        const bool read = GetKeyValue(machine_, kLocalMachine, path, name, value);
        return {read, value};
    }

    std::vector<std::string> MessagesOfSystemInfo()
    {
        machine_.messages.clear();
        StartSysInfo(machine_);
        return machine_.messages;
    }

private:
    Machine machine_;
};

} // namespace

TEST_F(RealRegistry, ValuesAreReadByTheirType)
{
    using namespace std::string_literals;
    struct Row
    {
        const char* what;
        DWORD type;
        std::string stored;
        Answer expected;
    };
    const std::string longest(1024, 'x');
    const Row rows[] = {
        {"text with an ending zero", REG_SZ, "C:\\a.exe\0"s, {true, "C:\\a.exe"}},
        {"text without one", REG_SZ, "C:\\a.exe", {true, "C:\\a.exe"}},
        {"empty text", REG_SZ, "\0"s, {true, ""}},
        {"1023 characters and a zero",
         REG_SZ,
         longest.substr(1) + "\0"s,
         {true, longest.substr(1)}},
        {"exactly 1024 characters", REG_SZ, longest, {true, longest}},
        {"1024 characters and a zero", REG_SZ, longest + "\0"s, {false, ""}},
        {"1025 characters", REG_SZ, longest + "x", {false, ""}},
        {"a number, added to what was there",
         REG_DWORD,
         "\x04\x03\xB2\xA1"s,
         {true, "&hbeforeA1B234"}},
        {"a number that ends in a zero", REG_DWORD, "\x05\0\0\0"s, {true, "&hbefore005"}},
        {"bytes", REG_BINARY, "\x01\x02"s, {true, "before"}},
    };
    for (const Row& row : rows) {
        Put(kTool, "PATH", row.type, row.stored);
        EXPECT_EQ(Read(kTool, "PATH"), row.expected) << row.what;
    }
}

TEST_F(RealRegistry, WhatIsMissingReadsAsNothing)
{
    EXPECT_EQ(Read(kTool, "PATH"), Answer(false, ""));
    Put(kTool, "OTHER", REG_SZ, "text");
    EXPECT_EQ(Read(kTool, "PATH"), Answer(false, ""));
}

TEST_F(RealRegistry, SystemInformationIsStartedFromWhereTheRegistrySays)
{
    const std::vector<std::string> unavailable{"System Information Is Unavailable At This Time"};
    EXPECT_EQ(MessagesOfSystemInfo(), unavailable);

    // A folder that does not hold the tool, then one that does.
    const std::string folder = "C:\\two words", tool = folder + "\\MSINFO32.EXE";
    Put(kToolFolder, "MSINFO", REG_SZ, folder);
    EXPECT_EQ(MessagesOfSystemInfo(), unavailable);
    CreateDirectoryA(folder.c_str(), nullptr);
    ASSERT_TRUE(CopyFileA(kProgram.c_str(), tool.c_str(), FALSE));
    EXPECT_EQ(MessagesOfSystemInfo(), std::vector<std::string>{});

    // A path of its own goes first, also where nothing is.
    Put(kTool, "PATH", REG_SZ, "C:\\nowhere\\MSINFO32.EXE");
    EXPECT_EQ(MessagesOfSystemInfo(), unavailable);
    Put(kTool, "PATH", REG_SZ, kProgram);
    EXPECT_EQ(MessagesOfSystemInfo(), std::vector<std::string>{});
}
