// The virtual time of one machine, and who acts at which moment of it.
//
// Two kinds of things happen at due times. What other programs do (the world) happens as time
// passes, also while the agent sleeps or waits. The agent's own timers and messages run only while
// it pumps. Before each of the agent's steps everything of the world that is due has happened.
//
// Time moves in two ways: from due time to due time (Run, RunUntil, Sleep, Wait), "now" being
// exactly the due time inside each step; or at once (Jump), which makes everything between late,
// repeating things then happening once.
#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "platform/events.h"
#include "platform/local_time.h"
#include "platform/memory/agenda.h"
#include "platform/memory/gate.h"
#include "platform/memory/journal.h"

namespace platform::memory {

inline constexpr std::string_view kAgent = "agent";
inline constexpr std::string_view kFate = "fate";
inline constexpr std::uint32_t kForever = 0xFFFFFFFF;

class Timeline {
 public:
  // The shortest period of the system's timers.
  static constexpr std::uint32_t kShortestPeriod = 10;
  // A nested loop that is still unanswered this long after the end of the outermost Run has run
  // away.
  static constexpr std::uint64_t kPatience = 24ull * 3600 * 1000;
  // So have loops that open each other without end.
  static constexpr int kDeepest = 100;

  Timeline(Gate& gate, Journal& journal) : gate_(gate), journal_(journal) {}
  Timeline(const Timeline&) = delete;
  Timeline& operator=(const Timeline&) = delete;

  // Milliseconds since the machine was made.
  std::uint64_t now() const { return now_; }
  std::int64_t LocalSeconds() const { return wall_start_ + static_cast<std::int64_t>(now_ / 1000); }
  LocalTime LocalNow() const;
  // Sets the wall clock; virtual time and due times stay.
  void SetClock(const LocalTime& time);

  // The world. `time` is virtual; a time that is past is due at once.
  EventId At(std::uint64_t time, std::string who, std::function<void()> act);
  EventId Every(std::uint32_t period, std::string who, std::function<void()> act);
  void Cancel(EventId id) { world_.Remove(id); }

  // The agent's timers and messages. Messages come before timers.
  TimerId StartTimer(std::uint32_t period, std::function<void()> tick);
  void StopTimer(TimerId timer) { timers_.Remove(timer); }
  void AtAgent(std::uint64_t time, std::function<void()> act);
  // Runs `act` inside the n-th pump from now (1: the next), nested ones counted.
  void WhenPumped(std::function<void()> act, std::uint32_t nth = 1);

  // What the ports of the same names do. An actor neither sleeps nor pumps: it comes back later.
  void Sleep(std::uint32_t milliseconds);
  void Pump();
  void RunUntil(const std::function<bool()>& done);
  void Quit() { quit_ = true; }
  // Lets time pass without pumping until `done` holds: false when it did not in that time.
  bool Wait(std::uint32_t milliseconds, const std::function<bool()>& done);

  // The outermost loop: the agent pumps for this long. Ends early when the agent exits.
  void Run(std::uint64_t milliseconds);
  void Jump(std::uint64_t milliseconds) { now_ += milliseconds; }

  // The agent is gone: its timers and messages are dropped, every loop returns.
  void EndAgent();
  // A new agent may pump.
  void RenewAgent();
  bool agent_ended() const { return ended_; }
  bool quit() const { return quit_; }
  // No loop pumps any more: quit, ended or run away.
  bool HasQuit() const { return !Pumps(); }

  // More steps than this in one outermost loop are a runaway story: every loop returns from then
  // on, and what is pending stands in the journal ("runaway").
  void SetStepLimit(std::uint64_t steps) { step_limit_ = steps; }
  bool ran_away() const { return ran_away_; }

  // Who acts now: kAgent outside of world events.
  std::string_view acting() const { return acting_; }
  bool agent_acts() const { return acting_ == kAgent; }
  void ActAs(std::string_view who, const std::function<void()>& act);

 private:
  bool Pumps() const { return !quit_ && !ended_ && !ran_away_; }
  void RunWorld();
  using Ticked = std::set<EventId>;
  bool RunAgentStep(Ticked* ticked);
  void EnterPump();
  bool CountStep();
  void RunAway(std::string_view why);
  std::optional<std::uint64_t> NextDue(bool with_agent) const;

  Gate& gate_;
  Journal& journal_;
  std::uint64_t now_ = 0;
  std::int64_t wall_start_ = 1709287200;  // 2024-03-01 10:00:00
  Agenda world_;
  Agenda messages_;
  Agenda timers_;
  struct InPump {
    std::uint32_t left;
    std::function<void()> act;
  };
  std::vector<InPump> in_pump_;
  std::string acting_{kAgent};
  int depth_ = 0;
  std::uint64_t horizon_ = 0;
  bool has_horizon_ = false;
  std::uint64_t steps_ = 0;
  std::uint64_t step_limit_ = 20'000'000;
  std::uint64_t pumped_at_ = 0;
  std::uint64_t idle_pumps_ = 0;  // in this instant
  bool quit_ = false;
  bool ended_ = false;
  bool ran_away_ = false;
};

}  // namespace platform::memory
