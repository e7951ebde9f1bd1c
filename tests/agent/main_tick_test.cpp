#include "agent/main_tick.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>
#include "agent/tray_icon.h"

#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::InstalledAgent;
namespace keys = shared::keys;

constexpr std::string_view kQuotaFile = status::kQuotaExceededFile;

class MainTickTest : public ::testing::Test {
 protected:
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.journal().Clear();
  }
  void Tick(int times = 1) {
    for (int i = 0; i < times; ++i) agent_.Tick();
  }
  void SetQuota(std::string_view used, std::string_view max) {
    agent_.SetProfile(shared::sections::kQuotaStatus, keys::kQuotaUsed, used);
    agent_.SetProfile(shared::sections::kQuotaStatus, keys::kQuotaMax, max);
  }
  void SetJobRunning() {
    agent_.PutUserFile(status::kScheduleInfoFile);
    agent_.SetStatus(status::kStatus, "1");
  }

  InstalledAgent agent_;
};

TEST_F(MainTickTest, ReleasesTheQuotaOnlyWhenMoreIsAllowedThanUsed) {
  struct Row {
    std::string_view used, max;
    bool stays;
  };
  constexpr Row kRows[] = {
      {"100", "100", true}, {"100", "101", false}, {"101", "100", true}, {"100", "1", false},
      {"", "", true},       {"", "5", false},      {"5", "", true},      {"0", "0", true},
      {"x", "7", false},    {"7", "x", true},      {"-1", "0", true},    {"1e3", "1001", false},
      {"", "0", true},      {"", "1", false},
  };
  Start();
  for (const Row& row : kRows) {
    SetQuota(row.used, row.max);
    agent_.PutUserFile(kQuotaFile);
    Tick();
    EXPECT_EQ(agent_.HasUserFile(kQuotaFile), row.stays) << row.used << " of " << row.max;
  }
}

TEST_F(MainTickTest, AsksTheSystemToStayAwakeOnEachTickOfAStartedJob) {
  Start();
  agent_.SetShared(keys::kStarted, "1");
  for (const std::string_view standby : {"1", ""}) {
    agent_.SetRegistry(keys::kStandbyBackup, standby);
    Tick(2);
  }
  EXPECT_EQ(agent_.machine.journal().Count("power"), 4u);
  EXPECT_TRUE(agent_.state().KeepAwakeOn);
  agent_.SetRegistry(keys::kStandbyBackup, "0");
  Tick();
  EXPECT_EQ(agent_.machine.journal().Count("power"), 4u);
}

TEST_F(MainTickTest, LetsTheRequestToStayAwakeLapseWithoutACall) {
  Start();
  agent_.SetShared(keys::kStarted, "1");
  Tick();
  agent_.SetShared(keys::kStarted, "0");
  Tick();
  EXPECT_FALSE(agent_.state().KeepAwakeOn);
  EXPECT_EQ(agent_.machine.journal().Count("power"), 1u);
}

TEST_F(MainTickTest, ClearsAPauseThatOutlivedItsTransfer) {
  Start();
  agent_.SetStatus(status::kPaused, " 1 ");
  agent_.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "1");
  Tick();
  EXPECT_EQ(agent_.Status(status::kPaused), "1");
  agent_.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "0");
  Tick();
  EXPECT_EQ(agent_.Status(status::kPaused), "0");
}

TEST_F(MainTickTest, BlinksOnceInTwoTicksWhileAJobRuns) {
  Start();
  SetJobRunning();
  for (int blink = 0; blink < 3; ++blink) {
    Tick();
    EXPECT_EQ(agent_.Picture(), "tvlogyellow.ico");
    Tick();
    EXPECT_EQ(agent_.Picture(), "tvlog.ico");
  }
}

TEST_F(MainTickTest, BlinksWithThePartnersPicture) {
  agent_.MakePartner();
  Start();
  SetJobRunning();
  Tick();
  EXPECT_EQ(agent_.Picture(), "tvlogyellowp.ico");
  Tick();
  EXPECT_EQ(agent_.Picture(), "acme.ico");
}

