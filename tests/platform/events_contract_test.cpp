// Timers and pumping: when the agent's one thread does what.
#include "tests/platform/contract_test.h"

namespace {

using platform::TimerId;
using platform::WaitResult;

constexpr std::uint32_t kPeriod = 40;
constexpr std::uint32_t kSeveralPeriods = 200;
constexpr std::uint32_t kLongPeriod = 3600000;

class EventsContract : public ContractTest {
 protected:
  platform::Events& events() { return ports().events; }
  void Sleep(std::uint32_t milliseconds) { ports().clock.Sleep(milliseconds); }

  TimerId CountTicks(std::uint32_t period = kPeriod) {
    return events().StartTimer(period, [this] { ++ticks_; });
  }

  int ticks_ = 0;
};

TEST_F(EventsContract, TicksAgainAndAgainWhilePumping) {
  EXPECT_NE(CountTicks(), platform::kNoTimer);
  events().RunUntil([this] { return ticks_ >= 3; });
  EXPECT_EQ(ticks_, 3);
}

TEST_F(EventsContract, TicksNotBeforeItIsDue) {
  CountTicks(kLongPeriod);
  events().Pump();
  EXPECT_EQ(ticks_, 0);
}

TEST_F(EventsContract, DoesNotTickWhileTheThreadSleeps) {
  CountTicks();
  Sleep(kSeveralPeriods);
  EXPECT_EQ(ticks_, 0);
}

TEST_F(EventsContract, TicksOnceForAllThatCameDueInASleep) {
  CountTicks();
  Sleep(kSeveralPeriods);
  events().Pump();
  EXPECT_EQ(ticks_, 1);
}

TEST_F(EventsContract, KeepsTimersApart) {
  int others = 0;
  const TimerId mine = CountTicks();
  const TimerId other = events().StartTimer(kPeriod, [&others] { ++others; });
  EXPECT_NE(mine, other);
  Sleep(kSeveralPeriods);
  events().Pump();
  EXPECT_EQ(ticks_, 1);
  EXPECT_EQ(others, 1);
}

TEST_F(EventsContract, StopsATimerThatIsDue) {
  const TimerId timer = CountTicks();
  Sleep(kSeveralPeriods);
  events().StopTimer(timer);
  events().Pump();
  EXPECT_EQ(ticks_, 0);
}

TEST_F(EventsContract, StopsATimerInsideItsOwnTick) {
  TimerId timer = platform::kNoTimer;
  timer = events().StartTimer(kPeriod, [&] {
    ++ticks_;
    events().StopTimer(timer);
  });
  Sleep(kSeveralPeriods);
  events().Pump();
  Sleep(kSeveralPeriods);
  events().Pump();
  EXPECT_EQ(ticks_, 1);
}

TEST_F(EventsContract, StopsAStoppedOrUnknownTimerWithoutHarm) {
  const TimerId timer = CountTicks();
  events().StopTimer(timer);
  events().StopTimer(timer);
  events().StopTimer(platform::kNoTimer);
  events().StopTimer(timer + 1000);
  Sleep(kSeveralPeriods);
  events().Pump();
  EXPECT_EQ(ticks_, 0);
}

TEST_F(EventsContract, StartsATimerInsideATick) {
  TimerId first = platform::kNoTimer;
  first = events().StartTimer(kPeriod, [&] {
    events().StopTimer(first);
    CountTicks();
  });
  events().RunUntil([this] { return ticks_ == 2; });
  EXPECT_EQ(ticks_, 2);
}

TEST_F(EventsContract, RunsOtherTimersInANestedPump) {
  bool nested = false;
  TimerId outer = platform::kNoTimer;
  outer = events().StartTimer(kPeriod, [&] {
    events().StopTimer(outer);
    CountTicks();
    Sleep(kSeveralPeriods);
    events().Pump();
    nested = ticks_ == 1;
  });
  Sleep(kSeveralPeriods);
  events().Pump();
  EXPECT_TRUE(nested);
}

TEST_F(EventsContract, RunsTheSameTimerInANestedPump) {
  int depth = 0;
  int deepest = 0;
  events().StartTimer(kPeriod, [&] {
    deepest = std::max(deepest, ++depth);
    if (depth == 1) {
      Sleep(kSeveralPeriods);
      events().Pump();
    }
    --depth;
  });
  Sleep(kSeveralPeriods);
  events().Pump();
  EXPECT_EQ(deepest, 2);
}

TEST_F(EventsContract, PumpsATickThatIsSlowerThanItsPeriodOnlyOnce) {
  events().StartTimer(kPeriod, [this] {
    ++ticks_;
    Sleep(kSeveralPeriods);
  });
  Sleep(kSeveralPeriods);
  events().Pump();
  EXPECT_EQ(ticks_, 1);
}

TEST_F(EventsContract, EndsANestedLoopWithoutTheOuterOne) {
  int inner_ticks = 0;
  bool inner_ended = false;
  TimerId outer = platform::kNoTimer;
  outer = events().StartTimer(kPeriod, [&] {
    events().StopTimer(outer);
    events().StartTimer(kPeriod, [&] { ++inner_ticks; });
    events().RunUntil([&] { return inner_ticks >= 2; });
    inner_ended = true;
  });
  events().RunUntil([&] { return inner_ended && inner_ticks >= 3; });
  EXPECT_EQ(inner_ticks, 3);
}

TEST_F(EventsContract, DoesNotWaitForWhatIsDoneAlready) {
  CountTicks();
  Sleep(kSeveralPeriods);
  events().RunUntil([] { return true; });
  EXPECT_EQ(ticks_, 0);
}

TEST_F(EventsContract, EndsEveryLoopOnQuit) {
  EXPECT_FALSE(events().HasQuit());
  TimerId outer = platform::kNoTimer;
  outer = events().StartTimer(kPeriod, [&] {
    events().StopTimer(outer);
    ++ticks_;
    events().StartTimer(kPeriod, [&] { events().Quit(); });
    events().RunUntil([] { return false; });
  });
  events().RunUntil([] { return false; });
  EXPECT_EQ(ticks_, 1);
  EXPECT_TRUE(events().HasQuit());
}

TEST_F(EventsContract, PumpsNoMoreAfterQuit) {
  CountTicks();
  events().Quit();
  Sleep(kSeveralPeriods);
  events().Pump();
  events().RunUntil([] { return false; });
  EXPECT_EQ(ticks_, 0);
}

TEST_F(EventsContract, WaitsForTheEndOfAProcessWithoutTicking) {
  CountTicks();
  const std::string program = machine_->ProgramThatEnds("Client.exe", kSeveralPeriods);
  const auto started = ports().shell.Start(platform::ShellVerb::kOpen, program, "",
                                           machine_->Folder(), platform::WindowShow::kHidden);
  ASSERT_NE(started.handle, platform::kNoProcess);
  EXPECT_EQ(events().WaitForProcess(started.handle, 30000), WaitResult::kSignalled);
  EXPECT_EQ(ticks_, 0);
}

TEST_F(EventsContract, WaitsWithoutALimit) {
  constexpr std::uint32_t kNoLimit = 0xFFFFFFFF;
  const std::string program = machine_->ProgramThatEnds("Client.exe", 0);
  const auto started = ports().shell.Start(platform::ShellVerb::kOpen, program, "",
                                           machine_->Folder(), platform::WindowShow::kHidden);
  EXPECT_EQ(events().WaitForProcess(started.handle, kNoLimit), WaitResult::kSignalled);
}

TEST_F(EventsContract, GivesUpWaitingAfterTheTime) {
  const std::string program = machine_->ProgramThatEnds("Client.exe", 3000);
  const auto started = ports().shell.Start(platform::ShellVerb::kOpen, program, "",
                                           machine_->Folder(), platform::WindowShow::kHidden);
  EXPECT_EQ(events().WaitForProcess(started.handle, kPeriod), WaitResult::kTimedOut);
}

TEST_F(EventsContract, FailsAtOnceForAHandleOfNothing) {
  constexpr std::uint32_t kLong = 600000;
  EXPECT_EQ(events().WaitForProcess(0, kLong), WaitResult::kFailed);
  EXPECT_EQ(events().WaitForProcess(0x7FFFFFF0, kLong), WaitResult::kFailed);
}

TEST_F(EventsContract, LetsTheTimePassWithoutAProcess) {
  const auto before = ports().clock.Milliseconds();
  EXPECT_EQ(events().WaitForProcess(platform::kNoProcess, kPeriod), WaitResult::kTimedOut);
  EXPECT_GE(ports().clock.Milliseconds() - before, kPeriod);
}

}  // namespace
