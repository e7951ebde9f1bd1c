// The three ways out of a session: the menu's logout, the explorer extension's, and the relogin
// that windows ask for.
//
// The main program does the login; the agent only ends what runs for the user, in a settled order:
// client, windows, continuous-backup module. The user's name stays in UserName.ini. Touches:
// `Status` of Connection Parameters, QuotaExceeded.txt, `RealTimeBackup`, `RTBPausedBySch` and
// `RTBackup` of UserName.ini, what EndInteractiveClients touches.
#pragma once

#include "agent/interactive_clients.h"
#include "agent/tray_menu.h"
#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"
#include "shared/messages.h"
#include "shared/profile_store.h"
#include "shared/texts.h"

namespace agent {

class Session {
 public:
  Session(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
          shared::Messages& messages, TrayMenu& menu, shared::AgentCommands& tray);

  // With the item reading "&Login" opens the main program; otherwise asks, and logs out.
  void MnuLogin_click();

  // Logs out without a question. `RealTimeBackup` stays as it is.
  void ExplorerLogout();

  // Logs out without a question and opens the main program, which shows its login.
  void Relogin();

 private:
  void OpenLogin();
  bool ConfirmLogout();
  void EndUsersWork(ClientEndReason reason);
  void CloseWindow(std::string_view title);
  void EndMainProgram();
  void WriteShared(std::string_view key, std::string_view value);

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::Texts& texts_;
  shared::Messages& messages_;
  TrayMenu& menu_;
  shared::AgentCommands& tray_;
  shared::ProfileStore profile_;
};

}  // namespace agent