TEST_F(MainTickTest, TakesTheGreenPathForTheCodeSeven) {
  Start();
  agent_.SetStatus(status::kRetValue, "0");
  agent_.SetStatus(status::kDllStatus, "7");
  Tick();
  EXPECT_EQ(agent_.Picture(), "tvloggreen.ico");
}

TEST_F(MainTickTest, StaysGreenOnlyWhileNoFurtherJobIsInForce) {
  Start();
  agent_.SetStatus(status::kRetValue, "0");
  agent_.SetStatus(status::kDllStatus, "4");
  for (const std::string_view first_line : {"2\r\n", "", "\r\n"}) {
    agent_.PutUserFile(status::kScheduleDataFile, first_line);
    Tick();
    EXPECT_EQ(agent_.Picture(), "tvlog.ico") << first_line;
  }
  agent_.PutUserFile(status::kScheduleDataFile, "0\r\n");
  Tick();
  EXPECT_EQ(agent_.Picture(), "tvloggreen.ico");
}

TEST_F(MainTickTest, ConsumesTheRequestForAStatusWindow) {
  Start();
  agent_.SetStatus(status::kStatusWindow, "1");
  Tick();
  EXPECT_EQ(agent_.Status(status::kStatusWindow), "0");
}

TEST_F(MainTickTest, AcknowledgesTheStartOfAJobInItsOrder) {
  Start();
  agent_.PutUserFile(status::kScheduleDataFile, "2\r\n");
  agent_.SetStatus(status::kDllStatus, "1");
  agent_.machine.journal().Clear();
  Tick();
  const std::string profile = agent_.UserPath("SorvaneE.ini [BackupStatus] ");
  EXPECT_EQ(agent_.machine.journal().Excerpt(std::vector<std::string_view>{"file", "profile"}),
            (std::vector<std::string>{
                "file replace " + agent_.Path("TVVSSCommonStatus.txt") + " 3 bytes",
                "file replace " + agent_.Path("TVVSSCommonStatusDll.txt") + " 3 bytes",
                "profile " + profile + "Status=1", "profile " + profile + "DLLStatus=0"}));
  EXPECT_EQ(agent_.machine.files().Content(agent_.Path("TVVSSCommonStatus.txt")), "0\r\n");
}

TEST_F(MainTickTest, AcknowledgesNothingUntilTheScheduleFileAppears) {
  Start();
  agent_.SetStatus(status::kDllStatus, "1");
  Tick(2);
  EXPECT_EQ(agent_.Status(status::kDllStatus), "1");
  EXPECT_EQ(agent_.Status(status::kStatus), "");
  agent_.PutUserFile(status::kScheduleDataFile, "0\r\n");
  Tick();
  EXPECT_EQ(agent_.Status(status::kDllStatus), "0");
  EXPECT_EQ(agent_.Status(status::kStatus), "1");
}

TEST_F(MainTickTest, PausesThreeSecondsAfterTheEndOfAJob) {
  Start();
  agent_.SetStatus(status::kRetValue, "0");
  agent_.SetStatus(status::kDllStatus, "2");
  const auto before = agent_.machine.now();
  Tick();
  EXPECT_EQ(agent_.machine.now() - before, 3000u);
  EXPECT_EQ(agent_.Status(status::kDllStatus), "0");
}

TEST_F(MainTickTest, ShowsTheEndOfAJobDuringThePauseThatFollows) {
  Start();
  agent_.SetStatus(status::kRetValue, "0");
  agent_.SetStatus(status::kDllStatus, "2");
  std::string during;
  agent_.machine.At(agent_.machine.now() + 1500, [&] { during = agent_.Picture(); });
  Tick();
  EXPECT_EQ(during, "tvloggreen.ico");
}

