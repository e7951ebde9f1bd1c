// The hidden window's procedure: through it the rest of Windows talks to the agent.
//
// Touches: QuotaExceeded.txt and the keys of the handlers that it calls, TrayTraceFile.txt.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>

#include "agent/icon_events.h"
#include "agent/tray_menu.h"
#include "agent/tray_tip.h"
#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"

namespace agent {

// What a message's way through the procedure ends in: an answer, or nothing for the window's own.
using MessageAnswer = std::optional<std::intptr_t>;

class TrayWindow {
 public:
  // `shell_restarted` takes the icon out and puts it in again.
  TrayWindow(platform::Platform& machine, shared::AgentState& state, TrayMenu& menu,
             IconEvents& icon_events, TrayTip& tip, shared::AgentCommands& commands,
             std::function<void()> shell_restarted);

  MessageAnswer TrayWindowProc(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam);

  // An event of the icon: `mouse_message` is what the mouse did there.
  void Form_MouseMove(std::uint32_t mouse_message);

 private:
  bool IsSuspend(std::uint32_t message, std::uintptr_t wparam);
  bool IsNamedMessage(std::uint32_t message, std::uint32_t& number, std::string_view name);
  void EndSession();
  void RefreshUser();
  void OutsideRightClick();

  platform::Platform& machine_;
  shared::AgentState& state_;
  TrayMenu& menu_;
  IconEvents& icon_events_;
  TrayTip& tip_;
  shared::AgentCommands& commands_;
  std::function<void()> shell_restarted_;
  std::uint32_t taskbar_created_ = 0;    // numbers of the messages that programs agree on by name;
  std::uint32_t close_interactive_ = 0;  // 0 until the system gave one
  bool refreshing_user_ = false;
};

}  // namespace agent
