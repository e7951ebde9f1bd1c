#include "status/status_controller.h"

#include <string>

#include "shared/engine_bridge.h"
#include "shared/engine_commands.h"
#include "shared/process_list.h"
#include "shared/profile_store.h"
#include "status/fast_tick.h"
#include "status/progress_keys.h"
#include "status/status_texts.h"

namespace status {

StatusController::StatusController(platform::Platform& machine, shared::AgentState& state,
                                   const StatusLinks& links, StatusScreen& screen)
    : machine_(machine),
      state_(state),
      links_(links),
      screen_(screen),
      channel_(machine, state),
      trace_(machine, state) {}

void StatusController::Load() {
  view_ = {};
  memory_ = {};
  sliding_.reset();
  Decide([this](IdleView& idle) {
    idle.Load(ReadTransfer(), channel_.ReadBackupStatus(kDesktopNotification));
  });
}

void StatusController::SlowTick() {
  Decide([this](IdleView& idle) { idle.Periodic(ReadTransfer()); });
}

void StatusController::Decide(const std::function<void(IdleView&)>& decide) {
  const StatusContext context = ReadContext();
  StatusEffects effects;
  const bool forced = state_.ForceStatusRefresh;
  memory_.force_refresh = forced;
  shared::ProfileStore(machine_, state_).RefreshCurrentUser();
  IdleView idle = MakeIdleView(effects, context);
  decide(idle);
  // Reading pumps: what the tray's tick forced meanwhile is for the next decision.
  if (forced) state_.ForceStatusRefresh = memory_.force_refresh;
  Finish(effects);
}

void StatusController::FastTick() {
  const StatusContext context = ReadContext();
  StatusEffects effects;
  const std::string user = shared::ProfileStore(machine_, state_).RefreshCurrentUser();
  IdleView idle = MakeIdleView(effects, context);
  DecideFastTick({view_, memory_, effects, context}, idle, user, ReadTransfer());
  Finish(effects);
}

void StatusController::NotificationClick(bool checked) {
  view_.notification_checked = checked;
  channel_.WriteBackupStatus(kDesktopNotification, checked ? "1" : "0");
}

void StatusController::ViewLogClick() {
  TraceLine("   [INFORMATION] Entered into View-Log Click Event");
  screen_.SetShown(false);
  links_.commands.OpenSessionLog();
  screen_.SetShown(true);
  const std::string dll_status = channel_.ReadBackupStatus(kDllStatus);
  if (dll_status == kDllStopped || dll_status == kDllEnded) {
    channel_.WriteBackupStatus(kDllStatus, kDllNothing);
  }
  TraceLine("   [INFORMATION] Completed View-Log functionality");
  const StatusContext context = ReadContext();
  if (channel_.SyncPaused() || view_.status_line == context.texts.job_in_progress) return;
  StatusEffects effects;
  IdleView idle = MakeIdleView(effects, context);
  if (channel_.HasFailed()) {
    idle.SetStatusLine(kBackupHasFailed);
  } else if (channel_.ReadBackupStatusInt(kMessageIndicator) != kIndicatorQuota) {
    effects.WriteOutcome("");
    effects.WriteIndicator("0");
    idle.GetNextTransferTime();
    effects.Trace("   [INFORMATION] Viewed the Log.So, Change Status Message");
  }
  Finish(effects);
}

void StatusController::CloseClick() {
  if (channel_.IsTransferInProgress()) TraceLine("Exiting without reset");
  view_.fast_timer = false;
  Render();
  screen_.Unload();
}

IdleView StatusController::MakeIdleView(StatusEffects& effects, const StatusContext& context) {
  return IdleView(
      view_, memory_, effects, [this] { return ReadIdleSnapshot(machine_, state_); }, context,
      links_.schedule);
}

StatusContext StatusController::ReadContext() {
  return ReadStatusContext(machine_, state_, screen_.LargeFontMode());
}

// A refresh of the transfer view goes with the normal priority: the engine's scheduling must not
// leave the agent starved.
TransferSnapshot StatusController::ReadTransfer() {
  TransferSnapshot transfer = ReadTransferSnapshot(machine_, state_);
  if (transfer.IsShownHere()) machine_.processes.SetNormalPriority();
  return transfer;
}

void StatusController::Finish(const StatusEffects& effects) {
  Apply(effects);
  if (effects.GivesWay()) {
    links_.commands.DisableStatusEntry();
    screen_.Unload();
  } else {
    Render();
  }
}

// A tick does not move the slider under the hand that holds it, as long as it is there to be held.
void StatusController::Render() {
  if (!view_.transfer_shown) sliding_.reset();
  if (sliding_) view_.transfer.bandwidth.value = *sliding_;
  screen_.Render(view_);
}

// All that a decision writes is written here.
void StatusController::Apply(const StatusEffects& effects) {
  for (const Effect& effect : effects.InOrder()) {
    switch (effect.kind) {
      case EffectKind::kTrace:
        TraceLine(effect.text);
        break;
      case EffectKind::kWriteOutcome:
        channel_.WriteOutcome(effect.text);
        break;
      case EffectKind::kWriteIndicator:
        channel_.WriteBackupStatus(kMessageIndicator, effect.text);
        break;
      case EffectKind::kRefreshQuota:
        shared::EngineBridge(machine_, state_)
            .StartEngineCommand(shared::commands::kRefreshQuota.argument);
        break;
    }
  }
}

void StatusController::TraceLine(std::string_view line) {
  const bool apart = line.starts_with(' ');
  trace_.WriteStamped(apart ? std::string(line) : " " + std::string(line));
}

}  // namespace status
