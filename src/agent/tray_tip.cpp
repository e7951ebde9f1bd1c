#include "agent/tray_tip.h"

#include "agent/main_tick.h"
#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/text_file.h"
#include "status/backup_state.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

constexpr std::string_view kQuotaResult = "-432";
constexpr const char* kBackupPaused = " - Backup has been paused.";
constexpr const char* kRestorePaused = " - The restore operation has been paused.";
constexpr std::string_view kComputerRemoved = "You have removed this computer from your account";

}  // namespace

TrayTip::TrayTip(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
                 const SharedTexts& shared_texts, status::ScheduleTexts& schedule, TrayIcon& icon)
    : machine_(machine),
      state_(state),
      texts_(texts),
      shared_texts_(shared_texts),
      schedule_(schedule),
      icon_(icon),
      profile_(machine, state),
      transfer_(machine, state),
      channel_(machine, state) {}

std::string TrayTip::BuildTrayTip() {
  // 1. Nobody is logged in.
  if (profile_.RefreshCurrentUser().empty()) return {};
  // 2. A transfer with a count of files.
  std::string transfer = Transfer();
  if (!transfer.empty()) return transfer;
  // 3. to 8. The schedule.
  return Schedule();
}

std::string TrayTip::Transfer() {
  const auto read = [&](std::string_view section, std::string_view key) {
    return channel_.ReadProgressValue(section, key);
  };
  const bool backup = read(status::kBackupProgressSection, status::kBackupInProgress) == "1";
  const bool restore = read(status::kRestoreProgressSection, status::kRestoreInProgress) == "1";
  if (!backup && !restore) return {};
  const std::string backed_up = read(status::kBackupProgressSection, status::kFileCount);
  const std::string restored = read(status::kRestoreProgressSection, status::kFileCount);
  const bool paused = channel_.SyncPaused();
  if (backup && !backed_up.empty()) {
    if (!paused) {
      return state_.ProductName + " - Backup is in progress...\nBacked up files: " + backed_up;
    }
    const bool interactive = channel_.ReadProgWnd(status::kProgWndJob) == status::kJobInteractive;
    return state_.ProductName + (interactive ? " - Interactive backup has been paused."
                                             : " - The scheduled backup job has been paused.");
  }
  if (restore && !restored.empty()) {
    if (!paused) return "Restore is in progress...\nRestored files: " + restored;
    return state_.ProductName + kRestorePaused;
  }
  return {};
}

std::string TrayTip::Schedule() {
  // 3. No schedule.
  if (!channel_.HasSchedule()) return shared_texts_.no_schedule;
  // 4. A job is in force.
  const std::string path = shared::InUserFolder(state_, status::kScheduleDataFile);
  const auto file = machine_.files.Read(path, shared::kTextFileLimit);
  const std::string_view lines = file ? std::string_view(*file) : std::string_view();
  const std::string_view job = shared::LineOf(lines, 0);
  const std::string_view record = shared::LineOf(lines, 1);
  if (job != "0" && !job.empty()) return {};
  // 5. Switched off, or no record.
  if (transfer_.Trf_ReadUserProfile(shared::keys::kScheduleDisable) == "TRUE") {
    return ScheduleDisabledText(texts_, state_);
  }
  if (record.empty()) return shared_texts_.no_schedule;
  // 6. The start of the first record.
  const std::string start = schedule_.ValidateSorvaneDateFormat(status::StartTimeField(record));
  // 7. The engine's message.
  const auto indicator =
      shared::ToInt16(channel_.ReadBackupStatus(status::kMessageIndicator)).value_or(0);
  if (indicator == status::kIndicatorQuota) return shared_texts_.quota_exceeded;
  if (indicator == status::kIndicatorAccount) return std::string(kComputerRemoved);
  // 8. The time to the next backup, or since the last.
  return schedule_.GetTimeDifference(start, "").text;
}

void TrayTip::UpdateTrayTip() {
  // Reading pumps messages, and a further movement of the mouse would come to the same.
  if (updating_) return;
  updating_ = true;
  // 1. A transfer has the first and only word.
  if (channel_.IsTransferInProgress()) {
    if (const auto tip = PausedTrayTip()) icon_.SetTrayIcon(*tip);
  } else {
    UpdateWithoutTransfer();
  }
  updating_ = false;
}

std::optional<std::string> TrayTip::PausedTrayTip() {
  // 1. Which job.
  const std::string job = channel_.ReadProgWnd(status::kProgWndJob);
  const bool backup = job == status::kJobInteractive || job == status::kJobScheduled;
  const bool restore = job == status::kJobRestore;
  // 3. The quota wins over 2.
  if (shared::Trim(channel_.ReadBackupStatus(status::kRetValue)) == kQuotaResult) {
    return shared_texts_.quota_exceeded;
  }
  // 2. Paused, or under way.
  if (!backup && !restore) return std::nullopt;
  if (!channel_.SyncPaused()) return BuildTrayTip();
  return state_.ProductName + (backup ? kBackupPaused : kRestorePaused);
}

// The rules for a running job, an ended one and continuous backup choose tips of their own, but
// none outlives the last rule: what stays of them is what they note.
void TrayTip::UpdateWithoutTransfer() {
  // 2. and 3. The job's state.
  state_.JobState = status::ReadBackupState(machine_, state_);
  if (state_.JobState != kJobRunning) state_.BlinkPhase = false;
  // 7. and 8. Continuous backup.
  NoteContinuousCode();
  // 9. The quota, whoever is logged in; without it the idle tip.
  icon_.SetTrayIcon(channel_.IsQuotaMarked() ? shared_texts_.quota_exceeded : BuildTrayTip());
}

void TrayTip::NoteContinuousCode() {
  const std::int16_t code =
      profile_.ReadUserNameInt(shared::sections::kTolvex, shared::keys::kRtBackup);
  if (const auto job_state = ContinuousJobState(code)) state_.JobState = *job_state;
  switch (state_.JobState) {
    case kContinuousRunning:
      state_.CdpBlinkPhase = !state_.CdpBlinkPhase;
      break;
    case kContinuousQuota:
      if (!channel_.IsQuotaMarked()) channel_.MarkQuota();
      break;
    default:
      if (IsContinuousFailure(state_.JobState)) state_.BlinkPhase = !state_.BlinkPhase;
  }
}

}  // namespace agent
