// What the registry can hold and how the about box reads it, for a made-up registry and a real one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace selvane {

struct RegistryValueCase
{
    const char* what;
    std::uint32_t type;
    std::string stored;
    bool isRead;
    std::string text; // afterwards, where "old" stood before
};

inline std::vector<RegistryValueCase> RegistryValueCases()
{
    using namespace std::string_literals;
    constexpr std::uint32_t kText = 1, kBytes = 3, kNumber = 4;
    const std::string longest(1024, 'x'); // as long as the buffer
    return {
        {"text with an ending zero", kText, "C:\\a.exe\0"s, true, "C:\\a.exe"},
        {"text without one", kText, "C:\\a.exe", true, "C:\\a.exe"},
        {"an ending zero alone", kText, "\0"s, true, ""},
        {"1023 characters and a zero", kText, longest.substr(1) + "\0"s, true, longest.substr(1)},
        {"1024 characters", kText, longest, true, longest},
        {"1024 characters and a zero", kText, longest + "\0"s, false, ""},
        {"1025 characters", kText, longest + "x", false, ""},
        {"a number, behind what was there", kNumber, "\x04\x03\xB2\xA1"s, true, "&holdA1B234"},
        {"a number that ends in a zero", kNumber, "\x05\0\0\0"s, true, "&hold005"},
        {"bytes", kBytes, "\x01\x02"s, true, "old"},
    };
}

} // namespace selvane
