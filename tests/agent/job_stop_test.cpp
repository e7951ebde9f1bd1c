#include "agent/job_stop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
