#include "documents/system_information.h"

#include "app/control_table.h"

#include <array>
#include <charconv>

namespace selvane {

namespace {

// The registry's own numbers.
constexpr std::uint32_t kLocalMachine = 0x80000002; // HKEY_LOCAL_MACHINE
constexpr std::uint32_t kAllAccess = 0x2003F;
constexpr std::uint32_t kStringType = 1, kNumberType = 4;
constexpr std::uint32_t kBufferSize = 1024;

// One ending character of code 0 is no part of a value.
std::string_view WithoutEndingZero(std::string_view bytes)
{
    if (!bytes.empty() && bytes.back() == '\0') bytes.remove_suffix(1);
    return bytes;
}

// Each byte's own digits, upper case and without leading zeros, from the last byte to the first.
std::string HexadecimalDigits(std::string_view bytes)
{
    std::string digits;
    for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
        std::array<char, 2> two{};
        const auto code = static_cast<unsigned char>(*byte);
        const auto end = std::to_chars(two.data(), two.data() + two.size(), code, 16).ptr;
        for (const char* digit = two.data(); digit != end; ++digit)
            digits += *digit >= 'a' ? static_cast<char>(*digit - 'a' + 'A') : *digit;
    }
    return digits;
}

// The tool's full path; nothing where the registry names none. A path that stands in the
// registry itself is taken at its word.
std::optional<std::string> SystemInformationPath(Platform& platform)
{
    std::string path;
    if (GetKeyValue(platform, kLocalMachine, "SOFTWARE\\Microsoft\\Shared Tools\\MSINFO", "PATH",
                    path))
        return path;
    if (!GetKeyValue(platform, kLocalMachine, "SOFTWARE\\Microsoft\\Shared Tools Location",
                     "MSINFO", path))
        return std::nullopt;
    path += "\\MSINFO32.EXE";
    if (!platform.FileExists(path)) return std::nullopt;
    return path;
}

} // namespace

void StartSysInfo(Platform& platform)
{
    const std::optional<std::string> path = SystemInformationPath(platform);
    if (path && platform.StartProgram(*path)) return;
    platform.ShowMessage("System Information Is Unavailable At This Time", kApplicationTitle);
}

bool GetKeyValue(Platform& platform, std::uint32_t keyRoot, const std::string& keyName,
                 const std::string& subKeyRef, std::string& keyVal)
{
    const std::optional<RegistryKey> key = platform.OpenKey(keyRoot, keyName, kAllAccess);
    std::optional<RegistryValue> read;
    if (key) {
        read = platform.QueryValue(*key, subKeyRef, kBufferSize);
        platform.CloseKey(*key);
    }
    if (!read) {
        keyVal.clear();
        return false;
    }
    const std::string_view value = WithoutEndingZero(read->bytes);
    if (read->type == kStringType) keyVal = value;
    if (read->type == kNumberType) keyVal = "&h" + keyVal + HexadecimalDigits(value);
    return true;
}

} // namespace selvane
