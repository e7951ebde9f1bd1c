// Every file that the agent reads, in every bad shape: it starts and ticks on as for an empty
// value, and what it must not write stays as it was.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "agent/window_messages.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::InstalledAgent;
namespace keys = shared::keys;
namespace files = shared::files;

enum class Damage {
  kMissing,
  kEmpty,
  kFolder,
  kLocked,
  kReadOnly,
  kLarge,
  kRandom,
  kCut,
};

constexpr Damage kDamages[] = {Damage::kMissing,  Damage::kEmpty, Damage::kFolder, Damage::kLocked,
                               Damage::kReadOnly, Damage::kLarge, Damage::kRandom, Damage::kCut};

std::string RandomBytes(std::size_t size) {
  std::string bytes;
  std::uint32_t state = 12345;
  for (std::size_t i = 0; i < size; ++i) {
    state = state * 1664525u + 1013904223u;
    bytes.push_back(static_cast<char>(state >> 24));
  }
  return bytes;
}

void Apply(Damage damage, platform::memory::Machine& machine, const std::string& path) {
  auto& disk = machine.files();
  const std::string content = disk.Content(path);
  switch (damage) {
    case Damage::kMissing:
      disk.Delete(path);
      break;
    case Damage::kEmpty:
      disk.Put(path, "");
      break;
    case Damage::kFolder:
      disk.Delete(path);
      disk.PutFolder(path);
      break;
    case Damage::kLocked:
      machine.LockFile(path);
      break;
    case Damage::kReadOnly:
      machine.MakeReadOnly(path);
      break;
    case Damage::kLarge:
      disk.Put(path, content + std::string(50u << 20, 'x'));
      break;
    case Damage::kRandom:
      disk.Put(path, RandomBytes(4096));
      break;
    case Damage::kCut:
      disk.Put(path, content.substr(0, content.size() / 2));
      break;
  }
}

// What a person and the other programs may do while the agent runs.
void UseEverything(InstalledAgent& agent) {
  for (int tick = 0; tick < 3; ++tick) agent.Tick();
  agent.Touch(0x200);
  agent.RightClick();
  agent.DoubleClick();
  agent.Send(kWmEndSession, 1);
  agent.machine.RestartShell();
  agent.machine.Run(25000);
}

std::vector<std::string> EveryFile(const InstalledAgent& agent) {
  std::vector<std::string> paths;
  for (const std::string_view name :
       {files::kUserNameIni, files::kConfigurationIni, files::kPartnerConfig, files::kVssStatus,
        files::kVssStatusDll}) {
    paths.push_back(agent.Path(name));
  }
  paths.push_back(agent.Path("Images\\tvlog.ico"));
  paths.push_back(agent.Path("Images\\tvlogyellow.ico"));
  paths.push_back(agent.Path("TVToolTips.dll"));
  paths.push_back(agent.UserPath("SorvaneE.ini"));
  for (const std::string_view name :
       {files::kBackupProgressIni, files::kScheduleData, files::kScheduleInfo,
        files::kQuotaExceeded, files::kScheduleStatus, files::kScheduleStatusError,
        files::kTrayTrace, files::kTempRecordValues}) {
    paths.push_back(agent.UserPath(name));
  }
  return paths;
}

// An agent with a job under way, so that every file matters.
void LayOut(InstalledAgent& agent) {
  agent.PutUserFile(files::kScheduleData, "2\r\n1\b\btventbkupjob\b\b03-03-2024 10:00:00\r\n");
  agent.PutUserFile(files::kScheduleInfo, "x");
  agent.SetStatus(status::kStatus, "1");
  agent.SetStatus(status::kDllStatus, "1");
  agent.SetStatus(status::kRetValue, "0");
  agent.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "1");
  agent.SetProgress(status::kBackupProgressSection, status::kFileCount, "12");
  agent.SetProgress(status::kProgWndSection, status::kProgWndJob, "2");
}

TEST(BadFiles, NeitherStopTheStartNorTheTicks) {
  const std::size_t count = EveryFile(InstalledAgent()).size();
  for (std::size_t i = 0; i < count; ++i) {
    for (const Damage damage : kDamages) {
      InstalledAgent agent;
      agent.machine.SetStepLimit(1'000'000);
      LayOut(agent);
      const std::string path = EveryFile(agent)[i];
      Apply(damage, agent.machine, path);
      if (!agent.Start()) {
        // Without its configuration the agent is not to run.
        EXPECT_EQ(path, agent.Path(files::kConfigurationIni));
        EXPECT_TRUE(damage == Damage::kMissing || damage == Damage::kFolder);
        continue;
      }
      UseEverything(agent);
      EXPECT_TRUE(agent.machine.shell().icon()) << path << " " << static_cast<int>(damage);
      EXPECT_FALSE(agent.machine.exited()) << path;
      EXPECT_FALSE(agent.machine.ran_away()) << path;
    }
  }
}

