// What is never backed up: the lists of files and folders in UserFolder, one entry a line, each
// closed by "/1", the flag of an entry in force.
#pragma once

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace schedule {

// Makes the lists of a new user: system files, system folders, the temporary folders of the user,
// and an empty list of paths where there is none. A list that cannot be deleted first keeps its own
// entries. False when one cannot be written; it is as it was then.
bool CreateDefaultExcludeFiles(platform::Platform& machine, const shared::AgentState& state);

}  // namespace schedule
