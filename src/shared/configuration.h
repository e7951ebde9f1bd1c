// Configuration.ini of the installation folder: the product's identity, connection and web links.
//
// Section names are plain. Key names pass through both shifts of the profile store, values are
// raised by kConfigShift.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace shared {

// A value as it was before scrambling, trimmed and cut at NUL. "" when file, section or key is
// missing; a code that leaves the range ends the value there.
std::string ReadConfigValue(platform::Platform& machine, AgentState& state,
                            std::string_view section, std::string_view key);

// How a key and a value stand in the file; for whoever writes one.
std::string ScrambleConfigKey(std::string_view key);
std::string ScrambleConfigValue(std::string_view value);

}  // namespace shared
