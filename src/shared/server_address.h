// The pair of server address and port in use, and where it falls back to.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace shared {

// On every fifth attempt puts the fallback into the state, by the first that holds: with
// localhost.txt in InstallFolder only the port changes, to "700"; in the partner edition, or when
// the secondary server is in use, only the port, to the default; else address and port of the
// primary server. Other attempts change nothing. Writes nothing.
void SwitchServerAddress(platform::Files& files, AgentState& state, int attempt);

// Writes the pair of the state to the profile, in this order: `IPAddres`, `OutPort` (the plain
// twins), `serverip`, `port`. The last two go to the profile of `Interactive`, which becomes
// CurrentUser.
void WriteServerKeys(platform::Platform& machine, AgentState& state);

// On every fifth attempt SwitchServerAddress and WriteServerKeys.
void FallBackAfterAttempt(platform::Platform& machine, AgentState& state, int attempt);

// Takes the pair from DLLOutput1.txt of UserFolder, where the engine was sent to another server:
// port in the first line, address in the second, then WriteServerKeys. A line that is not there or
// cannot be read leaves its part of the pair as it is; without the file nothing changes.
void FollowRedirection(platform::Platform& machine, AgentState& state);

// The port of a test installation on this machine.
inline constexpr std::string_view kLocalPort = "700";

inline constexpr int kAttemptsBeforeFallback = 5;

}  // namespace shared
