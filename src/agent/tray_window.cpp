#include "agent/tray_window.h"

#include <string>

#include "agent/tray_icon.h"
#include "agent/window_messages.h"
#include "shared/keys.h"
#include "shared/process_list.h"
#include "shared/profile_store.h"
#include "shared/trace.h"
#include "status/progress_channel.h"

namespace agent {
namespace {

constexpr std::string_view kTaskbarCreated = "TaskbarCreated";
constexpr std::string_view kCloseInteractive = "CloseInteractiveWindow";
constexpr std::string_view kDialogClass = "#32770";  // the service's hidden dialog

// The system asks before it suspends, or tells that it does.
constexpr std::uintptr_t kQuerySuspend = 0;
constexpr std::uintptr_t kSuspend = 4;

}  // namespace

TrayWindow::TrayWindow(platform::Platform& machine, shared::AgentState& state, TrayMenu& menu,
                       IconEvents& icon_events, TrayTip& tip, shared::AgentCommands& commands,
                       std::function<void()> shell_restarted)
    : machine_(machine),
      state_(state),
      menu_(menu),
      icon_events_(icon_events),
      tip_(tip),
      commands_(commands),
      shell_restarted_(std::move(shell_restarted)) {}

MessageAnswer TrayWindow::TrayWindowProc(std::uint32_t message, std::uintptr_t wparam,
                                         std::intptr_t lparam) {
  const bool icon_event = message == kIconMessage;
  const auto mouse_message = static_cast<std::uint32_t>(lparam & 0xFFFF);
  if (icon_event && mouse_message == kRightButtonUp && !icon_events_.BeginRightClick()) return 0;
  // 1. The machine is about to sleep.
  if (IsSuspend(message, wparam)) {
    commands_.OnSuspend();
    return 0;
  }
  // 2. The shell has restarted; the message goes on.
  if (IsNamedMessage(message, taskbar_created_, kTaskbarCreated)) shell_restarted_();
  // 3. The explorer extension logs out.
  if (IsNamedMessage(message, close_interactive_, kCloseInteractive)) {
    shared::Trace(machine_, state_).WriteInformation("Calling logou t from explorer");
    commands_.ExplorerLogout();
  }
  // 4. The session ends.
  if (message == kWmEndSession) EndSession();
  // 5. The user.
  RefreshUser();
  // 6. The icon's events as another program tells them.
  if (message == kOutsideIconEvent) {
    if (lparam == kLeftDoubleClick) {
      commands_.OpenRecentLog();
      return 0;
    }
    if (lparam == kRightButtonUp) {
      OutsideRightClick();
      return 0;
    }
  }
  // 7. to 9. The window's own procedure, which takes the icon's events for movements of the mouse.
  if (icon_event) Form_MouseMove(mouse_message);
  return std::nullopt;
}

void TrayWindow::Form_MouseMove(std::uint32_t mouse_message) {
  tip_.UpdateTrayTip();
  if (mouse_message == kLeftDoubleClick) icon_events_.DoubleClick();
  if (mouse_message == kRightButtonUp) icon_events_.RightClick();
}

bool TrayWindow::IsSuspend(std::uint32_t message, std::uintptr_t wparam) {
  if (message != kWmPowerBroadcast || (wparam != kQuerySuspend && wparam != kSuspend)) return false;
  shared::Trace(machine_, state_).WriteInstallTrace("    Hibernation Message Arrived");
  const std::string standby =
      shared::ProfileStore(machine_, state_).ReadUserNameIniPlain(shared::keys::kStandbyBackup);
  return standby == "1" || standby.empty();
}

bool TrayWindow::IsNamedMessage(std::uint32_t message, std::uint32_t& number,
                                std::string_view name) {
  if (number == 0) number = machine_.other_windows.RegisterMessage(name);
  return number != 0 && message == number;
}

void TrayWindow::EndSession() {
  shared::Trace trace(machine_, state_);
  trace.WriteInformation("Inside End_Session");
  platform::OtherWindows& windows = machine_.other_windows;
  const auto service = windows.Find(kDialogClass, state_.ProductFolder + "HiddenWindow");
  if (service != platform::kNoWindow) windows.Post(service, kServiceEndOfSession, 0, 0);
  // The login word is left as it is, so that a login survives a shutdown.
  trace.WriteInformation("WM_ENDSESSION , setting Connection parameter to 0");
  const std::string job = status::ProgressChannel(machine_, state_).ReadJobKindCode();
  const bool scheduled_job = !job.empty() && job != "0";
  shared::ProcessList processes(machine_, state_);
  if (!scheduled_job &&
      processes.IsProcessRunning(state_.ClientProgram, shared::WhenFound::kLeave)) {
    trace.WriteInformation("Closing Client");
    processes.IsProcessRunning(state_.ClientProgram, shared::WhenFound::kKill);
  }
  const auto main_window =
      windows.Find("", state_.ProductCaption + " (" + state_.CurrentUser + ")");
  if (main_window != platform::kNoWindow) windows.Send(main_window, kWmClose, 0, 0);
  processes.IsProcessRunning(state_.executables.main_program, shared::WhenFound::kKill);
}

// Decoding the name pumps messages, and each of them comes back here: one look at a time is enough,
// or a flood of messages would pile up on the stack.
void TrayWindow::RefreshUser() {
  if (refreshing_user_) return;
  refreshing_user_ = true;
  shared::ProfileStore(machine_, state_).RefreshCurrentUser();
  refreshing_user_ = false;
}

void TrayWindow::OutsideRightClick() {
  menu_.UpdateTrayMenu();
  menu_.EnableJobItems();
  icon_events_.SysTrayMouseEventHandler();
}

}  // namespace agent