TEST_F(MainTickTest, KeepsTheCodeForADllStatusThatIsNoNumber) {
  Start();
  agent_.SetStatus(status::kDllStatus, "soon");
  Tick();
  EXPECT_EQ(agent_.state().JobState, 0);
  agent_.SetStatus(status::kDllStatus, "99999");
  Tick();
  EXPECT_EQ(agent_.state().JobState, 0);
}

TEST_F(MainTickTest, GivesEveryContinuousCodeItsJobState) {
  struct Row {
    std::string_view code;
    std::int16_t job_state;
  };
  constexpr Row kRows[] = {{"0", 0},  {"1", 11}, {"2", 12}, {"3", 13},    {"4", 14},  {"5", 15},
                           {"6", 16}, {"7", 17}, {"8", 18}, {"9", 19},    {"10", 20}, {"11", 0},
                           {"-1", 0}, {"", 0},   {"x", 0},  {"65537", 0}, {" 3 ", 13}};
  Start();
  for (const Row& row : kRows) {
    agent_.SetShared(keys::kRtBackup, row.code);
    Tick();
    EXPECT_EQ(agent_.state().JobState, row.job_state) << row.code;
  }
}

TEST_F(MainTickTest, WaitsASecondOnlyOnTheFirstTickOfContinuousBackup) {
  Start();
  agent_.SetShared(keys::kRtBackup, "1");
  auto before = agent_.machine.now();
  Tick();
  EXPECT_EQ(agent_.machine.now() - before, 1000u);
  EXPECT_TRUE(agent_.state().CdpRunning);
  EXPECT_FALSE(agent_.state().CdpIdle);
  before = agent_.machine.now();
  Tick();
  EXPECT_EQ(agent_.machine.now(), before);
  agent_.SetShared(keys::kRtBackup, "0");
  Tick();
  EXPECT_FALSE(agent_.state().CdpRunning);
  EXPECT_TRUE(agent_.state().CdpIdle);
}

TEST_F(MainTickTest, KeepsContinuousBackupBlinkingOverARunningJob) {
  Start();
  SetJobRunning();
  agent_.SetShared(keys::kRtBackup, "1");
  for (int blink = 0; blink < 2; ++blink) {
    Tick();
    EXPECT_EQ(agent_.Picture(), "CDPBlue1.ico");
    Tick();
    EXPECT_EQ(agent_.Picture(), "CDPBlue2.ico");
  }
  agent_.PutUserFile(kQuotaFile);
  SetQuota("9", "5");
  Tick();
  EXPECT_EQ(agent_.Picture(), "QExceed1.ico");
}

TEST_F(MainTickTest, LetsTheQuotaBlinkFlickerWhileTheCodeSixMeetsARoomyQuota) {
  Start();
  SetQuota("5", "9");
  agent_.SetShared(keys::kRtBackup, "6");
  for (int round = 0; round < 3; ++round) {
    Tick();
    EXPECT_TRUE(agent_.HasUserFile(kQuotaFile));
    EXPECT_NE(agent_.Picture().find("QExceed"), std::string::npos);
  }
  EXPECT_EQ(agent_.machine.journal().Count("file", "remove"), 2u);
}

TEST_F(MainTickTest, CreatesTheQuotaFileOnceForTheCodeSix) {
  Start();
  SetQuota("9", "5");
  agent_.SetShared(keys::kRtBackup, "6");
  agent_.machine.journal().Clear();
  Tick(4);
  EXPECT_EQ(agent_.machine.journal().Excerpt("file").size(), 1u);
}

