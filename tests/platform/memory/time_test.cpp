// How time moves, and what happens in it.
#include <gtest/gtest.h>

#include <utility>

#include "platform/memory/machine.h"

namespace platform::memory {
namespace {

using Times = std::vector<std::uint64_t>;

class MemoryTime : public testing::Test {
 protected:
  Events& events() { return machine_.platform().events; }
  Clock& clock() { return machine_.platform().clock; }
  // Writes down the virtual time, at each call.
  std::function<void()> NoteTime() {
    return [this] { times_.push_back(machine_.now()); };
  }

  Machine machine_;
  Times times_;
};

TEST_F(MemoryTime, LetsOtherProgramsActWhileTheAgentSleeps) {
  machine_.At(500, NoteTime());
  machine_.At(900, NoteTime());
  machine_.At(1500, NoteTime());
  clock().Sleep(1000);
  EXPECT_EQ(times_, (Times{500, 900}));
  EXPECT_EQ(machine_.now(), 1000u);
}

TEST_F(MemoryTime, RunsNoTimerOfTheAgentWhileItSleeps) {
  events().StartTimer(100, NoteTime());
  clock().Sleep(1000);
  EXPECT_EQ(times_, Times{});
}

TEST_F(MemoryTime, RunsALateTimerOnceAndThenInItsOldStep) {
  events().StartTimer(3000, NoteTime());
  clock().Sleep(10000);
  machine_.Run(5000);
  EXPECT_EQ(times_, (Times{10000, 12000, 15000}));
}

TEST_F(MemoryTime, LetsTheWorldActBeforeTheAgentAtOneTime) {
  std::string order;
  events().StartTimer(1000, [&] { order += "tick "; });
  machine_.At(1000, [&] { order += "world "; });
  machine_.AtAgent(1000, [&] { order += "message "; });
  machine_.Run(1000);
  EXPECT_EQ(order, "world message tick ");
}

TEST_F(MemoryTime, JumpsOverWhatComesDueAndLetsItHappenOnceAfter) {
  events().StartTimer(1000, NoteTime());
  machine_.Every(1000, NoteTime());
  machine_.Jump(60000);
  EXPECT_EQ(times_, Times{});
  machine_.Run(0);
  EXPECT_EQ(times_, (Times{60000, 60000}));
}

TEST_F(MemoryTime, KeepsDueTimesWhenTheWallClockIsSet) {
  events().StartTimer(1000, NoteTime());
  machine_.SetClock({2024, 2, 29, 23, 59, 59});
  EXPECT_EQ(clock().Now(), (LocalTime{2024, 2, 29, 23, 59, 59}));
  machine_.Run(2000);
  EXPECT_EQ(times_, (Times{1000, 2000}));
  EXPECT_EQ(clock().Now(), (LocalTime{2024, 3, 1, 0, 0, 1}));
  EXPECT_EQ(clock().Milliseconds(), 2000u);
}

TEST_F(MemoryTime, CallsATimerAgainInsideItsOwnLoop) {
  int depth = 0;
  events().StartTimer(1000, [&] {
    times_.push_back(machine_.now());
    if (++depth == 1) events().RunUntil([&] { return times_.size() == 3; });
  });
  machine_.Run(4000);
  EXPECT_EQ(times_, (Times{1000, 2000, 3000, 4000}));
}

TEST_F(MemoryTime, PutsAnInputIntoTheNestedPumpThatTheTestNames) {
  machine_.WhenPumped(NoteTime(), 3);
  events().Pump();
  clock().Sleep(10);
  events().Pump();
  clock().Sleep(10);
  EXPECT_EQ(times_, Times{});
  events().Pump();
  EXPECT_EQ(times_, Times{20});
}

TEST_F(MemoryTime, DoesNotRunInputsOfTheAgentWhileItSleeps) {
  machine_.AtAgent(10, NoteTime());
  clock().Sleep(100);
  EXPECT_EQ(times_, Times{});
  events().Pump();
  EXPECT_EQ(times_, Times{100});
}

TEST_F(MemoryTime, WaitsForAProcessWhileTheWorldGoesOn) {
  const ProcessId id = machine_.processes().Start("C:\\Sorvane\\Client.exe");
  machine_.processes().After(id, 700, [&] { machine_.processes().End(id, 3); });
  events().StartTimer(100, NoteTime());
  const ProcessHandle handle = machine_.processes().HandleOf(id);
  EXPECT_EQ(events().WaitForProcess(handle, 500), WaitResult::kTimedOut);
  EXPECT_EQ(machine_.now(), 500u);
  EXPECT_EQ(events().WaitForProcess(handle, 500), WaitResult::kSignalled);
  EXPECT_EQ(machine_.now(), 700u);
  EXPECT_EQ(times_, Times{});
}

TEST_F(MemoryTime, DoesNotLetActorsSleepOrPump) {
  events().StartTimer(100, NoteTime());
  machine_.At(1000, [&] {
    clock().Sleep(5000);
    events().Pump();
  });
  clock().Sleep(1500);
  EXPECT_EQ(machine_.now(), 1500u);
  EXPECT_EQ(times_, Times{});
}

TEST_F(MemoryTime, MovesOnUnderALoopThatOnlyPumps) {
  const std::uint64_t start = clock().Milliseconds();
  while (clock().Milliseconds() - start < 50) events().Pump();
  EXPECT_EQ(machine_.now(), 50u);
}

TEST_F(MemoryTime, EndsAStoryThatTakesTooManySteps) {
  machine_.SetStepLimit(100);
  events().StartTimer(1000, NoteTime());
  machine_.Run(3600000);
  EXPECT_TRUE(machine_.ran_away());
  EXPECT_EQ(times_.size(), 100u);
  EXPECT_EQ(machine_.journal().Excerpt("runaway"),
            (std::vector<std::string>{"takes more steps than allowed", "pending 102000 agent"}));
  machine_.Run(1000);
  EXPECT_EQ(times_.size(), 100u);
}

TEST_F(MemoryTime, EndsALoopThatNobodyAnswers) {
  events().RunUntil([] { return false; });
  EXPECT_TRUE(machine_.ran_away());
  EXPECT_TRUE(events().HasQuit());
}

TEST_F(MemoryTime, EndsANestedLoopThatOutlivesItsStory) {
  bool opened = false;
  events().StartTimer(3000, [&] {
    if (!std::exchange(opened, true)) events().RunUntil([] { return false; });
  });
  machine_.Run(10000);
  EXPECT_TRUE(machine_.ran_away());
  EXPECT_GT(machine_.now(), 10000 + Timeline::kPatience - 3000);
}

TEST_F(MemoryTime, EndsLoopsThatOpenEachOther) {
  events().StartTimer(3000, [&] { events().RunUntil([] { return false; }); });
  machine_.Run(3600000);
  EXPECT_TRUE(machine_.ran_away());
  EXPECT_EQ(machine_.journal().Excerpt("runaway").front(), "nests its loops too deep");
}

TEST_F(MemoryTime, EndsAWaitForWhatNeverComes) {
  const ProcessId id = machine_.processes().Start("C:\\Sorvane\\Client.exe");
  EXPECT_EQ(events().WaitForProcess(machine_.processes().HandleOf(id), kForever),
            WaitResult::kTimedOut);
  EXPECT_TRUE(machine_.ran_away());
}

TEST_F(MemoryTime, LetsTheWorldGoOnAfterTheAgentQuit) {
  events().StartTimer(1000, [&] { events().Quit(); });
  machine_.Every(1000, NoteTime());
  machine_.Run(3000);
  EXPECT_EQ(times_, (Times{1000, 2000, 3000}));
  EXPECT_TRUE(machine_.quit());
}

TEST_F(MemoryTime, LetsANewAgentRunOnTheSameMachine) {
  events().StartTimer(1000, [&] { machine_.platform().processes.ExitSelf(0); });
  machine_.Run(5000);
  EXPECT_TRUE(machine_.exited());
  machine_.RenewAgent();
  EXPECT_FALSE(machine_.exited());
  events().StartTimer(1000, NoteTime());
  machine_.Run(2000);
  EXPECT_EQ(times_, (Times{2000, 3000}));
}

}  // namespace
}  // namespace platform::memory
