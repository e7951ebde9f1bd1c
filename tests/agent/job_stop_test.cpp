#include "agent/job_stop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/effects.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::Effects;
using ::testing::ElementsAre;
using testing::InstalledAgent;

class JobStopTest : public ::testing::Test {
 protected:
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.journal().Clear();
  }
  void Schedule(std::string_view first_line) {
    agent_.PutUserFile(status::kScheduleDataFile, std::string(first_line) + "\r\n1\r\n");
  }
  void SetJob(std::string_view job) {
    agent_.SetProgress(status::kProgWndSection, status::kProgWndJob, job);
  }
  void Stop() { agent_.agent().form().commands().StopClick(); }
  forms::MenuItem& Item() { return agent_.Item("mnuStop"); }

  InstalledAgent agent_;
};

TEST_F(JobStopTest, AsksWaitsAndEndsTheClientOfAScheduledJob) {
  agent_.machine.processes().Start("C:\\Sorvane\\SorvaneEClsClient.exe");
  Schedule("1");
  SetJob(" 2 ");
  Start();
  const auto before = agent_.machine.now();
  Stop();
  EXPECT_THAT(Effects(agent_),
              ElementsAre("write BackupStatus.Cancel=1", "write BackupStatus.Paused=0",
                          "end SorvaneEClsClient.exe", "write BackupStatus.Status=5",
                          "write BackupStatus.DLLStatus=3",
                          "trace Stopped backup from mnuStop Tray status : 5"));
  EXPECT_EQ(agent_.machine.now() - before, 1000u);
  EXPECT_TRUE(Item().Visible());
}

TEST_F(JobStopTest, AJobThatHasEndedMeanwhileIsStillAskedAndTheItemGoes) {
  Schedule("0");
  SetJob("2");
  Start();
  Stop();
  EXPECT_THAT(Effects(agent_),
              ElementsAre("write BackupStatus.Cancel=1", "write BackupStatus.Paused=0",
                          "trace Stopped backup from mnuStop Tray status : "));
  EXPECT_FALSE(Item().Enabled());
  EXPECT_FALSE(Item().Visible());
}

struct FirstLineRow {
  const char* bytes;
  bool ends;
};

TEST_F(JobStopTest, EveryFirstLineButAZeroIsOfAJob) {
  constexpr FirstLineRow kRows[] = {
      {"0\r\n1\r\n", false}, {"0", false},     {"0\n", false},   {"1\r\n", true},
      {"8\r\n", true},       {"00\r\n", true}, {" 0\r\n", true}, {"x\r\n", true},
      {"\r\n0\r\n", true},   {"", true},       {"0 \r\n", true},
  };
  Start();
  for (const FirstLineRow& row : kRows) {
    agent_.PutUserFile(status::kScheduleDataFile, row.bytes);
    agent_.SetStatus(status::kStatus, "");
    const auto client = agent_.machine.processes().Start("C:\\Sorvane\\SorvaneEClsClient.exe");
    Stop();
    EXPECT_EQ(!agent_.machine.processes().Find(client)->running, row.ends) << row.bytes;
    EXPECT_EQ(agent_.Status(status::kStatus), row.ends ? "5" : "") << row.bytes;
    agent_.machine.processes().End(client);
  }
}

TEST_F(JobStopTest, AScheduleThatCannotBeReadDoesNotKeepTheJobAlive) {
  const auto client = agent_.machine.processes().Start("C:\\Sorvane\\SorvaneEClsClient.exe");
  Schedule("0");
  agent_.machine.LockFile(agent_.UserPath(status::kScheduleDataFile));
  Start();
  Stop();
  EXPECT_FALSE(agent_.machine.processes().Find(client)->running);
  EXPECT_EQ(agent_.Status(status::kDllStatus), "3");
  EXPECT_TRUE(Item().Visible());
}

TEST_F(JobStopTest, LetsEventsRunWithTheRequestWrittenAndThenWaits) {
  Schedule("0");
  SetJob("2");
  Start();
  const auto before = agent_.machine.now();
  std::uint64_t pumped = 0;
  std::string paused;
  // Reading the user gives way, too: the request is not there yet then.
  std::function<void()> look = [&] {
    if (agent_.Status(status::kCancel) != "1") return agent_.machine.WhenPumped(look);
    pumped = agent_.machine.now();
    paused = agent_.Status(status::kPaused);
  };
  agent_.SetStatus(status::kPaused, "1");
  agent_.machine.WhenPumped(look);
  Stop();
  EXPECT_EQ(paused, "0");
  EXPECT_EQ(pumped, before);
  EXPECT_EQ(agent_.machine.now(), before + 1000);
}

