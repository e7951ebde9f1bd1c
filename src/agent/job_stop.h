// Stops the running scheduled job, at the user's word or at a logoff.
//
// Touches: `Job` of ProgWnd (read), `Cancel`, `Paused`, `Status`, `DLLStatus`, `ProgStatus` of
// BackupStatus, the first line of scheduleData.txt (read), the engine client.
#pragma once

#include "agent/tray_menu.h"
#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"

namespace agent {

// Asks the engine to cancel and gives it a second, then ends the client. With no scheduled job
// running the menu's item is taken away until the next popup. An open status window shows the stop.
void mnuStop_Click(platform::Platform& machine, shared::AgentState& state, TrayMenu& menu,
                   shared::AgentCommands& tray);

// The same for a session that logs off: only the request is written, nothing is ended.
void mnuStopLogoff_Click(platform::Platform& machine, shared::AgentState& state);

}  // namespace agent
