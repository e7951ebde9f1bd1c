#include "agent/main_tick.h"

#include <algorithm>
#include <string>

#include "agent/partner_edition.h"
#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/text_file.h"
#include "status/backup_state.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

// Time for the engine to finish the files of a job before they are read again.
constexpr std::uint32_t kJobEndPause = 3000;
constexpr std::uint32_t kContinuousStartPause = 1000;

}  // namespace

std::optional<std::int16_t> ContinuousJobState(std::int16_t code) {
  if (code < 1 || code > kContinuousLast - kContinuousBase) return std::nullopt;
  return static_cast<std::int16_t>(kContinuousBase + code);
}

bool IsContinuousFailure(std::int16_t job_state) {
  return job_state > kContinuousRunning && job_state <= kContinuousLast &&
         job_state != kContinuousCancelled && job_state != kContinuousQuota;
}

MainTick::MainTick(platform::Platform& machine, shared::AgentState& state, TrayIcon& icon,
                   shared::AgentCommands& commands)
    : machine_(machine),
      state_(state),
      icon_(icon),
      commands_(commands),
      profile_(machine, state),
      registry_(machine, state),
      channel_(machine, state) {}

void MainTick::TrayTick() {
  // 1. Quota release.
  ReleaseQuota();
  // 2. Keep-awake release.
  ReleaseKeepAwake();
  // 3. Keep-awake set.
  KeepAwake();
  // 4. The user.
  profile_.RefreshCurrentUser();
  // 5. Stale pause.
  ClearStalePause();
  // 6. Job icon.
  ShowJobIcon();
  // 7. End-of-job icon.
  ShowEndOfJobIcon();
  // 8. End-of-job window.
  OpenEndOfJobWindow();
  // 9. From here on the code is the engine's.
  state_.JobState = 0;
  // 10. Job-start acknowledgement.
  AcknowledgeJobStart();
  // 11. Job-end acknowledgement.
  AcknowledgeJobEnd();
  // 12. Continuous-backup code.
  ReadContinuousCode();
  // 13. Continuous-backup icon.
  ShowContinuousIcon();
  // 14. Quota blink.
  ShowQuotaBlink();

  icon_.Show();
}

// An equal pair does not release. Unknown figures count as 0 here: they tell of no room.
void MainTick::ReleaseQuota() {
  const shared::QuotaStatus quota = channel_.ReadQuotaStatus();
  const double used = std::max(quota.used, 0.0);
  if (quota.max > used && channel_.IsQuotaMarked()) channel_.UnmarkQuota();
}

// The system is not told: its flag for this does not fit the 16 bits that it would be handed on in,
// and the request to stay awake lapses by itself.
void MainTick::ReleaseKeepAwake() {
  if (!state_.KeepAwakeOn) return;
  if (profile_.ReadUserNameProfile(shared::keys::kStarted) == "0") state_.KeepAwakeOn = false;
}

void MainTick::KeepAwake() {
  const std::string standby = profile_.ReadUserNameIniPlain(shared::keys::kStandbyBackup);
  if (standby != "1" && !standby.empty()) return;
  if (profile_.ReadUserNameProfile(shared::keys::kStarted) != "1") return;
  machine_.power.SetThreadExecutionState(platform::kSystemRequired);
  state_.KeepAwakeOn = true;
}

void MainTick::ClearStalePause() {
  if (channel_.IsTransferInProgress()) return;
  if (channel_.SyncPaused()) channel_.WriteBackupStatus(status::kPaused, "0");
}

void MainTick::ShowJobIcon() {
  state_.JobState = status::ReadBackupState(machine_, state_);
  if (state_.JobState != kJobRunning) {
    ShowNormalIcon();
    state_.BlinkPhase = false;
    return;
  }
  if (state_.BlinkPhase) {
    ShowNormalIcon();
  } else {
    const bool partner = HasPartnerMarker(machine_.files, state_);
    icon_.SetTrayImage(partner ? StatePicture::kRunningPartner : StatePicture::kRunning);
  }
  state_.BlinkPhase = !state_.BlinkPhase;
}

void MainTick::ShowEndOfJobIcon() {
  const auto value = [&](std::string_view key) {
    return std::string(shared::Trim(channel_.ReadBackupStatus(key)));
  };
  if (value(status::kRetValue).empty()) return;
  const std::string dll_status = value(status::kDllStatus);
  if (dll_status == status::kDllStopped) {
    ShowStateIcon(StatePicture::kFailed);
  } else if (!dll_status.empty() && dll_status != status::kDllNothing) {
    if (!channel_.HasSchedule() || channel_.ReadJobKindCode() == "0") {
      ShowStateIcon(StatePicture::kFinished);
    }
  }
}

