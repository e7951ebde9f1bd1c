// What each way out of a session does, whole and in its order.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/agent/effects.h"
#include "tests/agent/session_fixture.h"

namespace agent {
namespace {

using testing::Effects;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
namespace files = shared::files;
namespace keys = shared::keys;

using Lines = std::vector<std::string>;

Lines Join(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

class SessionOrderTest : public testing::SessionFixture {
 protected:
  // All that can run for a user: a transfer, the main program with its windows, an exceeded quota
  // that the menu shows, and the status window.
  void StartAll() {
    StartTransfer();
    StartProgram("SorvaneEClassic.exe");
    OpenWindow("Sorvane Classic (Version: 5.0 - ann)");
    OpenWindow("Sorvane Classic (ann)");
    OpenWindow("Sorvane - Login");
    agent_.SetStatus(status::kProgStatus, "2");
    agent_.PutUserFile(files::kQuotaExceeded);
    Start();
    agent_.RightClick();
    Commands().OpenStatusWindow();
    Commands().SetTrayIcon("before");
    agent_.machine.journal().Clear();
  }
  // What the three ways have in common.
  Lines EndOfWork(const std::string& kind) const {
    const std::string backup = std::to_string(backup_);
    const std::string restore = std::to_string(restore_);
    return {"registry Status=0",
            "tip ",
            "remove QuotaExceeded.txt",
            "trace IntBackup = 1",
            "trace Interactive backup running for the user: ann",
            "trace " + kind + " backup with Process ID = " + backup,
            "trace Terminating the process  " + backup,
            "end SorvaneEClsClient.exe",
            "write BackupStatus.Status=0",
            "trace Interactive Restore with Process ID = " + restore,
            "trace Terminating the process-Restore  " + restore,
            "end SorvaneEClsClient.exe",
            "write BackupStatus.Status=0",
            "trace Interactive Restore with Process ID = " + restore,
            "trace Terminating the process-Restore  " + restore,
            "write BackupStatus.Status=0"};
  }
};

TEST_F(SessionOrderTest, MenuLogoutEndsAllThatRuns) {
  StartAll();
  LogOutByMenu();
  EXPECT_THAT(Effects(agent_),
              ElementsAreArray(Join(
                  {{std::string(testing::kLogoutQuestion), "call ShellHlpr.dll.SendMsgToApp(1034)",
                    "trace Logged out and set Connection Paramter to 0"},
                   EndOfWork("Context"),
                   {"unload frmStatus", "send Sorvane Classic (Version: 5.0 - ann) 16 0 0",
                    "end SorvaneEClassic.exe", "write BackupStatus.Status=5",
                    "write Tolvex.RealTimeBackup=0", "write Tolvex.RTBPausedBySch=0",
                    "call SorvaneERealTime.dll.PostCDPStatusMsg(0)", "write Tolvex.RTBackup=0"}})));
}

TEST_F(SessionOrderTest, ExplorerLogoutEndsAllThatRunsAndLeavesTheStatusWindow) {
  StartAll();
  Commands().ExplorerLogout();
  EXPECT_THAT(
      Effects(agent_),
      ElementsAreArray(Join({{"trace Explorer logout"},
                             EndOfWork("Interactive"),
                             {"send Sorvane Classic (ann) 16 0 0", "end SorvaneEClassic.exe",
                              "write Tolvex.RTBackup=0", "write Tolvex.RTBPausedBySch=0",
                              "call SorvaneERealTime.dll.PostCDPStatusMsg(0)"}})));
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "1");
}

TEST_F(SessionOrderTest, ReloginEndsAllThatRunsAndOpensTheLogin) {
  StartAll();
  Commands().Relogin();
  EXPECT_THAT(Effects(agent_),
              ElementsAreArray(Join(
                  {{"call ShellHlpr.dll.SendMsgToApp(1034)"},
                   EndOfWork("Context"),
                   {"end SorvaneEClassic.exe", "write Tolvex.RealTimeBackup=0",
                    "write Tolvex.RTBPausedBySch=0",
                    "call SorvaneERealTime.dll.PostCDPStatusMsg(0)", "write Tolvex.RTBackup=0",
                    "send Sorvane - Login 16 0 0", "start C:\\Sorvane\\SorvaneEClassic.exe"}})));
}

TEST_F(SessionOrderTest, WithNothingRunningMenuLogoutOnlyWrites) {
  Start();
  LogOutByMenu();
  EXPECT_THAT(
      Effects(agent_),
      ElementsAre(std::string(testing::kLogoutQuestion), "call ShellHlpr.dll.SendMsgToApp(1034)",
                  "trace Logged out and set Connection Paramter to 0", "registry Status=0", "tip ",
                  "trace IntBackup = ", "trace Interactive Restore with Process ID = ",
                  "trace Terminating the process-Restore  ", "write BackupStatus.Status=0",
                  "write Tolvex.RealTimeBackup=0", "write Tolvex.RTBPausedBySch=0",
                  "call SorvaneERealTime.dll.PostCDPStatusMsg(0)", "write Tolvex.RTBackup=0"));
}

TEST_F(SessionOrderTest, WithNothingRunningExplorerLogoutOnlyWrites) {
  Start();
  Commands().ExplorerLogout();
  EXPECT_THAT(Effects(agent_),
              ElementsAre("trace Explorer logout", "registry Status=0", "tip ",
                          "trace IntBackup = ", "trace Interactive Restore with Process ID = ",
                          "trace Terminating the process-Restore  ", "write BackupStatus.Status=0",
                          "write Tolvex.RTBackup=0", "write Tolvex.RTBPausedBySch=0",
                          "call SorvaneERealTime.dll.PostCDPStatusMsg(0)"));
}

TEST_F(SessionOrderTest, ATransferOfStatusTwoIsEndedLikeOneOfStatusOne) {
  StartAll();
  agent_.SetStatus(status::kStatus, "2");
  Commands().ExplorerLogout();
  EXPECT_FALSE(Runs(backup_));
  EXPECT_EQ(agent_.Traced("IntBackup = 2"), 1u);
}

// --- what all three ways leave behind.

struct WayOut {
  const char* name;
  void (shared::AgentCommands::*go)();
};

constexpr WayOut kWays[] = {{"Menu", &shared::AgentCommands::MnuLoginClick},
                            {"Explorer", &shared::AgentCommands::ExplorerLogout},
                            {"Relogin", &shared::AgentCommands::Relogin}};

class EveryWayOutTest : public SessionOrderTest, public ::testing::WithParamInterface<WayOut> {
 protected:
  void LogOut() {
    agent_.host.AnswerWith("Continue");
    (Commands().*GetParam().go)();
  }
};

INSTANTIATE_TEST_SUITE_P(By, EveryWayOutTest, ::testing::ValuesIn(kWays),
                         [](const auto& way) { return std::string(way.param.name); });

TEST_P(EveryWayOutTest, TakesAStaleQuotaAway) {
  StartAll();
  EXPECT_TRUE(agent_.Item("MnuQuotaExceeded").Visible());
  EXPECT_TRUE(agent_.Item("BLLine").Visible());
  LogOut();
  EXPECT_FALSE(agent_.HasUserFile(files::kQuotaExceeded));
  EXPECT_FALSE(agent_.Item("MnuQuotaExceeded").Visible());
  EXPECT_FALSE(agent_.Item("BLLine").Visible());
}

TEST_P(EveryWayOutTest, TheTickBlinksForNoQuotaAndTheMenuOffersTheLogin) {
  StartAll();
  LogOut();
  agent_.PutUserFile(files::kQuotaExceeded);
  agent_.Tick();
  EXPECT_EQ(agent_.Picture(), "tvlog.ico");
  agent_.RightClick();
  EXPECT_EQ(agent_.Item("MnuOptions").Caption(), "Login - Sorvane Schedule Backup");
  EXPECT_FALSE(agent_.Item("MnuLogin").Enabled());
}

TEST_P(EveryWayOutTest, TheUsersNameStaysAndTheNextLoginIsTaken) {
  StartAll();
  LogOut();
  agent_.Tick();
  EXPECT_EQ(agent_.state().CurrentUser, "ann");
  agent_.LogIn(2);
  agent_.RightClick();
  EXPECT_EQ(agent_.Item("MnuOptions").Caption(), "Sorvane - Schedule Backup");
}

TEST_P(EveryWayOutTest, StaleAndForeignProcessIdsEndNothing) {
  struct Row {
    std::string backup, restore;
  };
  auto& processes = agent_.machine.processes();
  const auto stranger = processes.Start("C:\\Windows\\notepad.exe");
  const auto neighbour = processes.Start("C:\\SorvaneOther\\tool.exe");
  const Row rows[] = {{"99999", "99998"},
                      {"", "no number"},
                      {"-1", "0"},
                      {std::to_string(stranger), std::to_string(neighbour)}};
  Start();
  for (const Row& row : rows) {
    agent_.SetStatus(status::kStatus, "1");
    agent_.SetShifted(keys::kClientPid, row.backup);
    agent_.SetShifted(keys::kClientPidRestore, row.restore);
    agent_.PutUserFile(files::kContextMenuRun);
    LogOut();
    // The program that a relogin opens is ended by the next one.
    EXPECT_EQ(agent_.machine.journal().Count("process", "terminate"),
              agent_.machine.journal().Count("process", "terminate SorvaneEClassic.exe"))
        << row.backup;
    EXPECT_EQ(agent_.Status(status::kStatus), "0") << row.backup;
  }
  EXPECT_TRUE(Runs(stranger));
  EXPECT_TRUE(Runs(neighbour));
}

TEST_P(EveryWayOutTest, MissingLibrariesAreSilent) {
  agent_.machine.files().Delete(agent_.Path("ShellHlpr.dll"));
  agent_.machine.files().Delete(agent_.Path("SorvaneERealTime.dll"));
  StartAll();
  agent_.SetShared(keys::kRtBackup, "1");
  LogOut();
  EXPECT_EQ(agent_.machine.journal().Count("library"), 0u);
  EXPECT_EQ(agent_.Shared(keys::kRtBackup), "0");
  EXPECT_EQ(agent_.Shared(keys::kRtPausedBySchedule), "0");
}

}  // namespace
}  // namespace agent
