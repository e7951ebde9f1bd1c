// The sentences of the status windows. Those with a number come from the text library, the English
// literal standing in for a missing one; the others are the same in every language.
#pragma once

#include <string>
#include <string_view>

#include "shared/agent_state.h"
#include "shared/texts.h"

namespace status {

// Looked up anew at each use, because the library may change under a running agent.
struct StatusTexts {
  std::string no_schedule;        // 988
  std::string job_in_progress;    // 1594
  std::string schedule_disabled;  // 987
  std::string next_backup_at;     // 984, with a blank at its end
  std::string next_backup;        // 1698
  std::string will_occur_on;      // 1699
  std::string out_of;             // 986
  std::string log_in;             // 989
  std::string quota_exceeded;     // 814, "Please upgrade" replaced by "Upgrade"
  std::string job_canceled;       // 1486
};

StatusTexts ReadStatusTexts(shared::Texts& texts, const shared::AgentState& state);

inline constexpr std::string_view kQuotaExceededTwoLines =
    "Your data could not be backed up as you have utilized\r\n"
    "the allocated quota. Upgrade and try again.";
inline constexpr std::string_view kBackupHasFailed = "Backup has failed";
inline constexpr std::string_view kContinuousBackup = "Continuous Backup is in Progress...";
inline constexpr std::string_view kJobPaused =
    "The scheduled backup job is paused. Click 'Resume' to continue.";
inline constexpr std::string_view kBackupPaused =
    "Backup process has been paused. Click 'Resume' to continue.";
inline constexpr std::string_view kRestoreOperationPaused =
    "Restore operation has been paused. Click 'Resume' to continue.";
inline constexpr std::string_view kRestorePaused =
    "Restore process has been paused. Click 'Resume' to continue.";
inline constexpr std::string_view kCancelBackupQuestion =
    "Are you sure you want to cancel the backup operation ?";
inline constexpr std::string_view kCancelRestoreQuestion =
    "Are you sure you want to cancel the restore operation ?";

// "<DisplayName> - Scheduled Backup Status": the title at rest and for scheduled jobs.
std::string ScheduledTitle(std::string_view display_name);
// "<DisplayName> - Status": during any other transfer.
std::string TransferTitle(std::string_view display_name);

}  // namespace status