void MainTick::OpenEndOfJobWindow() {
  if (channel_.ReadBackupStatus(status::kStatusWindow) != "1") return;
  channel_.WriteBackupStatus(status::kStatusWindow, "0");
  commands_.ShowEndOfJob();
}

// Without the schedule file nothing is acknowledged: the engine's word stands until it appears.
void MainTick::AcknowledgeJobStart() {
  ReadJobStateFromDllStatus();
  if (state_.JobState != kJobRunning || !channel_.HasSchedule()) return;
  for (const std::string_view file : {status::kShadowCopyFile, status::kShadowCopyDllFile}) {
    shared::WriteOneLine(machine_.files, shared::InInstallFolder(state_, file), "0");
  }
  channel_.WriteBackupStatus(status::kStatus, status::kStatusRunning);
  channel_.WriteBackupStatus(status::kDllStatus, status::kDllNothing);
}

void MainTick::AcknowledgeJobEnd() {
  state_.JobState = 0;
  ReadJobStateFromDllStatus();
  if (state_.JobState != kJobEnded) return;
  channel_.WriteBackupStatus(status::kDllStatus, status::kDllNothing);
  Pause(kJobEndPause);
}

void MainTick::ReadContinuousCode() {
  const std::int16_t code =
      profile_.ReadUserNameInt(shared::sections::kTolvex, shared::keys::kRtBackup);
  if (code == 0) {
    state_.CdpRunning = false;
    state_.CdpIdle = true;
  }
  const auto job_state = ContinuousJobState(code);
  if (!job_state) return;
  state_.JobState = *job_state;
  const bool was_running = state_.CdpRunning;
  state_.CdpRunning = state_.JobState == kContinuousRunning;
  if (!state_.CdpRunning || was_running) return;
  state_.CdpIdle = false;
  Pause(kContinuousStartPause);
}

void MainTick::ShowContinuousIcon() {
  if (state_.JobState == kContinuousRunning) {
    Alternate(state_.CdpBlinkPhase, StatePicture::kContinuousBackup1,
              StatePicture::kContinuousBackup2);
  } else if (state_.JobState == kContinuousQuota) {
    if (!channel_.IsQuotaMarked()) channel_.MarkQuota();
  } else if (state_.JobState == kContinuousCancelled) {
    ShowStateIcon(StatePicture::kFailed);
  } else if (IsContinuousFailure(state_.JobState)) {
    // Both phases have the same picture.
    ShowStateIcon(StatePicture::kFailed);
    state_.BlinkPhase = !state_.BlinkPhase;
  }
}

void MainTick::ShowQuotaBlink() {
  const bool logged_in = registry_.ReadConnectionStatus() != 0 && !state_.CurrentUser.empty();
  if (!logged_in || !channel_.IsQuotaMarked()) return;
  Alternate(state_.QuotaBlinkPhase, StatePicture::kQuotaExceeded1, StatePicture::kQuotaExceeded2);
}

// In the partner edition the brand's picture stands for it; a missing one leaves the icon.
void MainTick::ShowNormalIcon() {
  if (!HasPartnerMarker(machine_.files, state_)) {
    icon_.SetTrayImage(StatePicture::kNormal);
  } else if (machine_.files.Exists(PicturePath(StatePicture::kBrand, state_))) {
    icon_.SetTrayImage(StatePicture::kBrand);
  }
}

// A branded edition never shows the colours of the states.
void MainTick::ShowStateIcon(StatePicture picture) {
  const bool partner = HasPartnerMarker(machine_.files, state_);
  icon_.SetTrayImage(partner ? StatePicture::kBrand : picture);
}

void MainTick::Alternate(bool& phase, StatePicture first, StatePicture second) {
  icon_.SetTrayImage(phase ? second : first);
  phase = !phase;
}

// A text that is empty or no number leaves the code.
void MainTick::ReadJobStateFromDllStatus() {
  const auto code = shared::ToInt16(channel_.ReadBackupStatus(status::kDllStatus));
  if (code) state_.JobState = *code;
}

void MainTick::Pause(std::uint32_t milliseconds) {
  icon_.Show();
  machine_.clock.Sleep(milliseconds);
}

}  // namespace agent
