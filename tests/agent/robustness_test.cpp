// A stretch of the agent's life, replayed once for each port call that it makes with just that call
// failing: nothing crashes or hangs, and once the fault has passed the machine is where it would be
// without it, as far as what was lost can be made up for.

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "lab/engine/memory_programs.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::InstalledAgent;
namespace keys = shared::keys;
namespace files = shared::files;

constexpr std::string_view kSchedule =
    "0\r\n1\b\btventbkupjob\b\b03-03-2024 "
    "10:00:00\b\b0\b\b0\b\b0\b\b0\b\b0\b\b0\b\b0\b\b0\b\b0\r\n";

// Without the client a command that is due waits for it without end.
void InstallEngine(InstalledAgent& agent) {
  lab::InstallEnginePrograms(agent.machine, {.install_folder = std::string(testing::kFolder)});
}

// The engine: starts a job, pauses it, ends it; then continuous backup for a while.
void SetAgenda(InstalledAgent& agent) {
  auto& machine = agent.machine;
  machine.At(
      8000,
      [&agent] {
        agent.PutUserFile(files::kScheduleInfo);
        agent.PutUserFile(files::kScheduleData, "2\r\n");
        agent.SetStatus(status::kDllStatus, "1");
        agent.SetProgress(status::kProgWndSection, status::kProgWndJob, "2");
        agent.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "1");
        agent.SetProgress(status::kBackupProgressSection, status::kFileCount, "3");
      },
      "engine");
  machine.At(
      21000, [&agent] { agent.SetStatus(status::kPaused, "1"); }, "engine");
  machine.At(
      30000,
      [&agent] {
        agent.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "0");
        agent.SetProgress(status::kProgWndSection, status::kProgWndJob, "0");
        agent.machine.files().Delete(agent.UserPath(files::kScheduleInfo));
        agent.PutUserFile(files::kScheduleData, kSchedule);
        agent.SetStatus(status::kRetValue, "0");
        agent.SetStatus(status::kDllStatus, "4");
        agent.SetStatus(status::kStatus, "0");
        agent.SetStatus(status::kStatusWindow, "1");
      },
      "engine");
  machine.At(
      45000, [&agent] { agent.SetShared(keys::kRtBackup, "1"); }, "continuous backup");
  machine.At(
      54000, [&agent] { agent.SetShared(keys::kRtBackup, "0"); }, "continuous backup");
}

// What a person does meanwhile.
void SetUser(InstalledAgent& agent) {
  auto& machine = agent.machine;
  machine.AtAgent(15500, [&agent] { agent.Touch(0x200); });
  machine.AtAgent(18500, [&agent] { agent.RightClick(); });
  machine.AtAgent(40500, [&agent] { agent.DoubleClick(); });
  machine.At(
      48000, [&machine] { machine.RestartShell(); }, "shell");
  machine.AtAgent(70500, [&agent] { agent.DoubleClick(); });
  machine.AtAgent(75500, [&agent] { agent.Touch(0x200); });
}

struct Story {
  bool started = false;
  bool ran_away = false;
  bool exited = false;
  std::uint64_t calls = 0;
  std::vector<platform::memory::GateCall> failed;
  // The state at the end.
  std::string picture;
  std::string tip;
  std::string engine_word;
  std::string job_word;
  std::string pause;
  std::string window;
  std::string schedule;
  std::uint32_t login = 0;
};