TEST_F(JobStopTest, StopsTheJobOfTheUserOfThisMoment) {
  Schedule("1");
  Start();
  agent_.ForgetUser();
  Stop();
  EXPECT_EQ(agent_.state().CurrentUser, "");
  EXPECT_EQ(agent_.Status(status::kStatus), "");
}

TEST_F(JobStopTest, AClientThatWillNotEndIsNotTriedAgain) {
  const auto client = agent_.machine.processes().Start("C:\\Sorvane\\SorvaneEClsClient.exe");
  agent_.machine.processes().SetTerminable(client, false);
  Schedule("1");
  Start();
  Stop();
  EXPECT_EQ(agent_.machine.journal().Count("process", "terminate"), 1u);
  EXPECT_EQ(agent_.Status(status::kStatus), "5");
}

TEST_F(JobStopTest, TheNextPopupShowsTheItemAgainByItsState) {
  Schedule("0");
  Start();
  Stop();
  agent_.RightClick();
  EXPECT_TRUE(Item().Visible());
  EXPECT_FALSE(Item().Enabled());
  agent_.PutUserFile(status::kScheduleInfoFile);
  agent_.SetStatus(status::kStatus, "1");
  agent_.RightClick();
  EXPECT_TRUE(Item().Enabled());
}

TEST_F(JobStopTest, WithoutAScheduleOnlyTheTraceIsWritten) {
  Start();
  Stop();
  EXPECT_THAT(Effects(agent_), ElementsAre("trace Stopped backup from mnuStop Tray status : "));
}

TEST_F(JobStopTest, TwoStopsInARowCostNothingMore) {
  Schedule("1");
  Start();
  Stop();
  Schedule("0");
  agent_.machine.journal().Clear();
  Stop();
  EXPECT_THAT(Effects(agent_), ElementsAre("trace Stopped backup from mnuStop Tray status : 5"));
  EXPECT_FALSE(Item().Visible());
}

TEST_F(JobStopTest, AnInteractiveJobIsNotAskedToCancel) {
  Schedule("1");
  SetJob("1");
  Start();
  Stop();
  EXPECT_THAT(Effects(agent_),
              ElementsAre("write BackupStatus.Status=5", "write BackupStatus.DLLStatus=3",
                          "trace Stopped backup from mnuStop Tray status : 5"));
}

TEST_F(JobStopTest, TheClientCanEndByItselfWhileItIsWaitedFor) {
  const auto client = agent_.machine.processes().Start("C:\\Sorvane\\SorvaneEClsClient.exe");
  agent_.machine.processes().Every(client, 100, [this, client] {
    if (agent_.Status(status::kCancel) == "1") agent_.machine.processes().End(client);
  });
  Schedule("1");
  SetJob("2");
  Start();
  Stop();
  EXPECT_EQ(agent_.machine.journal().Count("process", "terminate"), 0u);
  EXPECT_EQ(agent_.Status(status::kStatus), "5");
}

struct LogoffRow {
  const char* schedule;  // null: no file
  const char* program_status;
  bool stops;
};

TEST_F(JobStopTest, TheLogoffWritesOnlyTheRequestAndOnlyWithoutAScheduledJob) {
  constexpr LogoffRow kRows[] = {
      {nullptr, "2", true},  {"0", "2", true}, {"1", "2", false}, {"", "2", false},
      {nullptr, "1", false}, {"0", "", false}, {"0", "1", false},
  };
  for (const LogoffRow& row : kRows) {
    InstalledAgent agent;
    if (row.schedule) {
      agent.PutUserFile(status::kScheduleDataFile, std::string(row.schedule) + "\r\n");
    }
    agent.SetStatus(status::kProgStatus, row.program_status);
    ASSERT_TRUE(agent.Start());
    mnuStopLogoff_Click(agent.machine.platform(), agent.state());
    EXPECT_EQ(agent.Status(status::kStatus), row.stops ? "5" : "")
        << (row.schedule ? row.schedule : "no file") << " " << row.program_status;
  }
}

}  // namespace
}  // namespace agent
