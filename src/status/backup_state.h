// Whether a scheduled job is under way.
#pragma once

#include <cstdint>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace status {

// Reads the default user into the state, sets `last_return_value` to 0, and without
// scheduleInfo.txt in UserFolder gives 0: no scheduled job is under way, whatever `Status` says.
// Otherwise gives `Status` of BackupStatus (1: running) and leaves `RetValue` in
// `last_return_value`; each stays 0 when it is blank or no number.
std::int16_t ReadJobStatus(platform::Platform& machine, shared::AgentState& state);

// The tick's name for the same answer.
inline std::int16_t ReadBackupState(platform::Platform& machine, shared::AgentState& state) {
  return ReadJobStatus(machine, state);
}

}  // namespace status
