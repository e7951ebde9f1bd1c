#include "agent/job_stop.h"

#include <string>

#include "shared/convert.h"
#include "shared/process_list.h"
#include "shared/profile_store.h"
#include "shared/trace.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

constexpr std::string_view kNoJob = "0";

void RequestCancel(platform::Platform& machine, status::ProgressChannel& channel) {
  channel.WriteBackupStatus(status::kCancel, "1");
  channel.WriteBackupStatus(status::kPaused, "0");
  machine.events.Pump();
  machine.clock.Sleep(status::kCancelWait);
}

void EndClient(platform::Platform& machine, shared::AgentState& state,
               status::ProgressChannel& channel) {
  shared::ProcessList(machine, state)
      .IsProcessRunning(state.ClientProgram, shared::WhenFound::kKill);
  channel.WriteBackupStatus(status::kStatus, status::kStatusStopRequested);
  channel.WriteBackupStatus(status::kDllStatus, status::kDllStopped);
}

}  // namespace

void mnuStop_Click(platform::Platform& machine, shared::AgentState& state, TrayMenu& menu,
                   shared::AgentCommands& tray) {
  status::ProgressChannel channel(machine, state);
  // 1. The user of this moment.
  shared::ProfileStore(machine, state).RefreshCurrentUser();
  // 2. A scheduled job is asked to cancel, and gets the time to see it.
  if (shared::Trim(channel.ReadProgWnd(status::kProgWndJob)) == status::kJobScheduled) {
    RequestCancel(machine, channel);
  }
  // 3. The client ends while the schedule says that a job runs.
  if (channel.HasSchedule()) {
    if (channel.ReadJobKindCode() != kNoJob) {
      EndClient(machine, state, channel);
    } else {
      menu.Item("mnuStop").SetEnabled(false);
      menu.Item("mnuStop").SetVisible(false);
    }
  }
  // 4.
  shared::Trace(machine, state)
      .WriteInformation("Stopped backup from mnuStop Tray status : " +
                        channel.ReadBackupStatus(status::kStatus));
  // 5.
  tray.ResetStatusWindow();
}

void mnuStopLogoff_Click(platform::Platform& machine, shared::AgentState& state) {
  status::ProgressChannel channel(machine, state);
  const std::string program_status = channel.ReadBackupStatus(status::kProgStatus);
  shared::ProfileStore(machine, state).RefreshCurrentUser();
  const bool scheduled_job_runs = channel.HasSchedule() && channel.ReadJobKindCode() != kNoJob;
  if (!scheduled_job_runs && program_status == "2") {
    channel.WriteBackupStatus(status::kStatus, status::kStatusStopRequested);
  }
}

}  // namespace agent
