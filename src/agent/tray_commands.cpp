#include "agent/tray_commands.h"

#include <string>

#include "agent/executable_names.h"
#include "agent/job_stop.h"
#include "agent/main_tick.h"
#include "agent/supervision.h"
#include "agent/window_messages.h"
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

TrayCommands::TrayCommands(platform::Platform& machine, shared::AgentState& state,
                           shared::Texts& texts, const SharedTexts& shared_texts,
                           shared::Messages& messages, TrayIcon& icon, TrayTip& tip, TrayMenu& menu,
                           status::ScheduleTexts& schedule, forms::Form& form,
                           forms::Timer& cdp_timer, forms::Timer& web_timer)
    : machine_(machine),
      state_(state),
      icon_(icon),
      tip_(tip),
      menu_(menu),
      schedule_(schedule),
      messages_(messages),
      host_(form.Host()),
      alert_(form.Host(), {.open_options = [this] { MnuOptionsClick(); },
                           .open_error_report = [this] { OpenErrorReport(); },
                           .write_trace =
                               [this](std::string_view line) {
                                 shared::Trace(machine_, state_).WriteStamped(line);
                               }}),
      session_(machine, state, texts, messages, menu, *this),
      continuous_(machine, state, texts, shared_texts, messages, menu, *this, form, cdp_timer),
      web_(machine, state, texts, messages, menu, *this, form, web_timer, alert_) {}

void TrayCommands::SetTrayIcon(std::string_view tip) {
  icon_.SetTrayIcon(tip);
}

void TrayCommands::DisableStatusEntry() {
  menu_.Item("mnuStatus").SetEnabled(false);
}

void TrayCommands::OpenStatusWindow() {
  StatusWindow().BringToFront();
}

void TrayCommands::ShowEndOfJob() {
  // The outcome is to be seen at once, not at the next refresh of the minute.
  state_.ForceStatusRefresh = true;
  if (StatusWindowIsOpen()) {
    status_window_->EnableStatusTimer();
  } else {
    StatusWindow().Show();
  }
}

void TrayCommands::CloseStatusWindow() {
  if (StatusWindowIsOpen()) status_window_->Unload();
}

void TrayCommands::ResetStatusWindow() {
  if (StatusWindowIsOpen()) status_window_->ResetStatusWindow();
}

status::frmStatus& TrayCommands::StatusWindow() {
  if (!status_window_) {
    const status::StatusLinks links = {schedule_, *this, messages_};
    status_window_ = std::make_unique<status::frmStatus>(host_, machine_, state_, links);
  }
  return *status_window_;
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
  mnuStop_Click(machine_, state_, menu_, *this);
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
