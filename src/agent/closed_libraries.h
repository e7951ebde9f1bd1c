// The closed libraries of the installation that the agent calls by name. Without the library or its
// function nothing happens.
#pragma once

#include <cstdint>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace agent {

// Tells the continuous-backup module to start or to end its operation.
enum class ContinuousOrder : std::int32_t { kEnd = 0, kStart = 1 };
void PostCDPStatusMsg(platform::Platform& machine, const shared::AgentState& state,
                      ContinuousOrder order);

// Tells the explorer extension of a logout.
void SendLogoutToExplorer(platform::Platform& machine, const shared::AgentState& state);

}  // namespace agent
