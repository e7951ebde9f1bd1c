#include "agent/start_up.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "shared/keys.h"
#include "tests/agent/effects.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::Effects;
using ::testing::ElementsAre;
using testing::InstalledAgent;
namespace keys = shared::keys;
using platform::Hive;

constexpr std::string_view kRoot = "Software\\Bellwick-Labs\\SorvaneE";

class StartUpTest : public ::testing::Test {
 protected:
  void SetAuthenticated(std::string_view value) { agent_.SetShifted(keys::kAuthenticated, value); }
  void SetInstalledFirst(std::string_view value) {
    agent_.machine.registry().PutText(Hive::kCurrentUser, kRoot, "InstalledFirst", value);
  }
  std::uint64_t StartAndMeasure() {
    const auto before = agent_.machine.now();
    EXPECT_TRUE(agent_.Start());
    return agent_.machine.now() - before;
  }

  InstalledAgent agent_;
};

TEST_F(StartUpTest, EndsSilentlyWithoutTheConfiguration) {
  agent_.machine.files().Delete(agent_.Path("Configuration.ini"));
  agent_.machine.journal().Clear();
  EXPECT_FALSE(agent_.Start());
  EXPECT_TRUE(agent_.machine.journal().entries().empty());
  EXPECT_FALSE(agent_.machine.shell().icon());
}

TEST_F(StartUpTest, TracesItsStepsInOrder) {
  SetAuthenticated("1");
  ASSERT_TRUE(agent_.Start());
  std::vector<std::string> traced = Effects(agent_);
  std::erase_if(traced, [](const std::string& line) { return !line.starts_with("trace"); });
  EXPECT_THAT(
      traced,
      ElementsAre("trace Started Tray...", "trace checking if SorvaneEBackground.exe is running",
                  "trace After creating default files...", "trace Default user: ann",
                  "trace Default userann", "trace before Setappdir", "trace after setappdir",
                  "trace after create appmutex", "trace Checking Background running..1",
                  "trace Username : ann",
                  "trace ReConnect =", "trace Connection Parameter = 1/2, so waiting for 20 secs",
                  "trace Connection Parameters =1"));
}

TEST_F(StartUpTest, BeginsTheFolderOfNobodyEmpty) {
  agent_.machine.files().Put(agent_.Path("SorvaneE\\old\\left.txt"), "x");
  agent_.machine.files().Put(agent_.Path("SorvaneE\\TrayTraceFile.txt"), "x");
  ASSERT_TRUE(agent_.Start());
  EXPECT_FALSE(agent_.machine.files().Has(agent_.Path("SorvaneE\\old")));
  EXPECT_TRUE(agent_.machine.files().Has(agent_.Path("SorvaneE")));
  const std::string trace =
      agent_.machine.files().Utf16Content(agent_.Path("SorvaneE\\TrayTraceFile.txt"));
  EXPECT_EQ(trace.find("Started Tray"), std::string::npos);
  EXPECT_NE(trace.find("checking if"), std::string::npos);
}

TEST_F(StartUpTest, EntersTheInstallationFolder) {
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.machine.files().current_folder(), "C:\\Sorvane");
}

TEST_F(StartUpTest, TellsThatTheFolderCannotBeEntered) {
  agent_.machine.gate().FailAll("files.ChangeDirectory");
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.machine.journal().Count(
                "box", "Error initialising setting monitor directory \nReason: "),
            1u);
}

TEST_F(StartUpTest, RemovesLeftOverRecordsOfTheUser) {
  agent_.PutUserFile("TempRecVals.txt", "x");
  ASSERT_TRUE(agent_.Start());
  EXPECT_FALSE(agent_.HasUserFile("TempRecVals.txt"));
}

TEST_F(StartUpTest, ASecondStartEndsWithoutASecondIconYetEmptiesTheFolderOfNobody) {
  agent_.machine.processes().HoldMutexElsewhere("SorvaneETrayexe");
  agent_.machine.files().Put(agent_.Path("SorvaneE\\left.txt"), "x");
  EXPECT_FALSE(agent_.Start());
  EXPECT_EQ(agent_.machine.journal().Count("icon"), 0u);
  EXPECT_FALSE(agent_.machine.files().Has(agent_.Path("SorvaneE\\left.txt")));
  EXPECT_EQ(agent_.Traced("after create appmutex"), 1u);
}