// Fails the n-th call; none for 0.
Story Play(std::uint64_t fault) {
  InstalledAgent agent;
  agent.machine.SetStepLimit(200'000);
  InstallEngine(agent);
  agent.PutUserFile(files::kScheduleData, kSchedule);
  SetAgenda(agent);
  SetUser(agent);
  if (fault == 0) {
    agent.machine.gate().Start();
  } else {
    agent.machine.gate().FailCall(fault);
  }
  Story story;
  story.started = agent.Start();
  if (story.started) agent.machine.Run(60000);
  story.calls = agent.machine.gate().total();
  story.failed = agent.machine.gate().failed();
  // The fault has passed.
  agent.machine.gate().Heal();
  agent.machine.gate().Stop();
  if (story.started) agent.machine.Run(30000);
  story.ran_away = agent.machine.ran_away();
  story.exited = agent.machine.exited();
  story.picture = agent.Picture();
  story.tip = agent.Tip();
  story.engine_word = agent.Status(status::kDllStatus);
  story.job_word = agent.Status(status::kStatus);
  story.pause = agent.Status(status::kPaused);
  story.window = agent.Status(status::kStatusWindow);
  story.schedule = agent.machine.files().Content(agent.UserPath(files::kScheduleData));
  story.login = agent.ConnectionStatus();
  return story;
}

std::string Name(const Story& story) {
  std::string name;
  for (const auto& call : story.failed) name += call.name + " " + call.argument;
  return name;
}

// Calls whose one failure is decisive and never made up for: the login decision and the start's
// own reading are made once, and a user who is read as a new one is given new files.
bool DecidesOnce(const Story& story) {
  for (const auto& call : story.failed) {
    if (call.name == "processes.ExecutableFolder") return true;
    for (const std::string_view part :
         {"Configuration.ini", "Connection Parameters", "InstalledFirst", "JmvwxYwiv",
          "Eyxlirxmgexih", "UserName.ini [Registry] Default User name"}) {
      if (call.argument.find(part) != std::string::npos) return true;
    }
  }
  return false;
}

TEST(Robustness, OneFailingCallIsOverOnceItHasPassed) {
  const Story good = Play(0);
  ASSERT_TRUE(good.started);
  EXPECT_EQ(good.picture, "tvlog.ico");
  EXPECT_EQ(good.engine_word, "0");
  EXPECT_EQ(good.pause, "0");
  EXPECT_EQ(good.window, "0");
  ASSERT_GT(good.calls, 500u);
  std::uint64_t decisive = 0;
  for (std::uint64_t call = 1; call <= good.calls; ++call) {
    const Story story = Play(call);
    const std::string name = std::to_string(call) + ": " + Name(story);
    ASSERT_FALSE(story.ran_away) << name;
    ASSERT_FALSE(story.exited) << name;
    if (DecidesOnce(story)) {
      ++decisive;
      continue;
    }
    ASSERT_TRUE(story.started) << name;
    EXPECT_EQ(story.picture, good.picture) << name;
    EXPECT_EQ(story.tip, good.tip) << name;
    EXPECT_EQ(story.engine_word, good.engine_word) << name;
    EXPECT_EQ(story.job_word, good.job_word) << name;
    EXPECT_EQ(story.pause, good.pause) << name;
    EXPECT_EQ(story.window, good.window) << name;
    EXPECT_EQ(story.schedule, good.schedule) << name;
    EXPECT_EQ(story.login, good.login) << name;
  }
  EXPECT_LT(decisive, good.calls / 4);
}

TEST(Robustness, TwoPlaysOfOneStoryLeaveEqualJournals) {
  std::string journals[2];
  for (std::string& journal : journals) {
    InstalledAgent agent;
    agent.PutUserFile(files::kScheduleData, kSchedule);
    SetAgenda(agent);
    SetUser(agent);
    ASSERT_TRUE(agent.Start());
    agent.machine.Run(90000);
    journal = agent.machine.journal().Text();
  }
  EXPECT_EQ(journals[0], journals[1]);
}

TEST(Robustness, ASimulatedWeekOfTicksStaysInStep) {
  InstalledAgent agent;
  agent.machine.SetStepLimit(100'000'000);
  InstallEngine(agent);
  ASSERT_TRUE(agent.Start());
  agent.machine.journal().Keep(false);
  agent.machine.Run(7ull * 24 * 3600 * 1000);
  EXPECT_FALSE(agent.machine.ran_away());
  EXPECT_TRUE(agent.machine.shell().icon());
}

}  // namespace
}  // namespace agent
