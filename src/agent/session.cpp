#include "agent/session.h"

#include <string>

#include "agent/closed_libraries.h"
#include "agent/job_stop.h"
#include "agent/supervision.h"
#include "agent/window_messages.h"
#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/process_list.h"
#include "shared/registry_store.h"
#include "shared/trace.h"
#include "shared/transfer.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

constexpr std::string_view kPrefix = "   [INFORMATION] ";
constexpr std::string_view kLoginCaption = "&Login";
constexpr std::uint32_t kReallyLogOut = 1367;
constexpr std::string_view kProductWord = "Sorvane";  // in the library's texts
constexpr std::string_view kClientRuns = "2";         // `ProgStatus`

}  // namespace

Session::Session(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
                 shared::Messages& messages, TrayMenu& menu, shared::AgentCommands& tray)
    : machine_(machine),
      state_(state),
      texts_(texts),
      messages_(messages),
      menu_(menu),
      tray_(tray),
      profile_(machine, state) {}

void Session::MnuLogin_click() {
  shared::Trace trace(machine_, state_);
  // 1. Before login the item leads to it.
  if (menu_.Item("MnuLogin").Caption() == kLoginCaption) {
    OpenLogin();
    return;
  }
  // 2.
  if (!ConfirmLogout()) return;
  // 3.
  SendLogoutToExplorer(machine_, state_);
  // 4.
  trace.WriteStamped(std::string(kPrefix) + "Logged out and set Connection Paramter to 0");
  // 4. to 6.
  EndUsersWork(ClientEndReason::kLogout);
  // 7.
  tray_.CloseStatusWindow();
  // 8.
  const std::string version = shared::RegistryStore(machine_, state_).ReadApplicationVersion();
  CloseWindow(state_.ProductCaption + " (Version: " + version + " - " + state_.CurrentUser + ")");
  // 9.
  EndMainProgram();
  // 10.
  const std::string program_status =
      shared::clsTransfer(machine_, state_)
          .Trf_ReadOutputValue(shared::sections::kBackupStatus, shared::keys::kProgStatus);
  if (program_status == kClientRuns) mnuStopLogoff_Click(machine_, state_);
  // 11. The module is told last, so that it does not see a login without a client.
  WriteShared(shared::keys::kRealTimeBackup, "0");
  WriteShared(shared::keys::kRtPausedBySchedule, "0");
  PostCDPStatusMsg(machine_, state_, ContinuousOrder::kEnd);
  WriteShared(shared::keys::kRtBackup, "0");
}

void Session::ExplorerLogout() {
  shared::Trace(machine_, state_).WriteStamped(std::string(kPrefix) + "Explorer logout");
  EndUsersWork(ClientEndReason::kExplorer);
  CloseWindow(state_.ProductCaption + " (" + state_.CurrentUser + ")");
  shared::ProcessList processes(machine_, state_);
  const std::string& main_program = state_.executables.main_program;
  if (processes.IsProcessRunning(main_program, shared::WhenFound::kLeave)) {
    processes.KillProcessByName(main_program);
  }
  WriteShared(shared::keys::kRtBackup, "0");
  WriteShared(shared::keys::kRtPausedBySchedule, "0");
  PostCDPStatusMsg(machine_, state_, ContinuousOrder::kEnd);
}

void Session::Relogin() {
  SendLogoutToExplorer(machine_, state_);
  EndUsersWork(ClientEndReason::kLogout);
  EndMainProgram();
  WriteShared(shared::keys::kRealTimeBackup, "0");
  WriteShared(shared::keys::kRtPausedBySchedule, "0");
  PostCDPStatusMsg(machine_, state_, ContinuousOrder::kEnd);
  WriteShared(shared::keys::kRtBackup, "0");
  OpenLogin();
}

void Session::OpenLogin() {
  CloseWindow(state_.DisplayName + " - Login");
  Supervision(machine_, state_)
      .ShellRun(state_.InstallFolder,
                shared::InInstallFolder(state_, state_.executables.main_program), "");
}

bool Session::ConfirmLogout() {
  const std::string from_library =
      shared::ReplaceAll(texts_.GetText(kReallyLogOut), kProductWord, state_.DisplayName);
  const std::string literal = "Are you sure you want to logout from " + state_.DisplayName + " ?";
  return messages_.ShowMessage({.text = from_library.empty() ? literal : from_library,
                                .first_caption = "Yes",
                                .second_caption = "No",
                                .picture = shared::MessagePicture::kQuestion});
}

// What all three ways do, in this order.
void Session::EndUsersWork(ClientEndReason reason) {
  state_.LoggedOutMeanwhile = true;
  // 4.
  shared::RegistryStore(machine_, state_).WriteConnectionStatus(0);
  // 5.
  menu_.Item("MnuQuotaExceeded").SetVisible(false);
  menu_.Item("BLLine").SetVisible(false);
  tray_.SetTrayIcon("");
  status::ProgressChannel(machine_, state_).UnmarkQuota();
  // 6.
  EndInteractiveClients(machine_, state_, reason);
}

void Session::CloseWindow(std::string_view title) {
  const platform::WindowId window = machine_.other_windows.Find("", title);
  if (window != platform::kNoWindow) machine_.other_windows.Send(window, kWmClose, 0, 0);
}

void Session::EndMainProgram() {
  shared::ProcessList(machine_, state_)
      .IsProcessRunning(state_.executables.main_program, shared::WhenFound::kKill);
}

void Session::WriteShared(std::string_view key, std::string_view value) {
  profile_.WriteUserNameProfile(key, value);
}

}  // namespace agent
