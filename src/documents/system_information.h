// The machine's system-information tool, which the about box starts. Its place is given by a
// registry.
#pragma once

#include "app/platform.h"

#include <cstdint>
#include <string>

namespace selvane {

// Finds the system-information tool through the registry and starts it, or says that it is not
// available: what a press of cmdSysInfo asks for.
void StartSysInfo(Platform& platform);

// Reads the value subKeyRef of the key keyName: a string as it is; a 32-bit number as hexadecimal
// digits, highest byte first, after what keyVal held and with "&h" before all; any other type
// leaves keyVal. False, and an empty keyVal, when it cannot be read.
bool GetKeyValue(Platform& platform, std::uint32_t keyRoot, const std::string& keyName,
                 const std::string& subKeyRef, std::string& keyVal);

} // namespace selvane
