// The shared files as they stand at one tick, for the rules of the status window.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/profile_store.h"
#include "shared/texts.h"
#include "status/status_texts.h"

namespace status {

// What the idle view is made from.
struct IdleSnapshot {
  std::string user;           // Default User name; empty when nobody is logged in
  shared::QuotaStatus quota;  // read a second time when the first gave nothing
  std::string ret_value;
  bool schedule_disabled = false;  // ScheduleDisable is "TRUE"
  std::int16_t rt_backup = 0;      // RTBackup
  bool has_schedule = false;       // scheduleData.txt is there
  bool schedule_read = true;       // and no other program keeps it from being read
  std::string job_kind;            // its first line
  std::string second_line;         // its second line: the first record
  bool paused = false;
  std::int16_t indicator = 0;               // StatusMessageIndicaton
  std::int16_t status_window = 0;           // StatusWindow
  std::optional<std::string> outcome = "";  // see ProgressChannel::ReadOutcome
  std::string last_run;                     // SchEndTime
  std::string short_date;                   // the locale's short date format
  std::string decimal_separator;
};

// One section of the progress file, for the transfer that is shown.
struct ProgressTexts {
  std::string file_name;  // in the system's code page
  std::string total;
  std::string rate;
  std::string estimate;
  std::string elapsed;
  std::string file_count;
  std::string percentage;
};

// What the transfer view is made from.
struct TransferSnapshot {
  bool in_progress = false;   // exactly "1" in either section
  std::string backup;         // BackupInProgress as it stands
  std::string restore;        // RestoreInProgress as it stands
  std::string window_status;  // ProgWnd Status
  std::int32_t window_value = 0;
  std::string job;
  bool paused = false;
  std::int16_t rt_backup = 0;
  ProgressTexts progress;  // of the backup when it runs, else of the restore

  // Settings of UserName.ini, section Registry.
  std::string backup_idle;
  std::string backup_idle_state;
  std::string bandwidth;
  std::string bandwidth_idle_state;

  // The engine's window exists and is hidden: the transfer is shown here.
  bool IsShownHere() const { return in_progress && window_status == "0" && window_value > 0; }
  // The engine's window is on the screen.
  bool IsShownByEngine() const { return in_progress && window_status == "1" && window_value > 0; }
};

// What does not come from the channel.
struct StatusContext {
  std::int16_t product_number = 2;  // 1 partner edition
  std::string display_name;
  bool large_fonts = false;  // LargeFontMode of the window
  StatusTexts texts;
};

// Reads the default user into the state, then the files of that user.
IdleSnapshot ReadIdleSnapshot(platform::Platform& machine, shared::AgentState& state);

// Reads the channel of CurrentUser; `progress` only as far as a transfer is marked.
TransferSnapshot ReadTransferSnapshot(platform::Platform& machine, shared::AgentState& state);

StatusContext ReadStatusContext(platform::Platform& machine, const shared::AgentState& state,
                                bool large_fonts);

}  // namespace status
