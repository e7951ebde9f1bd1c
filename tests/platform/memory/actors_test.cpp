// Other programs on the machine: processes, windows and what fate does to them.
#include <gtest/gtest.h>

#include "platform/memory/machine.h"

namespace platform::memory {
namespace {

using Lines = std::vector<std::string>;

constexpr char kClient[] = "C:\\Sorvane\\Client.exe";
constexpr char kIni[] = "C:\\Sorvane\\State.ini";

class MemoryActors : public testing::Test {
 protected:
  MemoryActors() {
    machine_.files().Put(kClient, "MZ");
    // Says that it runs, counts up once a second, and ends after three.
    machine_.processes().Install(kClient, [this](const Launch& launch) {
      machine_.files().PutIni(kIni, "S", "Arguments", launch.arguments);
      machine_.processes().Every(launch.id, 1000, [this, id = launch.id] {
        machine_.files().PutIni(kIni, "S", "Count", std::to_string(++count_));
        if (count_ == 3) machine_.processes().End(id);
      });
    });
  }
  Platform& platform() { return machine_.platform(); }

  Machine machine_;
  int count_ = 0;
};

TEST_F(MemoryActors, RunAProgramOnItsOwnAgenda) {
  const StartResult started =
      platform().shell.Start(ShellVerb::kOpen, kClient, "23", "", WindowShow::kHidden);
  EXPECT_EQ(machine_.files().IniValue(kIni, "S", "Arguments"), "23");
  platform().clock.Sleep(2500);
  EXPECT_EQ(machine_.files().IniValue(kIni, "S", "Count"), "2");
  EXPECT_TRUE(machine_.processes().IsRunning("client.exe"));
  EXPECT_EQ(platform().events.WaitForProcess(started.handle, 60000), WaitResult::kSignalled);
  EXPECT_FALSE(machine_.processes().IsRunning("client.exe"));
  platform().clock.Sleep(60000);
  EXPECT_EQ(count_, 3);
}

TEST_F(MemoryActors, StandInTheJournalUnderTheirNames) {
  machine_.processes().Start(kClient, "7");
  machine_.journal().Clear();
  machine_.Run(1000);
  EXPECT_EQ(machine_.journal().Lines(),
            (Lines{"1000 Client.exe profile C:\\Sorvane\\State.ini [S] Count=1"}));
  EXPECT_TRUE(machine_.journal().Excerpt("profile").empty());
}

TEST_F(MemoryActors, DoNothingMoreOnceKilled) {
  machine_.processes().Start(kClient);
  machine_.Run(1000);
  machine_.KillProcess("Client.exe");
  machine_.Run(10000);
  EXPECT_EQ(count_, 1);
}

TEST_F(MemoryActors, EndWhenTheAgentTerminatesThem) {
  const ProcessId id = machine_.processes().Start(kClient);
  machine_.processes().SetTerminable(id, false);
  EXPECT_EQ(platform().processes.Terminate(id, 0x1F0FFF), 5u);
  machine_.processes().SetTerminable(id, true);
  EXPECT_EQ(platform().processes.Terminate(id, 0x1F0FFF), 0u);
  machine_.Run(5000);
  EXPECT_EQ(count_, 0);
  EXPECT_EQ(machine_.journal().Excerpt("process"),
            (Lines{"start C:\\Sorvane\\Client.exe", "terminate Client.exe failed 5",
                   "terminate Client.exe"}));
}

TEST_F(MemoryActors, HideProcessesThatCannotBeRead) {
  const ProcessId id = machine_.processes().Start(kClient);
  const auto seen = [&] {
    bool found = false;
    platform().processes.WalkModuleNames(1024, [&](const ProcessEntry& entry) {
      found = found || entry.id == id;
      return true;
    });
    return found;
  };
  EXPECT_TRUE(seen());
  machine_.processes().SetReadable(id, false);
  EXPECT_FALSE(seen());
}

TEST_F(MemoryActors, RunABatchFileByTheCommandProcessor) {
  machine_.files().Put("C:\\Sorvane\\Start.bat", "@echo off");
  int runs = 0;
  machine_.processes().Install("Start.bat", [&](const Launch& launch) {
    ++runs;
    machine_.processes().End(launch.id);
  });
  EXPECT_GT(platform().shell.Open("C:\\Sorvane\\Start.bat", "", "", WindowShow::kHidden), 32);
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(machine_.journal().Count("process", "end cmd.exe 0"), 1u);
}

TEST_F(MemoryActors, HoldMutexesOfTheirOwn) {
  machine_.processes().HoldMutexElsewhere("Sorvane");
  EXPECT_EQ(platform().processes.HoldMutex("Sorvane"), kErrorAlreadyExists);
  machine_.processes().ReleaseMutexElsewhere("Sorvane");
  EXPECT_EQ(platform().processes.HoldMutex("Sorvane"), 0u);
}

TEST_F(MemoryActors, AnswerMessagesAndLoseTheirWindowsWithTheProcess) {
  const ProcessId id = machine_.processes().Start(kClient);
  machine_.windows().Add({"Class", "Client window", id, false,
                          [&](std::uint32_t message, std::uintptr_t wparam, std::intptr_t) {
                            if (message == 16) machine_.processes().End(id);
                            return static_cast<std::intptr_t>(wparam + 1);
                          }});
  OtherWindows& windows = platform().other_windows;
  const WindowId window = windows.Find("", "client WINDOW");
  ASSERT_NE(window, kNoWindow);
  EXPECT_EQ(windows.Send(window, 1034, 6, 0), 7);
  EXPECT_TRUE(windows.Post(window, 16, 0, 0));
  EXPECT_EQ(windows.Find("", "Client window"), window);
  machine_.Run(0);
  EXPECT_EQ(windows.Find("", "Client window"), kNoWindow);
  EXPECT_FALSE(windows.Post(window, 16, 0, 0));
  EXPECT_EQ(
      machine_.journal().Excerpt("window"),
      (Lines{"send Client window 1034 6 0", "post Client window 16 0 0", "post nowhere 16 0 0"}));
}

TEST_F(MemoryActors, TellTheAgentsWindowsOfTheEndOfTheSession) {
  Lines messages;
  machine_.SetAgentWindow(
      [&](std::uintptr_t window, std::uint32_t message, std::uintptr_t wparam, std::intptr_t) {
        messages.push_back(std::to_string(window) + " " + std::to_string(message) + " " +
                           std::to_string(wparam));
      });
  machine_.EndSession();
  EXPECT_TRUE(messages.empty());
  machine_.Run(0);
  EXPECT_EQ(messages, (Lines{"0 17 0", "0 22 1"}));
}

TEST_F(MemoryActors, TakeTheIconAwayWithTheShellAndTellOfTheNewOne) {
  std::uint32_t heard = 0;
  machine_.SetAgentWindow([&](std::uintptr_t, std::uint32_t message, std::uintptr_t,
                              std::intptr_t) { heard = message; });
  EXPECT_TRUE(platform().shell.AddIcon(5, 512, kNoPicture, "tip"));
  machine_.RestartShell();
  EXPECT_FALSE(machine_.shell().icon());
  machine_.Run(0);
  EXPECT_EQ(heard, platform().other_windows.RegisterMessage("TaskbarCreated"));
  EXPECT_TRUE(platform().shell.AddIcon(5, 512, kNoPicture, "tip"));
}

TEST_F(MemoryActors, TellTheAgentsWindowOfTheMouseOnItsIcon) {
  Lines messages;
  machine_.SetAgentWindow(
      [&](std::uintptr_t window, std::uint32_t message, std::uintptr_t, std::intptr_t lparam) {
        messages.push_back(std::to_string(window) + " " + std::to_string(message) + " " +
                           std::to_string(lparam));
      });
  machine_.TouchIcon(515);
  EXPECT_TRUE(platform().shell.AddIcon(5, 512, kNoPicture, "tip"));
  machine_.TouchIcon(515);
  machine_.Run(0);
  EXPECT_EQ(messages, (Lines{"5 512 515"}));
}

TEST_F(MemoryActors, SuspendTheMachineBetweenTwoMessages) {
  Lines messages;
  machine_.SetAgentWindow(
      [&](std::uintptr_t, std::uint32_t message, std::uintptr_t wparam, std::intptr_t) {
        messages.push_back(std::to_string(machine_.now()) + " " + std::to_string(message) + " " +
                           std::to_string(wparam));
      });
  machine_.Suspend(3600000);
  machine_.Run(0);
  EXPECT_EQ(messages, (Lines{"0 536 4", "3600000 536 7"}));
}

}  // namespace
}  // namespace platform::memory