TEST(BadFiles, ThatComeWhileTheAgentRunsDoNotStopIt) {
  const std::size_t count = EveryFile(InstalledAgent()).size();
  for (std::size_t i = 0; i < count; ++i) {
    for (const Damage damage : kDamages) {
      InstalledAgent agent;
      agent.machine.SetStepLimit(1'000'000);
      LayOut(agent);
      ASSERT_TRUE(agent.Start());
      Apply(damage, agent.machine, EveryFile(agent)[i]);
      UseEverything(agent);
      EXPECT_TRUE(agent.machine.shell().icon());
      EXPECT_FALSE(agent.machine.exited());
    }
  }
}

TEST(BadFiles, AMissingProfileTicksThroughTheIdlePath) {
  InstalledAgent agent;
  agent.machine.files().Delete(agent.UserPath(""));
  ASSERT_TRUE(agent.Start());
  agent.StopTimers();
  agent.machine.files().Delete(agent.UserPath(""));
  agent.Tick();
  EXPECT_EQ(agent.Picture(), "tvlog.ico");
  EXPECT_EQ(agent.state().JobState, 0);
}

TEST(BadFiles, AScheduleThatCannotBeReadIsNoReasonForTheGreenIcon) {
  InstalledAgent agent;
  ASSERT_TRUE(agent.Start());
  agent.StopTimers();
  agent.SetStatus(status::kRetValue, "0");
  agent.SetStatus(status::kDllStatus, "4");
  agent.PutUserFile(files::kScheduleData, "0\r\n");
  agent.machine.LockFile(agent.UserPath(files::kScheduleData));
  agent.Tick();
  EXPECT_EQ(agent.Picture(), "tvlog.ico");
  agent.machine.UnlockFile(agent.UserPath(files::kScheduleData));
  agent.Tick();
  EXPECT_EQ(agent.Picture(), "tvloggreen.ico");
}

TEST(BadFiles, AFolderInPlaceOfTheScheduleCountsAsNoSchedule) {
  InstalledAgent agent;
  ASSERT_TRUE(agent.Start());
  agent.StopTimers();
  agent.SetStatus(status::kRetValue, "0");
  agent.SetStatus(status::kDllStatus, "4");
  agent.machine.files().PutFolder(agent.UserPath(files::kScheduleData));
  agent.Tick();
  EXPECT_EQ(agent.Picture(), "tvloggreen.ico");
}

TEST(BadFiles, AFullDiskLeavesEveryGoodFileWhole) {
  InstalledAgent agent;
  LayOut(agent);
  agent.machine.files().Put(agent.Path(files::kVssStatus), "old status\r\n");
  ASSERT_TRUE(agent.Start());
  agent.StopTimers();
  agent.SetStatus(status::kDllStatus, "1");
  agent.machine.files().Put(agent.Path(files::kVssStatus), "old status\r\n");
  const std::string profile = agent.machine.files().Content(agent.UserPath("SorvaneE.ini"));
  agent.machine.FillDisk();
  for (int tick = 0; tick < 3; ++tick) agent.Tick();
  EXPECT_EQ(agent.machine.files().Content(agent.Path(files::kVssStatus)), "old status\r\n");
  EXPECT_EQ(agent.machine.files().Content(agent.UserPath("SorvaneE.ini")), profile);
  agent.machine.FillDisk(false);
  agent.Tick();
  EXPECT_EQ(agent.Status(status::kDllStatus), "0");
}

TEST(BadFiles, AQuotaMarkThatCannotBeDeletedKeepsBlinking) {
  InstalledAgent agent;
  ASSERT_TRUE(agent.Start());
  agent.StopTimers();
  agent.PutUserFile(status::kQuotaExceededFile);
  agent.machine.MakeReadOnly(agent.UserPath(status::kQuotaExceededFile));
  agent.Tick();
  EXPECT_EQ(agent.Picture(), "QExceed1.ico");
  agent.Tick();
  EXPECT_EQ(agent.Picture(), "QExceed2.ico");
}

}  // namespace
}  // namespace agent
