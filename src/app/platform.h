// What the program has to do with the machine it runs on, apart from the screen. A handler asks for
// things by appending requests to its simulation; once it has returned, CarryOut of program.h
// carries them out on the platform.
#pragma once

#include "app/control_ids.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace selvane {

// Local date and time, whole seconds, as the system clock shows them.
struct LocalTime
{
    int year = 2000, month = 1, day = 1;  // month 1 to 12
    int hour = 0, minute = 0, second = 0; // 24-hour clock
};

// What a handler asks of the machine.
struct Request
{
    enum class Kind {
        LoadDocument,          // into the pane of that window
        OpenLink,              // a web or mail link, with the user's own program
        StartSystemInformation // the machine's own tool; a message where there is none
    };

    Kind kind;
    std::string target{}; // the document's name, or the link
    WindowId window = WindowId::Main;
};

// One value read from the registry: its type and the bytes written into the caller's buffer.
struct RegistryValue
{
    std::uint32_t type = 0;
    std::string bytes; // at most the buffer's size
};

enum class RegistryKey : std::uint64_t {}; // an open key

// Each call returns at once: what could block or open a window is left to the shell's event loop.
class Platform
{
public:
    virtual ~Platform() = default;

    virtual LocalTime Now() const = 0;

    // The bytes of the document of that name in the working folder, upper and lower case being the
    // same; nothing when it is missing, no plain file or cannot be read.
    virtual std::optional<std::string> ReadDocument(std::string_view name) const = 0;

    // Opens a web or mail link with the user's own program; a failure is not reported.
    virtual void OpenLink(std::string_view target) = 0;

    // Starts a program by its full path, on its own. False when it cannot be started.
    virtual bool StartProgram(const std::string& path) = 0;

    virtual bool FileExists(const std::string& path) const = 0;

    // A message with an OK button and no icon.
    virtual void ShowMessage(std::string_view text, std::string_view title) = 0;

    // The registry. A desktop without one opens no key.
    virtual std::optional<RegistryKey> OpenKey(std::uint32_t /*root*/, const std::string& /*path*/,
                                               std::uint32_t /*access*/)
    {
        return std::nullopt;
    }
    // Nothing when the value cannot be read, or is longer than the buffer.
    virtual std::optional<RegistryValue>
    QueryValue(RegistryKey /*key*/, const std::string& /*name*/, std::uint32_t /*bufferSize*/)
    {
        return std::nullopt;
    }
    virtual void CloseKey(RegistryKey /*key*/) {}

protected:
    Platform() = default;
    Platform(const Platform&) = default; // where there is no more to it than values
    Platform& operator=(const Platform&) = default;
};

} // namespace selvane
