#include "platform/memory/timeline.h"

#include <algorithm>
#include <utility>

#include "platform/memory/wall_clock.h"

namespace platform::memory {
namespace {

// A loop that pumps this often in one instant waits for the clock: time moves under it from then
// on.
constexpr std::uint64_t kBusyPumps = 200'000;

}  // namespace

LocalTime Timeline::LocalNow() const {
  return LocalTimeOf(LocalSeconds());
}

void Timeline::SetClock(const LocalTime& time) {
  wall_start_ = SecondsOf(time) - static_cast<std::int64_t>(now_ / 1000);
}

EventId Timeline::At(std::uint64_t time, std::string who, std::function<void()> act) {
  return world_.Add({std::max(time, now_), 0, std::move(who), std::move(act)});
}

EventId Timeline::Every(std::uint32_t period, std::string who, std::function<void()> act) {
  period = std::max<std::uint32_t>(period, 1);
  return world_.Add({now_ + period, period, std::move(who), std::move(act)});
}

TimerId Timeline::StartTimer(std::uint32_t period, std::function<void()> tick) {
  period = std::max(period, kShortestPeriod);
  return static_cast<TimerId>(
      timers_.Add({now_ + period, period, std::string(kAgent), std::move(tick)}));
}

void Timeline::AtAgent(std::uint64_t time, std::function<void()> act) {
  messages_.Add({std::max(time, now_), 0, std::string(kAgent), std::move(act)});
}

void Timeline::WhenPumped(std::function<void()> act, std::uint32_t nth) {
  in_pump_.push_back({std::max<std::uint32_t>(nth, 1), std::move(act)});
}

void Timeline::Sleep(std::uint32_t milliseconds) {
  if (!agent_acts()) return;
  Wait(milliseconds, [] { return false; });
}

void Timeline::Pump() {
  if (!agent_acts() || !Pumps()) return;
  EnterPump();
  bool idle = true;
  Ticked ticked;
  while (Pumps() && RunAgentStep(&ticked)) idle = false;
  if (now_ != pumped_at_) idle_pumps_ = 0;
  pumped_at_ = now_;
  if (idle && ++idle_pumps_ > kBusyPumps) {
    pumped_at_ = ++now_;
    CountStep();
  }
}

void Timeline::RunUntil(const std::function<bool()>& done) {
  if (!agent_acts()) return;
  if (depth_ == 0) steps_ = 0;
  if (++depth_ > kDeepest) RunAway("nests its loops too deep");
  EnterPump();
  while (Pumps() && !done()) {
    if (RunAgentStep(nullptr)) continue;
    const std::optional<std::uint64_t> next = NextDue(true);
    if (!next) {
      RunAway("waits for a message that nobody sends");
    } else if (has_horizon_ && *next > horizon_ + kPatience) {
      RunAway("waits long after the end of the story");
    } else {
      now_ = std::max(now_, *next);
    }
  }
  --depth_;
}

bool Timeline::Wait(std::uint32_t milliseconds, const std::function<bool()>& done) {
  if (!agent_acts()) return done();
  const bool forever = milliseconds == kForever;
  const std::uint64_t end = now_ + milliseconds;
  RunWorld();
  while (!done()) {
    if (ran_away_) return false;
    const std::optional<std::uint64_t> next = NextDue(false);
    if (forever && !next) {
      RunAway("waits for an end that never comes");
      return false;
    }
    if (!forever && (!next || *next > end)) {
      now_ = std::max(now_, end);
      return false;
    }
    now_ = std::max(now_, *next);
    RunWorld();
  }
  return true;
}

void Timeline::Run(std::uint64_t milliseconds) {
  const bool outermost = depth_ == 0;
  const std::uint64_t end = now_ + milliseconds;
  if (outermost) {
    steps_ = 0;
    horizon_ = end;
    has_horizon_ = true;
  }
  ++depth_;
  EnterPump();
  const bool ended_before = ended_;
  while (!ran_away_ && ended_ == ended_before) {
    if (RunAgentStep(nullptr)) continue;
    const std::optional<std::uint64_t> next = NextDue(Pumps());
    if (!next || *next > end) break;
    now_ = std::max(now_, *next);
  }
  if (!ran_away_ && ended_ == ended_before) now_ = std::max(now_, end);
  --depth_;
  if (outermost) has_horizon_ = false;
}

void Timeline::EndAgent() {
  ended_ = true;
  messages_.Clear();
  timers_.Clear();
  in_pump_.clear();
}

void Timeline::RenewAgent() {
  EndAgent();
  ended_ = false;
  quit_ = false;
}

void Timeline::ActAs(std::string_view who, const std::function<void()>& act) {
  const std::string before = std::exchange(acting_, std::string(who));
  gate_.SetAside(who != kAgent);
  act();
  acting_ = before;
  gate_.SetAside(before != kAgent);
}

// Lets the world do all that is due.
void Timeline::RunWorld() {
  while (const auto item = world_.TakeDue(now_)) {
    if (!CountStep()) return;
    ActAs(item->who, item->run);
  }
}

// The world first, then one message or, without one, one timer. False when the agent had nothing to
// do.
bool Timeline::RunAgentStep(Ticked* ticked) {
  RunWorld();
  if (!Pumps()) return false;
  auto item = messages_.TakeDue(now_);
  if (!item) {
    item = timers_.TakeDue(now_);
    // A tick slower than its period is due again at once: with it one pump would never end.
    if (item && ticked != nullptr && !ticked->insert(item->id).second) return true;
  }
  if (!item) return false;
  if (!CountStep()) return false;
  item->run();
  return true;
}

void Timeline::EnterPump() {
  if (in_pump_.empty()) return;
  for (InPump& waiting : in_pump_) {
    if (--waiting.left == 0) AtAgent(now_, std::move(waiting.act));
  }
  std::erase_if(in_pump_, [](const InPump& waiting) { return waiting.left == 0; });
}

bool Timeline::CountStep() {
  if (++steps_ > step_limit_) RunAway("takes more steps than allowed");
  return !ran_away_;
}

void Timeline::RunAway(std::string_view why) {
  if (ran_away_) return;
  ran_away_ = true;
  journal_.Add(now_, acting_, "runaway", std::string(why));
  for (const Agenda* agenda : {&world_, &messages_, &timers_}) {
    for (std::string& line : agenda->Pending()) {
      journal_.Add(now_, acting_, "runaway", "pending " + line);
    }
  }
}

std::optional<std::uint64_t> Timeline::NextDue(bool with_agent) const {
  std::optional<std::uint64_t> next = world_.NextDue();
  if (!with_agent) return next;
  for (const Agenda* agenda : {&messages_, &timers_}) {
    const std::optional<std::uint64_t> due = agenda->NextDue();
    if (due && (!next || *due < *next)) next = due;
  }
  return next;
}

}  // namespace platform::memory
