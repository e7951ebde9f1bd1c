// The switch of web management, and what the agent does when its plug-in reports an error.
//
// Touches: `WebPlugin` (the profile, `Web`), `ErrVal` (`OLWA`), `Auth` (UserName.ini, `RDPlugin`),
// `Status` of Connection Parameters, the plug-in's processes, the trace.
#pragma once

#include <cstdint>
#include <string_view>

#include "agent/tray_menu.h"
#include "forms/form.h"
#include "forms/frm_welcome.h"
#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"
#include "shared/messages.h"
#include "shared/texts.h"
#include "shared/transfer.h"

namespace agent {

// What the plug-in leaves in `ErrVal`.
inline constexpr std::int16_t kWebPasswordChanged = -1;
inline constexpr std::int16_t kWebAccountCancelled = -2;
inline constexpr std::int16_t kWebError = -3;

class WebManagement {
 public:
  // `form` shows the busy pointer, `timer` is its one-shot WebMTimer, `alert` the window of an
  // error.
  WebManagement(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
                shared::Messages& messages, TrayMenu& menu, shared::AgentCommands& tray,
                forms::Form& form, forms::Timer& timer, forms::frmWelcome& alert);

  // The menu's item: asks, writes the switch, and leaves the rest to WebMTimer, so that the menu
  // closes first.
  void WebPlugin_Click();

  // The timer's one tick.
  void WebMTimer();

  // Polls the plug-in's answer for a minute at most: -1, 1 or -2; 0 when it never came.
  std::int16_t WaitWebManagerAuth();

  // Switches web management off and tells why; the alert is shown once until the switch is used
  // again.
  void HandleWebManagerError(std::int16_t error);

  // HandleWebManagerError when `ErrVal` holds one of the three errors, once until it changes.
  void CheckForError();

 private:
  bool HasUser();
  void SwitchOn();
  void SwitchOff();
  void Uncheck();
  void WriteSwitch(std::string_view value);
  void ClearError();
  void StartTimer();
  void Tell(const char* message);
  void Alert(std::int16_t error);
  void LogOut();

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::Texts& texts_;
  shared::Messages& messages_;
  TrayMenu& menu_;
  shared::AgentCommands& tray_;
  forms::Form& form_;
  forms::Timer& timer_;
  forms::frmWelcome& alert_;
  shared::clsTransfer transfer_;
};

}  // namespace agent
