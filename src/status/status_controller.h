// What the status window does: its two ticks and its buttons, from the shared files to the view and
// back.
//
// It lives as long as the window's object and starts afresh at each load, so that a handler that is
// still under way when the window is loaded anew (behind a question, say) finds it whole. Files
// touched: those of ProgressChannel, UserName.ini (`Registry`) and the profile (`Tolvex`) for the
// bandwidth, the tray trace.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"
#include "shared/messages.h"
#include "shared/trace.h"
#include "status/idle_view.h"
#include "status/progress_channel.h"
#include "status/schedule_texts.h"
#include "status/status_screen.h"
#include "status/status_snapshot.h"
#include "status/status_view.h"

namespace status {

// Whom the window turns to.
struct StatusLinks {
  ScheduleTexts& schedule;
  shared::AgentCommands& commands;
  shared::Messages& messages;
};

class StatusController {
 public:
  StatusController(platform::Platform& machine, shared::AgentState& state, const StatusLinks& links,
                   StatusScreen& screen);

  const StatusView& View() const { return view_; }

  // When the window is made, every 10 seconds, and every 2 seconds.
  void Load();
  void SlowTick();
  void FastTick();

  // Pause and Resume: writes `Paused`, sets the tray's tip, refreshes the transfer.
  void PauseClick();

  // Cancel: asks, ends the job and the engine client, clears the channel, unloads.
  void CancelClick();

  // Asks the engine to end, waits a second for it, leaves the outcome, and returns to rest. Also
  // the end of the tray's stop command.
  void ResetStatusWindow();

  // The box of auto-pause: turns it over and stores both settings of the bandwidth.
  void AutoPauseClick();

  // The slider moves, and is let go: only then the value (percent) is stored.
  void SliderMove(std::int16_t value);
  void SliderRelease();

  // "Show this dialog after each schedule backup".
  void NotificationClick(bool checked);

  // The log window, in place of this one. Having seen the log counts as having read the outcome.
  void ViewLogClick();

  // Close, the corner button and Escape.
  void CloseClick();

 private:
  IdleView MakeIdleView(StatusEffects& effects, const StatusContext& context);
  StatusContext ReadContext();
  TransferSnapshot ReadTransfer();
  void Finish(const StatusEffects& effects);
  void Render();
  void Apply(const StatusEffects& effects);
  void TraceLine(std::string_view line);
  void Decide(const std::function<void(IdleView&)>& decide);
  void RefreshTransfer();
  void ReturnToIdle();
  std::string PausedTip(std::string_view job) const;
  void StoreBandwidth(bool auto_pause, std::int16_t value);

  platform::Platform& machine_;
  shared::AgentState& state_;
  StatusLinks links_;
  StatusScreen& screen_;
  ProgressChannel channel_;
  shared::Trace trace_;
  StatusView view_;
  StatusMemory memory_;
  std::optional<std::int16_t> sliding_;  // the value under the hand that holds the slider
};

}  // namespace status