TEST_F(MainTickTest, AsksTheMachineOnlyWhatItsStepsNeed) {
  Start();
  Tick();
  agent_.machine.gate().Start(true);
  Tick();
  std::vector<std::string> asked;
  for (const auto& call : agent_.machine.gate().calls()) {
    if (call.name != "events.Pump") {
      asked.push_back(call.argument.substr(call.argument.find_last_of('\\') + 1));
    }
  }
  EXPECT_EQ(asked,
            (std::vector<std::string>{
                "SorvaneE.ini [QuotaStatus] Used", "SorvaneE.ini [QuotaStatus] Max",
                "UserName.ini [Registry] StandbyBackup", "UserName.ini [Tolvex] Started",
                "UserName.ini [Registry] Default User name",
                "BackupProgress.ini [BackupProgressInfo] BackupInProgress",
                "BackupProgress.ini [RestoreProgressInfo] RestoreInProgress",
                "SorvaneE.ini [BackupStatus] Paused", "UserName.ini [Registry] Default User name",
                "scheduleInfo.txt", "Config.txt", "SorvaneE.ini [BackupStatus] RetValue",
                "SorvaneE.ini [BackupStatus] StatusWindow", "SorvaneE.ini [BackupStatus] DLLStatus",
                "SorvaneE.ini [BackupStatus] DLLStatus", "UserName.ini [Tolvex] RTBackup",
                "Connection Parameters", "QuotaExceeded.txt"}));
}

TEST_F(MainTickTest, CallsTheShellOnlyForAChange) {
  Start();
  Tick();
  agent_.machine.journal().Clear();
  Tick(5);
  EXPECT_EQ(agent_.machine.journal().Count("icon"), 0u);
  agent_.SetStatus(status::kRetValue, "0");
  agent_.SetStatus(status::kDllStatus, "3");
  Tick(5);
  EXPECT_EQ(agent_.machine.journal().Excerpt("icon"),
            (std::vector<std::string>{"picture tvlogred.ico"}));
}

TEST_F(MainTickTest, AddsTheIconAtTheFirstTickThatFindsTheShell) {
  agent_.machine.SetShellPresent(false);
  Start();
  Tick(2);
  EXPECT_EQ(agent_.Picture(), "");
  agent_.machine.SetShellPresent(true);
  SetJobRunning();
  Tick();
  EXPECT_EQ(agent_.Picture(), "tvlogyellow.ico");
  Tick();
  EXPECT_EQ(agent_.machine.journal().Count("icon", "add"), 3u);
}

TEST_F(MainTickTest, TakesOverAnIconThatABusyShellPutInTooLate) {
  Start();
  // The shell has the icon of before, and says that it cannot add one.
  TrayIcon icon(agent_.machine.platform().shell, agent_.state());
  icon.SetTrayImage(StatePicture::kFinished);
  icon.SetTrayIcon("late");
  icon.Add(agent_.agent().form().Window());
  EXPECT_EQ(agent_.Picture(), "tvloggreen.ico");
  EXPECT_EQ(agent_.Tip(), "late");
  icon.SetTrayIcon("later");
  EXPECT_EQ(agent_.Tip(), "later");
  icon.Remove();
  EXPECT_EQ(agent_.Picture(), "");
}

TEST_F(MainTickTest, ShowsAPictureAgainThatTheShellRefused) {
  Start();
  agent_.SetStatus(status::kRetValue, "0");
  agent_.SetStatus(status::kDllStatus, "3");
  agent_.machine.gate().FailAll("shell.SetIconPicture");
  Tick();
  EXPECT_EQ(agent_.Picture(), "tvlog.ico");
  agent_.machine.gate().Heal();
  Tick();
  EXPECT_EQ(agent_.Picture(), "tvlogred.ico");
}

TEST_F(MainTickTest, KeepsTheIconWhenAPictureIsMissing) {
  agent_.machine.files().Delete(agent_.Path("Images\\tvlogred.ico"));
  Start();
  agent_.SetStatus(status::kRetValue, "0");
  agent_.SetStatus(status::kDllStatus, "3");
  Tick();
  EXPECT_EQ(agent_.Picture(), "tvlog.ico");
}

TEST_F(MainTickTest, FollowsTheUserWhoLogsIn) {
  agent_.ForgetUser();
  Start();
  Tick();
  EXPECT_EQ(agent_.state().CurrentUser, "");
  agent_.SetRegistry(keys::kDefaultUserName, "err");  // "ann", shifted
  Tick();
  EXPECT_EQ(agent_.state().CurrentUser, "ann");
}

}  // namespace
}  // namespace agent
