#include "agent/tray_tip.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::InstalledAgent;
namespace keys = shared::keys;

constexpr std::uint32_t kMouseMove = 0x200;
constexpr std::string_view kQuotaText = "Quota Exceeded. Upgrade Now!";
constexpr std::string_view kNoSchedule = "No backup has been scheduled.";
constexpr std::string_view kDisabled =
    "You have disabled the scheduled backup from the Sorvane tray me";  // the first 63 characters
constexpr std::string_view kRemoved = "You have removed this computer from your account";

// A record whose job starts in two days; the machine's clock stands at 03-01-2024 10:00.
std::string Record() {
  std::string record = "1\b\btventbkupjob\b\b03-03-2024 10:00:00";
  for (int field = 3; field < 12; ++field) record += "\b\b0";
  return record;
}

class TrayTipTest : public ::testing::Test {
 protected:
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
  }
  std::string Move() {
    agent_.Touch(kMouseMove);
    return agent_.Tip();
  }
  void PutSchedule(std::string_view first_line = "0") {
    agent_.PutUserFile(status::kScheduleDataFile,
                       std::string(first_line) + "\r\n" + Record() + "\r\n");
  }
  void SetBackup(std::string_view count) {
    agent_.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "1");
    agent_.SetProgress(status::kBackupProgressSection, status::kFileCount, count);
  }
  void SetRestore(std::string_view count) {
    agent_.SetProgress(status::kRestoreProgressSection, status::kRestoreInProgress, "1");
    agent_.SetProgress(status::kRestoreProgressSection, status::kFileCount, count);
  }
  void SetJob(std::string_view job) {
    agent_.SetProgress(status::kProgWndSection, status::kProgWndJob, job);
  }
  void Pause() { agent_.SetStatus(status::kPaused, "1"); }

  InstalledAgent agent_;
};

TEST_F(TrayTipTest, IsEmptyWhenNobodyIsLoggedIn) {
  agent_.ForgetUser();
  PutSchedule();
  Start();
  EXPECT_EQ(Move(), "");
  ASSERT_TRUE(agent_.machine.shell().icon());
}

TEST_F(TrayTipTest, StandsOnTheIconFromTheStart) {
  Start();
  EXPECT_EQ(agent_.Tip(), kNoSchedule);
}

TEST_F(TrayTipTest, TellsThatNothingIsScheduled) {
  Start();
  for (const std::string_view content : {"0\r\n", "", "0", "\r\n\r\n"}) {
    agent_.PutUserFile(status::kScheduleDataFile, content);
    EXPECT_EQ(Move(), kNoSchedule) << content;
  }
}

TEST_F(TrayTipTest, TellsTheTimeToTheNextBackup) {
  PutSchedule();
  Start();
  EXPECT_EQ(Move(), "Backup will start in next 2 day(s).");
}

TEST_F(TrayTipTest, TellsTheTimeSinceTheLastBackup) {
  PutSchedule();
  Start();
  agent_.SetStatus(status::kScheduleEndTime, "02-28-2024 10:00:00");
  EXPECT_EQ(Move().substr(0, 16), "Files backed up ");
}

TEST_F(TrayTipTest, TellsThatTheLastBackupFailed) {
  PutSchedule();
  Start();
  agent_.PutUserFile(status::kOutcomeErrorFile);
  EXPECT_EQ(Move(), "Backup has failed");
}

TEST_F(TrayTipTest, IsEmptyWhileAJobIsInForceWithoutATransfer) {
  PutSchedule("1");
  Start();
  EXPECT_EQ(Move(), "");
}

TEST_F(TrayTipTest, TellsADisabledScheduleBeforeItsNextRun) {
  PutSchedule();
  agent_.SetShifted(keys::kScheduleDisable, "TRUE");
  Start();
  EXPECT_EQ(Move(), kDisabled);
}

