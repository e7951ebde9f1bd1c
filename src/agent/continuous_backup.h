// The switch of continuous backup: the menu asks, a one-shot timer does the work so that the menu
// closes first, and the module is told through one call of its library.
//
// Touches: `RealTimeBackup` (UserName.ini and the profile, both `Tolvex`), `RTBackup` and
// `RTBPausedBySch` (UserName.ini), `Status` and `DLLStatus` of BackupStatus, `Cancel` of
// BackupProgress.ini, ContextMenuRun.txt, `CurrentUser`.
#pragma once

#include <string_view>

#include "agent/shared_texts.h"
#include "agent/tray_menu.h"
#include "forms/form.h"
#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"
#include "shared/messages.h"
#include "shared/profile_store.h"
#include "shared/texts.h"
#include "shared/transfer.h"
#include "status/progress_channel.h"

namespace agent {

class ContinuousBackup {
 public:
  // `form` shows the busy pointer; `timer` is its one-shot CDPTimer.
  ContinuousBackup(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
                   const SharedTexts& shared_texts, shared::Messages& messages, TrayMenu& menu,
                   shared::AgentCommands& tray, forms::Form& form, forms::Timer& timer);

  // The menu's item: asks, and starts the timer.
  void mnuCDP_Click();

  // The timer's one tick: switches on when `mnuCDP` is unchecked, off when it is checked. Pumps
  // messages; a tick that comes during that does nothing.
  void CDPTimer();

  // For the end of a scheduled job that had the module paused: the last of several starts it again.
  void RestartRealtimeSystem();

 private:
  void Enable();
  void Disable();
  bool GiveWayToSwitch();
  void EndTransfer();
  void RequestStop();
  void WriteChoice(std::string_view value);
  void WaitRounds(int rounds);
  bool ModuleRuns();

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::Texts& texts_;
  const SharedTexts& shared_texts_;
  shared::Messages& messages_;
  TrayMenu& menu_;
  shared::AgentCommands& tray_;
  forms::Form& form_;
  forms::Timer& timer_;
  shared::ProfileStore profile_;
  shared::clsTransfer transfer_;
  status::ProgressChannel channel_;
};

}  // namespace agent
