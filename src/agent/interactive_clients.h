// Ends the engine clients that work for the user: the steps that every way out of a session shares.
//
// Touches: `Status` of BackupStatus, `ClientPID`, `ClientPIDR`, ContextMenuRun.txt (read), the
// trace.
#pragma once

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace agent {

// Who asked: the trace names the backup client after it.
enum class ClientEndReason { kLogout, kExplorer };

// With an interactive transfer running, ends the backup client if it came from the explorer's
// context menu, and the restore client. Then, in any case, the restore client once more. A client
// that did not come from the context menu ends with the main program.
void EndInteractiveClients(platform::Platform& machine, shared::AgentState& state,
                           ClientEndReason reason);

// The process of `key` (`ClientPID` or `ClientPIDR`), ended if it still is a program of this
// installation: the system gives the number of an ended process to any other.
void EndClientProcess(platform::Platform& machine, shared::AgentState& state, std::string_view pid);

}  // namespace agent