TEST_F(TrayTipTest, PutsTheProductsNameIntoTheLibrarysText) {
  agent_.machine.libraries().PutString(agent_.Path("TVToolTips.dll"), 987, "Sorvane esta parado");
  PutSchedule();
  agent_.SetShifted(keys::kScheduleDisable, "TRUE");
  Start();
  agent_.state().ProductName = "Acme";
  EXPECT_EQ(Move(), "Acme esta parado");
}

TEST_F(TrayTipTest, TellsTheEnginesMessageInsteadOfATime) {
  struct Row {
    std::string_view indicator, tip;
  };
  constexpr std::string_view kTime = "Backup will start in next 2 day(s).";
  constexpr Row kRows[] = {{"2", kQuotaText}, {"4", kRemoved}, {" 4 ", kRemoved}, {"0", kTime},
                           {"", kTime},       {"3", kTime},    {"x", kTime}};
  PutSchedule();
  Start();
  for (const Row& row : kRows) {
    agent_.SetStatus(status::kMessageIndicator, row.indicator);
    EXPECT_EQ(Move(), row.tip) << row.indicator;
  }
}

TEST_F(TrayTipTest, CountsTheFilesOfATransfer) {
  Start();
  SetJob("2");
  SetBackup("17");
  EXPECT_EQ(Move(), "Sorvane - Backup is in progress...\nBacked up files: 17");
  agent_.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "0");
  SetJob("3");
  SetRestore("4");
  EXPECT_EQ(Move(), "Restore is in progress...\nRestored files: 4");
}

TEST_F(TrayTipTest, TellsPausedTransfersByTheirJob) {
  struct Row {
    std::string_view job, tip;
  };
  constexpr Row kRows[] = {{"1", "Sorvane - Backup has been paused."},
                           {"2", "Sorvane - Backup has been paused."},
                           {"3", "Sorvane - The restore operation has been paused."}};
  Start();
  SetBackup("17");
  Pause();
  for (const Row& row : kRows) {
    SetJob(row.job);
    EXPECT_EQ(Move(), row.tip) << row.job;
  }
}

TEST_F(TrayTipTest, TellsThePauseOfAJobInTheTipThatIsBuilt) {
  struct Row {
    bool backup;
    std::string_view job, tip;
  };
  constexpr Row kRows[] = {
      {true, "1", "Sorvane - Interactive backup has been paused."},
      {true, "2", "Sorvane - The scheduled backup job has been paused."},
      {true, "", "Sorvane - The scheduled backup job has been paused."},
      {false, "3", "Sorvane - The restore operation has been paused."},
  };
  for (const Row& row : kRows) {
    InstalledAgent agent;
    ASSERT_TRUE(agent.Start());
    const auto section =
        row.backup ? status::kBackupProgressSection : status::kRestoreProgressSection;
    agent.SetProgress(section, row.backup ? status::kBackupInProgress : status::kRestoreInProgress,
                      "1");
    agent.SetProgress(section, status::kFileCount, "9");
    agent.SetProgress(status::kProgWndSection, status::kProgWndJob, row.job);
    agent.SetStatus(status::kPaused, "1");
    EXPECT_EQ(agent.agent().form().commands().BuildTrayTip(), row.tip) << row.job;
  }
}

TEST_F(TrayTipTest, ShowsTheQuotaOverAPauseDuringATransfer) {
  Start();
  SetBackup("17");
  SetJob("2");
  Pause();
  agent_.SetStatus(status::kRetValue, "-432");
  EXPECT_EQ(Move(), kQuotaText);
}

TEST_F(TrayTipTest, KeepsTheTipDuringATransferOfNoKnownJob) {
  Start();
  const std::string before = Move();
  SetBackup("17");
  for (const std::string_view job : {"0", "", "4"}) {
    SetJob(job);
    EXPECT_EQ(Move(), before) << job;
  }
}

TEST_F(TrayTipTest, GoesOnToTheScheduleForATransferWithoutACount) {
  PutSchedule();
  Start();
  SetBackup("");
  SetJob("2");
  EXPECT_EQ(Move(), "Backup will start in next 2 day(s).");
}

