// The user's word to a running transfer: pause, cancel, bandwidth.
#include <string>

#include "shared/keys.h"
#include "shared/process_list.h"
#include "shared/profile_store.h"
#include "shared/transfer.h"
#include "status/bandwidth.h"
#include "status/progress_keys.h"
#include "status/status_controller.h"
#include "status/status_texts.h"
#include "status/transfer_view.h"

namespace status {

void StatusController::PauseClick() {
  // 1. The file decides, whatever the caption said.
  const bool pause = !channel_.SyncPaused();
  view_.transfer.says_resume = pause;
  channel_.WriteBackupStatus(kPaused, pause ? "1" : "0");
  // 2. The tray shows it without waiting for its tick.
  links_.commands.SetTrayIcon(pause ? PausedTip(channel_.ReadProgWnd(kProgWndJob))
                                    : links_.commands.BuildTrayTip());
  // 3.
  RefreshTransfer();
}

std::string StatusController::PausedTip(std::string_view job) const {
  if (job == kJobRestore) return state_.DisplayName + " - The restore operation has been paused.";
  if (job == kJobInteractive) return state_.DisplayName + " - Interactive backup has been paused.";
  return state_.DisplayName + " - The scheduled backup job has been paused.";
}

void StatusController::RefreshTransfer() {
  const TransferSnapshot transfer = ReadTransfer();
  RefreshProgressView(view_, transfer, ReadContext());
  ShowBandwidthSlider(view_.transfer.bandwidth, transfer);
  Render();
}

void StatusController::CancelClick() {
  // 1.
  links_.messages.Dismiss();
  // 2.
  const std::string job = channel_.ReadProgWnd(kProgWndJob);
  shared::Message question{job == kJobRestore ? kCancelRestoreQuestion : kCancelBackupQuestion};
  question.first_caption = "Yes";
  question.second_caption = "No";
  question.picture = shared::MessagePicture::kQuestion;
  TraceLine("Progress Cancel pressed");
  // 3.
  if (!links_.messages.ShowMessage(question)) {
    TraceLine("[INFORMATION] Progress Cancel confirm - NO");
    return;
  }
  // 4.
  TraceLine("[INFORMATION] Progress Cancel confirm - YES");
  TraceLine("[INFORMATION] strProgramVal :" + job);
  // 5. A scheduled job is stopped the tray's way.
  if (job == kJobScheduled) {
    links_.commands.StopClick();
  } else {
    ResetStatusWindow();
  }
  // 6.
  shared::ProcessList(machine_, state_)
      .IsProcessRunning(state_.ClientProgram, shared::WhenFound::kKill);
  // 7.
  machine_.events.Pump();
  channel_.ResetProgressFile();
  // 8.
  TraceLine("Backup or restore progress canceled.");
  view_.slow_timer = false;
  view_.fast_timer = false;
  Render();
  screen_.Unload();
}

void StatusController::ResetStatusWindow() {
  const StatusContext context = ReadContext();
  StatusEffects effects;
  IdleView idle = MakeIdleView(effects, context);
  // 1.
  const std::string job = channel_.ReadProgWnd(kProgWndJob);
  channel_.ResetProgressFile();
  // 2. The transfer had hidden what stands around the status line in either case.
  std::string stored;
  idle.SetStatusLine("");
  idle.GetNextTransferTime();
  if (job == kJobScheduled) {
    stored = context.texts.job_canceled;
    idle.SetStatusLine(stored);
  } else {
    view_.title = ScheduledTitle(context.display_name);
  }
  Apply(effects);
  // 3. No tick may see a half-cancelled job.
  view_.notification_shown = false;
  view_.transfer_shown = false;
  view_.pause_shown = false;
  view_.slow_timer = false;
  view_.fast_timer = false;
  Render();
  // 4. The wait is the engine's time to see the request.
  channel_.WriteBackupStatus(kCancel, "1");
  channel_.WriteBackupStatus(kPaused, "0");
  machine_.events.Pump();
  machine_.clock.Sleep(kCancelWait);
  // 5.
  idle.SetStatusLine(stored);
  channel_.WriteOutcome(stored);
  // 6. The engine may have written during the wait.
  channel_.ResetProgressFile();
  // 7.
  ReturnToIdle();
}

void StatusController::ReturnToIdle() {
  view_.transfer_shown = false;
  view_.transfer.controls_shown = false;
  view_.transfer.counters_shown = false;
  view_.transfer.rate_shown = false;
  view_.notification_shown = true;
  view_.slow_timer = true;
  view_.fast_timer = true;
  Render();
}

void StatusController::AutoPauseClick() {
  const TransferSnapshot now = ReadTransferSnapshot(machine_, state_);
  const bool turn_on = now.backup_idle != "1";
  BandwidthPanel& panel = view_.transfer.bandwidth;
  panel.auto_pause = turn_on;
  panel.value =
      turn_on ? IdleBandwidthValue(now.bandwidth_idle_state) : BandwidthValue(now.bandwidth);
  if (turn_on) panel.enabled = true;
  StoreBandwidth(turn_on, panel.value);
  Render();
}

// Both stores, the profile first. With auto-pause on both values of the profile are the idle one,
// so that the ordinary bandwidth follows it from then on.
void StatusController::StoreBandwidth(bool auto_pause, std::int16_t value) {
  shared::ProfileStore profile(machine_, state_);
  shared::clsTransfer transfer(machine_, state_);
  const std::string text = std::to_string(value);
  const std::string_view flag = auto_pause ? "1" : "0";
  transfer.Trf_WriteUserProfile(shared::keys::kBandwidth, text);
  if (auto_pause) transfer.Trf_WriteUserProfile(shared::keys::kBandwidthIdleState, text);
  transfer.Trf_WriteUserProfile(shared::keys::kBackupIdle, flag);
  // Those writes leave the client's user in the state.
  profile.RefreshCurrentUser();
  profile.WriteUserNameIni(shared::keys::kBackupIdleState, flag);
  profile.WriteUserNameIni(shared::keys::kBackupIdle, flag);
}

void StatusController::SliderMove(std::int16_t value) {
  sliding_ = value;
  Render();
}

void StatusController::SliderRelease() {
  sliding_.reset();
  shared::ProfileStore profile(machine_, state_);
  const bool auto_pause = profile.ReadUserNameIniPlain(shared::keys::kBackupIdle) == "1";
  profile.WriteUserNameIni(
      auto_pause ? shared::keys::kBandwidthIdleState : shared::keys::kBandwidth,
      std::to_string(view_.transfer.bandwidth.value));
}

}  // namespace status
