#include "win32/platform_win32.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <windows.h>

namespace selvane {

namespace {

// A handle's number, and the handle of a number: keys travel through the core as numbers.
std::uint64_t Number(HKEY key)
{
    return reinterpret_cast<std::uintptr_t>(key);
}

HKEY Handle(RegistryKey key)
{
    return reinterpret_cast<HKEY>(static_cast<std::uintptr_t>(key));
}

// The predefined roots are 32-bit numbers, widened with their sign.
HKEY Root(std::uint32_t root)
{
    return reinterpret_cast<HKEY>(static_cast<std::intptr_t>(static_cast<std::int32_t>(root)));
}

} // namespace

LocalTime PlatformWin32::Now() const
{
    SYSTEMTIME now{};
    GetLocalTime(&now);
    return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond};
}

std::optional<std::string> PlatformWin32::ReadDocument(std::string_view name) const
{
    std::error_code unread;
    if (!std::filesystem::is_regular_file(name, unread)) return std::nullopt;
    std::ifstream file{std::string{name}, std::ios::binary};
    std::string bytes{std::istreambuf_iterator<char>{file}, {}};
    if (file.bad() || !file.is_open()) return std::nullopt;
    return bytes;
}

void PlatformWin32::OpenLink(std::string_view target)
{
    ShellExecuteA(static_cast<HWND>(owner_), "open", std::string{target}.c_str(), nullptr, "", 0);
}

// The path is given apart from the command line, so that blanks in it part nothing.
bool PlatformWin32::StartProgram(const std::string& path)
{
    STARTUPINFOA look{};
    look.cb = sizeof look;
    look.dwFlags = STARTF_USESHOWWINDOW;
    look.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION started{};
    std::string commandLine = '"' + path + '"';
    if (!CreateProcessA(path.c_str(), commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, &look, &started))
        return false;
    CloseHandle(started.hThread);
    CloseHandle(started.hProcess);
    return true;
}

bool PlatformWin32::FileExists(const std::string& path) const
{
    const DWORD attributes = GetFileAttributesA(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

void PlatformWin32::ShowMessage(std::string_view text, std::string_view title)
{
    MessageBoxA(static_cast<HWND>(owner_), std::string{text}.c_str(), std::string{title}.c_str(),
                MB_OK);
}

std::optional<RegistryKey> PlatformWin32::OpenKey(std::uint32_t root, const std::string& path,
                                                  std::uint32_t access)
{
    HKEY key = nullptr;
    if (RegOpenKeyExA(Root(root), path.c_str(), 0, access, &key) != ERROR_SUCCESS)
        return std::nullopt;
    return RegistryKey{Number(key)};
}

std::optional<RegistryValue> PlatformWin32::QueryValue(RegistryKey key, const std::string& name,
                                                       std::uint32_t bufferSize)
{
    std::string buffer(bufferSize, '\0');
    DWORD type = 0, size = bufferSize;
    if (RegQueryValueExA(Handle(key), name.c_str(), nullptr, &type,
                         reinterpret_cast<BYTE*>(buffer.data()), &size) != ERROR_SUCCESS)
        return std::nullopt;
    buffer.resize(size);
    return RegistryValue{static_cast<std::uint32_t>(type), std::move(buffer)};
}

void PlatformWin32::CloseKey(RegistryKey key)
{
    RegCloseKey(Handle(key));
}

} // namespace selvane