TEST_F(TrayTipTest, CutsALongTipAtSixtyThreeCharacters) {
  Start();
  agent_.state().ProductName = std::string(40, 'P');
  SetJob("2");
  SetBackup("123456");
  EXPECT_EQ(Move().size(), 63u);
}

TEST_F(TrayTipTest, CallsTheShellOnlyWhenTheTipChanges) {
  PutSchedule();
  Start();
  Move();
  agent_.machine.journal().Clear();
  for (int i = 0; i < 10; ++i) Move();
  EXPECT_EQ(agent_.machine.journal().Count("icon"), 0u);
}

TEST_F(TrayTipTest, SharesItsPhasesWithTheTick) {
  Start();
  agent_.SetShared(keys::kRtBackup, "1");
  agent_.Tick();
  EXPECT_EQ(agent_.Picture(), "CDPBlue1.ico");
  Move();  // one step of the blink
  agent_.Tick();
  EXPECT_EQ(agent_.Picture(), "CDPBlue1.ico");
}

TEST_F(TrayTipTest, MarksAnExceededQuotaBeforeTheTickDoes) {
  Start();
  agent_.SetShared(keys::kRtBackup, "6");
  EXPECT_EQ(Move(), kQuotaText);
  EXPECT_TRUE(agent_.HasUserFile(status::kQuotaExceededFile));
}

// What stands last in the order of the rules for a state without a transfer.
TEST_F(TrayTipTest, FollowsTheOrderForEveryCrossingOfTheStates) {
  constexpr std::array kFirstLines = {"0", "2", "none"};
  constexpr std::array kContinuous = {"0", "1", "2", "4", "6"};
  constexpr std::array kEngine = {"", "2", "3"};
  for (int flags = 0; flags < 32; ++flags) {
    for (const char* first_line : kFirstLines) {
      for (const char* continuous : kContinuous) {
        for (const char* engine : kEngine) {
          const bool quota = (flags & 1) != 0;
          const bool disabled = (flags & 2) != 0;
          const bool running = (flags & 4) != 0;
          const bool paused = (flags & 8) != 0;
          const bool transfer = (flags & 16) != 0;
          InstalledAgent agent;
          agent.SetShifted(keys::kScheduleDisable, disabled ? "TRUE" : "FALSE");
          ASSERT_TRUE(agent.Start());
          agent.StopTimers();
          if (std::string_view(first_line) != "none") {
            agent.PutUserFile(status::kScheduleDataFile,
                              std::string(first_line) + "\r\n" + Record() + "\r\n");
          }
          if (quota) agent.PutUserFile(status::kQuotaExceededFile);
          if (running) agent.PutUserFile(status::kScheduleInfoFile);
          agent.SetStatus(status::kStatus, running ? "1" : "0");
          agent.SetStatus(status::kPaused, paused ? "1" : "0");
          agent.SetStatus(status::kRetValue, "0");
          agent.SetStatus(status::kDllStatus, engine);
          agent.SetShared(keys::kRtBackup, continuous);
          if (transfer) {
            agent.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "1");
            agent.SetProgress(status::kBackupProgressSection, status::kFileCount, "5");
            agent.SetProgress(status::kProgWndSection, status::kProgWndJob, "2");
          }
          agent.Touch(kMouseMove);

          std::string expected;
          if (transfer) {
            expected = paused ? "Sorvane - Backup has been paused."
                              : "Sorvane - Backup is in progress...\nBacked up files: 5";
          } else if (quota || std::string_view(continuous) == "6") {
            expected = kQuotaText;
          } else if (std::string_view(first_line) == "none") {
            expected = kNoSchedule;
          } else if (std::string_view(first_line) == "2") {
            expected = "";
          } else {
            expected = disabled ? kDisabled : "Backup will start in next 2 day(s).";
          }
          ASSERT_EQ(agent.Tip(), expected)
              << flags << " " << first_line << " " << continuous << " " << engine;
        }
      }
    }
  }
}

}  // namespace
}  // namespace agent
