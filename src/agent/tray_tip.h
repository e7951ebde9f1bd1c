// The icon's tip: computed from the shared files when the mouse moves over the icon, at start and
// at a few changes of state. Nothing refreshes it on a timer.
//
// Touches: QuotaExceeded.txt (made for the code of an exceeded quota); JobState, BlinkPhase and
// CdpBlinkPhase of the state, which the tick uses too.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "agent/shared_texts.h"
#include "agent/tray_icon.h"
#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/profile_store.h"
#include "shared/registry_store.h"
#include "shared/texts.h"
#include "shared/transfer.h"
#include "status/progress_channel.h"
#include "status/schedule_texts.h"

namespace agent {

class TrayTip {
 public:
  TrayTip(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
          const SharedTexts& shared_texts, status::ScheduleTexts& schedule, TrayIcon& icon);

  // The tip for a transfer or for idle; "" when nobody is logged in, a job is in force without a
  // transfer, or the schedule gives no time.
  std::string BuildTrayTip();

  // Sets the tip for the present state.
  void UpdateTrayTip();

 private:
  void UpdateWithoutTransfer();
  void NoteContinuousCode();
  std::optional<std::string> PausedTrayTip();
  std::string Transfer();
  std::string Schedule();

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::Texts& texts_;
  const SharedTexts& shared_texts_;
  status::ScheduleTexts& schedule_;
  TrayIcon& icon_;
  shared::ProfileStore profile_;
  shared::clsTransfer transfer_;
  status::ProgressChannel channel_;
  bool updating_ = false;
};

}  // namespace agent