TEST_F(StartUpTest, ResetsTheOpenFileModeOfTwoOnly) {
  for (const std::string_view mode : {"1", "0", "2"}) {
    InstalledAgent agent;
    agent.machine.registry().PutText(Hive::kLocalMachine, "Software\\SorvaneE", "OpenFileMode",
                                     mode);
    ASSERT_TRUE(agent.Start());
    EXPECT_EQ(
        agent.machine.registry().Text(Hive::kLocalMachine, "Software\\SorvaneE", "OpenFileMode"),
        mode == "2" ? "0" : mode);
  }
}

TEST_F(StartUpTest, TakesEveryScreenForOneOfLargeFonts) {
  ASSERT_TRUE(agent_.Start());
  EXPECT_TRUE(agent_.state().LargeFonts);
}

TEST_F(StartUpTest, HidesTheMainFormAndKeepsItsWindow) {
  ASSERT_TRUE(agent_.Start());
  EXPECT_TRUE(agent_.agent().form().Loaded());
  EXPECT_FALSE(agent_.agent().form().Visible());
  EXPECT_EQ(agent_.agent().form().Name(), "frmTVWinService");
  EXPECT_EQ(agent_.agent().form().Caption(), "Sorvane Log Viewer");
}

TEST_F(StartUpTest, MarksThatTheFirstUserHasBeenWithAndWithoutAUser) {
  for (const bool with_user : {true, false}) {
    InstalledAgent agent;
    if (!with_user) agent.ForgetUser();
    ASSERT_TRUE(agent.Start());
    EXPECT_EQ(agent.machine.registry().Text(Hive::kCurrentUser, kRoot, "FirstTimeUser"), "TRUE");
  }
}

TEST_F(StartUpTest, WaitsOneSecondForALoginWordOfOneOrTwo) {
  struct Row {
    std::uint32_t status;
    std::uint64_t wait;
  };
  constexpr Row kRows[] = {{0, 1000}, {1, 2000}, {2, 2000}, {3, 1000}};
  for (const Row& row : kRows) {
    InstalledAgent agent;
    agent.LogIn(row.status);
    const auto before = agent.machine.now();
    ASSERT_TRUE(agent.Start());
    EXPECT_EQ(agent.machine.now() - before, row.wait) << row.status;
    EXPECT_EQ(agent.Traced("so waiting for 20 secs"), row.wait == 2000 ? 1u : 0u);
  }
}

TEST_F(StartUpTest, LogsOutAUserWhoIsNotAuthenticated) {
  SetAuthenticated("0");
  agent_.LogIn(2);
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
  EXPECT_EQ(agent_.state().CurrentUser, "ann");
}

TEST_F(StartUpTest, KeepsTheLoginWordWhileTheInstallerHasNotFinished) {
  SetAuthenticated("0");
  SetInstalledFirst("");
  agent_.LogIn(2);
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.ConnectionStatus(), 2u);
}

TEST_F(StartUpTest, KeepsAnAuthenticatedUserLoggedIn) {
  agent_.LogIn(1);
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.ConnectionStatus(), 1u);
  EXPECT_EQ(agent_.machine.files().IniValue(agent_.Path("UserName.ini"), "Registry", "CurrentUser"),
            "ann");
}

TEST_F(StartUpTest, DecidesNothingWithoutAUser) {
  agent_.ForgetUser();
  agent_.LogIn(1);
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.ConnectionStatus(), 1u);
  EXPECT_EQ(agent_.Tip(), "");
}

TEST_F(StartUpTest, GivesANewUserTheDefaultFilesAndNoLogin) {
  agent_.SetShifted(keys::kFirstUser, "");
  ASSERT_TRUE(agent_.Start());
  EXPECT_TRUE(agent_.HasUserFile("scheduleData.txt"));
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
}

}  // namespace
}  // namespace agent
