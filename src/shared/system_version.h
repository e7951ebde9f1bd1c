// What the version of the system means to this program.
#pragma once

#include <string_view>

#include "platform/processes.h"

namespace shared {

// True on the NT family with version 6.0 or 6.1 only: later systems take the older path of every
// decision.
bool IsVistaOrLater(const platform::SystemVersion& version);

// 1 before the NT family, 2 for it.
int GetPlatformFamily(const platform::SystemVersion& version);

// "2003", "XP", "2000", "Vista" (6.0 and 6.1), "Windows NT", "Windows ME", "Windows 98" or "Windows
// 95"; "" for a version outside these.
std::string_view GetOsName(const platform::SystemVersion& version);

}  // namespace shared
