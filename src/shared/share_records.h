// The records of mapped shares in UserName.ini: UNC1 to UNC<UNCCount> of section Registry.
#pragma once

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace shared {

// Shifts every record once and for all: unless `UNCEncrypted` is "1", splits each of the `UNCCount`
// records at ";" into six fields, writes them back shifted, each field with its ";", and sets
// `UNCEncrypted` to "1". A count that is no 16-bit number counts as 0.
void MigrateShareRecords(platform::Platform& machine, AgentState& state);

}  // namespace shared
