// The step that runs once a day: tells about schedules that have not run, and sets its own next
// date.
//
// Touches: `TrayIconDay`, `TrayIconMonth`, `TrayIconYear`, `TrayIconHour`, `TrayIconMinute`
// (UserName.ini, `Tolvex`), `BackupFailureDays`, `UserDays`, `UserDaysEnabled` (the profile,
// `BackupStatus`).
#pragma once

#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"

namespace agent {

class DailyStep {
 public:
  DailyStep(platform::Platform& machine, shared::AgentState& state, shared::AgentCommands& tray);

  // True when the stored date is not after today. A part that is missing or no number counts as
  // today's.
  bool IsDailyDue();

  // Tells about missing backups when their days have reached the threshold, then moves the stored
  // date to tomorrow.
  void Run();

 private:
  bool CountsAsMissing(int days);
  void ReportMissingBackups();
  void StoreNextDate();

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::AgentCommands& tray_;
};

}  // namespace agent
