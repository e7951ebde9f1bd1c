// What the agent adds to the calls of its machine: in one tick of the tray, one update of the tip,
// and one fast tick of the open status window.
#include <cstdio>

#include "agent/form_messages.h"
#include "agent/tray_tip.h"
#include "bench/compare.h"
#include "bench/measure.h"
#include "bench/real_agent.h"
#include "bench/window_watch.h"
#include "schedule/schedule_texts.h"
#include "status/ui/frm_status.h"

namespace {

using bench::RealAgent;

constexpr double kTickBar = 1.10;
constexpr double kTipBar = 1.15;

double MeasureTick(RealAgent& real) {
  const auto tick = bench::Compare(real.recorder(), [&] { real.agent().form().tick().TrayTick(); });
  bench::Tell("tick of the tray", tick);
  return tick.Ratio();
}

double MeasureTip(RealAgent& real) {
  shared::AgentState& state = real.agent().state();
  shared::Texts texts(real.platform(), state);
  const agent::SharedTexts shared_texts;
  schedule::ScheduleTexts schedule(real.platform(), state);
  agent::TrayTip tip(real.platform(), state, texts, shared_texts, schedule,
                     real.agent().form().icon());
  const auto update = bench::Compare(real.recorder(), [&] { tip.UpdateTrayTip(); });
  bench::Tell("update of the tip", update);
  std::printf("the tip: %s\n", real.agent().form().icon().tip().c_str());
  return update.Ratio();
}

struct QuietTick {
  bool watched = false;  // the other counts can be believed
  double ratio = 0;
  int messages = 0;  // to the window and its controls, repaints among them
  int changes = 0;   // of properties
};

// A watch that sees nothing would say the same as a window that does nothing.
bool WatchSees(forms::Form& window) {
  bench::WindowWatch watch(window.Window());
  window.SetCaption("watched");
  return watch.Messages() > 0;
}

QuietTick MeasureStatusWindow(RealAgent& real) {
  shared::AgentState& state = real.agent().state();
  schedule::ScheduleTexts schedule(real.platform(), state);
  agent::FormMessages messages(real.host(), state);
  status::frmStatus window(real.host(), real.platform(), state,
                           {schedule, real.agent().form().commands(), messages});
  window.Show();
  // The painting of the fresh window comes now, and not within the measured ticks.
  real.platform().events.Pump();
  forms::Timer* fast = nullptr;
  for (forms::Timer* timer : window.Timers()) {
    if (timer->Name() == "TmrCheckPause") fast = timer;
  }
  QuietTick quiet;
  quiet.watched = WatchSees(window);
  fast->on_tick();

  const int before = window.Changes();
  bench::WindowWatch watch(window.Window());
  const auto tick = bench::Compare(real.recorder(), [&] { fast->on_tick(); });
  quiet.messages = watch.Messages();
  quiet.changes = window.Changes() - before;
  quiet.ratio = tick.Ratio();
  bench::Tell("fast tick of the open status window", tick);
  return quiet;
}

}  // namespace

int main() {
  RealAgent real;
  if (!real.Start()) return 1;
  const double tick = MeasureTick(real);
  const double tip = MeasureTip(real);
  const QuietTick window = MeasureStatusWindow(real);
  if (!window.watched) {
    std::fputs("the messages of the window are not seen\n", stderr);
    return 1;
  }
  bench::PrintMeasure("windows_tick_ratio", tick, kTickBar);
  bench::PrintMeasure("windows_tip_ratio", tip, kTipBar);
  bench::PrintMeasure("windows_status_fast_tick_ratio", window.ratio, kTipBar);
  bench::PrintMeasure("windows_status_fast_tick_messages", window.messages, 0);
  bench::PrintMeasure("windows_status_fast_tick_property_changes", window.changes, 0);
}
