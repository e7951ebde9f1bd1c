#include "agent/session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/effects.h"
#include "tests/agent/session_fixture.h"

namespace agent {
namespace {

using ::testing::Contains;
using testing::Effects;
using ::testing::ElementsAre;
using ::testing::Not;
namespace files = shared::files;
namespace keys = shared::keys;

class SessionTest : public testing::SessionFixture {};

TEST_F(SessionTest, AnswerNoLeavesAllAsItWas) {
  Start();
  agent_.host.AnswerWith("IDCancel");
  Commands().MnuLoginClick();
  EXPECT_THAT(Effects(agent_), ElementsAre(std::string(testing::kLogoutQuestion)));
  EXPECT_EQ(agent_.ConnectionStatus(), 1u);
}

TEST_F(SessionTest, AnItemThatReadsLoginOpensTheMainProgram) {
  Start();
  OpenWindow("Sorvane - Login");
  agent_.Item("MnuLogin").SetCaption("&Login");
  Commands().MnuLoginClick();
  EXPECT_THAT(Effects(agent_),
              ElementsAre("send Sorvane - Login 16 0 0", "start C:\\Sorvane\\SorvaneEClassic.exe"));
}

TEST_F(SessionTest, TheExplorersMessageLogsOut) {
  Start();
  const auto message =
      agent_.machine.platform().other_windows.RegisterMessage("CloseInteractiveWindow");
  agent_.Send(message);
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
  EXPECT_EQ(agent_.Traced("Calling logou t from explorer"), 1u);
}

TEST_F(SessionTest, EachWayClosesTheMainProgramsWindowByItsOwnTitle) {
  OpenWindow("Sorvane Classic (ann)");
  OpenWindow("Sorvane Classic (Version: 5.0 - ann)");
  Start();
  Commands().ExplorerLogout();
  EXPECT_THAT(Effects(agent_), Contains("send Sorvane Classic (ann) 16 0 0"));
  agent_.machine.journal().Clear();
  LogOutByMenu();
  EXPECT_THAT(Effects(agent_), Contains("send Sorvane Classic (Version: 5.0 - ann) 16 0 0"));
}

TEST_F(SessionTest, WithoutATransferOnlyTheRestoreClientIsEnded) {
  StartTransfer();
  agent_.SetStatus(status::kStatus, "0");
  Start();
  Commands().ExplorerLogout();
  EXPECT_TRUE(Runs(backup_));
  EXPECT_FALSE(Runs(restore_));
  EXPECT_EQ(agent_.Traced("backup with Process ID"), 0u);
}

TEST_F(SessionTest, AClientThatDidNotComeFromTheContextMenuIsLeftAlone) {
  StartTransfer();
  agent_.machine.files().Delete(agent_.UserPath(files::kContextMenuRun));
  Start();
  Commands().ExplorerLogout();
  EXPECT_TRUE(Runs(backup_));
  EXPECT_FALSE(Runs(restore_));
  EXPECT_EQ(agent_.Traced("Interactive backup with Process ID = " + std::to_string(backup_)), 1u);
}

TEST_F(SessionTest, ALogoutDeletesAStaleQuotaFile) {
  agent_.PutUserFile(files::kQuotaExceeded);
  Start();
  LogOutByMenu();
  EXPECT_FALSE(agent_.HasUserFile(files::kQuotaExceeded));
}

TEST_F(SessionTest, AStaleProcessIdEndsNothing) {
  agent_.SetStatus(status::kStatus, "2");
  agent_.SetShifted(keys::kClientPid, "99999");
  agent_.SetShifted(keys::kClientPidRestore, "no number");
  agent_.PutUserFile(files::kContextMenuRun);
  Start();
  Commands().ExplorerLogout();
  EXPECT_EQ(agent_.machine.journal().Count("process", "terminate"), 0u);
  EXPECT_EQ(agent_.Status(status::kStatus), "0");
}

TEST_F(SessionTest, AProcessIdThatNowBelongsToAnotherProgramIsLeftAlone) {
  StartTransfer();
  const auto stranger = agent_.machine.processes().Start("C:\\Windows\\notepad.exe");
  const auto neighbour = agent_.machine.processes().Start("C:\\SorvaneOther\\tool.exe");
  agent_.SetShifted(keys::kClientPid, std::to_string(stranger));
  agent_.SetShifted(keys::kClientPidRestore, std::to_string(neighbour));
  Start();
  Commands().ExplorerLogout();
  EXPECT_TRUE(Runs(stranger));
  EXPECT_TRUE(Runs(neighbour));
  EXPECT_EQ(agent_.Status(status::kStatus), "0");
}

TEST_F(SessionTest, AStaleIdThatNowIsTheAgentsOrTheSchedulersEndsNeither) {
  StartTransfer();
  const auto scheduler = agent_.machine.processes().RunningId("SorvaneEBackground.exe");
  agent_.SetShifted(keys::kClientPid, std::to_string(scheduler));
  agent_.SetShifted(keys::kClientPidRestore, std::to_string(agent_.machine.processes().own_id()));
  Start();
  Commands().ExplorerLogout();
  EXPECT_TRUE(Runs(scheduler));
  EXPECT_TRUE(Runs(agent_.machine.processes().own_id()));
}

TEST_F(SessionTest, ALogoutTakesTheQuotasItemAway) {
  agent_.PutUserFile(files::kQuotaExceeded);
  Start();
  agent_.RightClick();
  EXPECT_TRUE(agent_.Item("MnuQuotaExceeded").Visible());
  Commands().Relogin();
  EXPECT_FALSE(agent_.Item("MnuQuotaExceeded").Visible());
  EXPECT_FALSE(agent_.Item("BLLine").Visible());
}

TEST_F(SessionTest, TheTraceOfALogoutKeepsItsThreeBlanks) {
  Start();
  LogOutByMenu();
  EXPECT_EQ(agent_.Traced("   [INFORMATION] Logged out and set Connection Paramter to 0"), 1u);
  EXPECT_GE(agent_.Traced("   [INFORMATION] IntBackup = "), 1u);
}

TEST_F(SessionTest, TheMenuShowsTheLoginWordsAfterALogout) {
  Start();
  agent_.RightClick();
  EXPECT_EQ(agent_.Item("MnuOptions").Caption(), "Sorvane - Schedule Backup");
  LogOutByMenu();
  agent_.RightClick();
  EXPECT_EQ(agent_.Item("MnuOptions").Caption(), "Login - Sorvane Schedule Backup");
  EXPECT_FALSE(agent_.Item("mnuStatus").Enabled());
}

TEST_F(SessionTest, ALibraryTextTakesTheProductsName) {
  agent_.machine.libraries().PutString(agent_.Path("TVToolTips.dll"), 1367, "Leave Sorvane now?");
  agent_.MakePartner();
  Start();
  agent_.host.AnswerWith("IDCancel");
  Commands().MnuLoginClick();
  EXPECT_THAT(Effects(agent_), Contains("ask Leave Acme now?"));
}

}  // namespace
}  // namespace agent
