// What a double click and a right click on the icon do.
//
// Touches: `DLLStatus` of BackupStatus, QuotaExceeded.txt, `RTBackup`; opens pages and the main
// program.
#pragma once

#include <cstdint>

#include "agent/tray_menu.h"
#include "forms/form.h"
#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/messages.h"
#include "shared/texts.h"

namespace agent {

class IconEvents {
 public:
  IconEvents(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
             shared::Messages& messages, TrayMenu& menu, forms::Form& form);

  void DoubleClick();

  // Notes that a right click has arrived, before anything is read for it. False while the popup of
  // an earlier one is still to come: reading pumps messages, and the clicks of an impatient user on
  // an icon that did not answer are one wish, not a row of popups.
  bool BeginRightClick();
  void RightClick();

  // The popup by the menu's present state: in front, with its default item.
  void SysTrayMouseEventHandler();

 private:
  void ForgetEndOfJob();
  bool IsQuotaExceeded();
  void OpenAccountPage();
  bool TellContinuousFailure();
  void ResetContinuousCode();
  void BringMainProgramForward();

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::Texts& texts_;
  shared::Messages& messages_;
  TrayMenu& menu_;
  forms::Form& form_;
  bool menu_is_coming_ = false;
};

}  // namespace agent
