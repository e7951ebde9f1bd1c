#include "agent/tray_commands.h"

#include <string>

#include "agent/executable_names.h"
#include "agent/main_tick.h"
#include "agent/supervision.h"
#include "agent/window_messages.h"
#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/process_list.h"
#include "shared/trace.h"
#include "shared/transfer.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

constexpr std::string_view kPartnerTitle = "Tolvex Professional";

}  // namespace

TrayCommands::TrayCommands(platform::Platform& machine, shared::AgentState& state, TrayIcon& icon,
                           TrayMenu& menu)
    : machine_(machine), state_(state), icon_(icon), menu_(menu) {}

void TrayCommands::SetTrayIcon(std::string_view tip) {
  icon_.SetTrayIcon(tip);
}

void TrayCommands::DisableStatusEntry() {
  menu_.Item("mnuStatus").SetEnabled(false);
}

void TrayCommands::MnuOptionsClick() {
  const bool partner = state_.ProductNumber == kPartnerEdition;
  const std::string_view title = partner ? kPartnerTitle : std::string_view(state_.ProductCaption);
  const platform::WindowId window = machine_.other_windows.Find("", title);
  if (window != platform::kNoWindow) machine_.other_windows.Send(window, kWmClose, 0, 0);
  const std::string program = shared::InInstallFolder(state_, state_.executables.main_program);
  Supervision(machine_, state_).ShellRun(state_.InstallFolder, program, "");
}

void TrayCommands::StopClick() {
  status::ProgressChannel channel(machine_, state_);
  shared::ProcessList processes(machine_, state_);
  // 1. The user.
  shared::ProfileStore(machine_, state_).RefreshCurrentUser();
  // 2. A scheduled job is asked to end, and given the time to see it.
  if (shared::Trim(channel.ReadProgWnd(status::kProgWndJob)) == status::kJobScheduled) {
    channel.WriteBackupStatus(status::kCancel, "1");
    channel.WriteBackupStatus(status::kPaused, "0");
    machine_.events.Pump();
    machine_.clock.Sleep(status::kCancelWait);
  }
  // 3. A client that is still at it is ended; a job that has ended meanwhile costs nothing.
  if (channel.HasSchedule()) {
    if (channel.ReadJobKindCode() != "0") {
      if (processes.IsProcessRunning(state_.ClientProgram, shared::WhenFound::kLeave)) {
        processes.KillProcessByName(state_.ClientProgram);
      }
      channel.WriteBackupStatus(status::kStatus, status::kStatusStopRequested);
      channel.WriteBackupStatus(status::kDllStatus, status::kDllStopped);
    } else {
      menu_.Item("mnuStop").SetEnabled(false);
      menu_.Item("mnuStop").SetVisible(false);
    }
  }
  // 4. What it came to.
  shared::Trace(machine_, state_)
      .WriteInformation("Stopped backup from mnuStop Tray status : " +
                        channel.ReadBackupStatus(status::kStatus));
}

void TrayCommands::MnuBackupNowClick() {
  status::ProgressChannel(machine_, state_).WriteBackupStatus(status::kBackupNowTray, "1");
  shared::ProcessList processes(machine_, state_);
  if (!processes.IsProcessRunning(state_.executables.main_program, shared::WhenFound::kLeave)) {
    MnuOptionsClick();
  }
}

void TrayCommands::MnuDisableAutobkupClick() {
  const std::string_view value = menu_.Item("MnuDisableAutobkup").Checked() ? "FALSE" : "TRUE";
  menu_.MarkScheduleDisable(value);
  shared::clsTransfer(machine_, state_).Trf_WriteUserProfile(shared::keys::kScheduleDisable, value);
}

void TrayCommands::MnuOpenClick() {
  shared::ProcessList processes(machine_, state_);
  const bool idle = !processes.IsProcessRunning(state_.ClientProgram, shared::WhenFound::kLeave) &&
                    state_.JobState != kJobRunning;
  if (idle) {
    OpenActivityLog();
  } else {
    OpenRecentLog();
  }
}

void TrayCommands::MnuExitClick() {
  icon_.Remove();
  machine_.processes.ExitSelf(0);
}

}  // namespace agent
