#include "agent/icon_events.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shared/configuration_keys.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::InstalledAgent;
namespace keys = shared::keys;

constexpr std::string_view kPage = "https://backup.sorvane.example/account?name=ann";

class IconEventsTest : public ::testing::Test {
 protected:
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.journal().Clear();
  }
  void ExceedQuota() { agent_.PutUserFile(status::kQuotaExceededFile); }
  std::size_t Opened(std::string_view page) {
    return agent_.machine.journal().Count("shell", page);
  }
  platform::WindowId AddMainWindow(bool minimised) {
    return agent_.machine.windows().Add({.class_name = "ThunderForm",
                                         .title = "Sorvane Classic 5.0 (ann)",
                                         .minimised = minimised});
  }
  // The texts of the boxes that were shown.
  std::size_t Told(std::string_view text) {
    std::size_t count = 0;
    for (const std::string& line : agent_.shown) count += line.find(text) != std::string::npos;
    return count;
  }

  InstalledAgent agent_;
};

TEST_F(IconEventsTest, ADoubleClickForgetsTheEndsOfAJobOnly) {
  struct Row {
    std::string_view before, after;
  };
  constexpr Row kRows[] = {{"3", "0"}, {"4", "0"}, {"7", "0"}, {"1", "1"},
                           {"2", "2"}, {"", ""},   {"5", "5"}, {"0", "0"}};
  Start();
  for (const Row& row : kRows) {
    agent_.SetStatus(status::kDllStatus, row.before);
    agent_.DoubleClick();
    EXPECT_EQ(agent_.Status(status::kDllStatus), row.after);
  }
}

TEST_F(IconEventsTest, ADoubleClickClearsTheRedIconAtTheNextTick) {
  Start();
  agent_.SetStatus(status::kRetValue, "-416");
  agent_.SetStatus(status::kDllStatus, "3");
  agent_.Tick();
  EXPECT_EQ(agent_.Picture(), "tvlogred.ico");
  agent_.DoubleClick();
  agent_.Tick();
  EXPECT_EQ(agent_.Picture(), "tvlog.ico");
}

TEST_F(IconEventsTest, OpensTheAccountPageTwiceAndDeletesTheMarkOfTheQuota) {
  Start();
  ExceedQuota();
  agent_.DoubleClick();
  EXPECT_EQ(Opened(kPage), 2u);
  EXPECT_FALSE(agent_.HasUserFile(status::kQuotaExceededFile));
  EXPECT_FALSE(agent_.machine.processes().IsRunning("SorvaneEClassic.exe"));
}

TEST_F(IconEventsTest, OpensAPageThreeTimesThatNoProgramIsAssociatedWith) {
  agent_.PutConfigValue(shared::config::kWebLink, shared::config::kAccountUpgradeLink,
                        agent_.Path("page."));
  agent_.machine.files().Put(agent_.Path("page.ann"), "");
  Start();
  ExceedQuota();
  agent_.DoubleClick();
  EXPECT_EQ(Opened("page.ann"), 3u);
}

TEST_F(IconEventsTest, NamesTheLanguageOfASpanishInstallation) {
  agent_.PutConfigValue(shared::config::kProductInfo, shared::config::kLanguage, "Spanish");
  Start();
  ExceedQuota();
  agent_.DoubleClick();
  EXPECT_EQ(Opened(std::string(kPage) + " &country=ES&lang=es"), 2u);
}

TEST_F(IconEventsTest, DoesNotTalkOfTheQuotaToALoggedOutUser) {
  Start();
  agent_.LogOut();
  ExceedQuota();
  agent_.DoubleClick();
  EXPECT_EQ(Opened(kPage), 0u);
  EXPECT_TRUE(agent_.HasUserFile(status::kQuotaExceededFile));
}

TEST_F(IconEventsTest, ResetsTheCodeOfAnExceededQuota) {
  Start();
  agent_.SetShared(keys::kRtBackup, "6");
  agent_.DoubleClick();
  EXPECT_EQ(agent_.Shared(keys::kRtBackup), "0");
  EXPECT_EQ(agent_.state().JobState, 0);
}

TEST_F(IconEventsTest, TellsEveryFailureOfContinuousBackupAndResetsIt) {
  struct Row {
    std::string_view code;
    std::uint32_t text;
    std::string_view literal;
  };
  constexpr Row kRows[] = {
      {"2", 973,
       "The backup operation has been stopped as the same username has been used on another "
       "computer where the backup operation is in progress. To proceed further, register after the "
       "backup operation on the other computer is over"},
      {"3", 974,
       "The Continuous Data Backup operation has failed as the password was changed from the "
       "website. Login with the new Password and try again."},
      {"5", 976,
       "The Continuous Backup Operation has failed to connect to the Sorvane server. The "
       "application will automatically try to enable the operation again after 24 hours."},
      {"7", 977, "The Continuous Data Backup Operation has failed as the username was canceled."},
      {"8", 1576, "Check the proxy setting and enable the Continuous Data Backup operation again."},
      {"9", 978,
       "The Sorvane server is under maintenance. The application will automatically try to enable "
       "the Continuous Data Backup operation after 24 hours."},
      {"10", 978,
       "The Sorvane server is under maintenance. The application will automatically try to enable "
       "the Continuous Data Backup operation after 24 hours."},
  };
  Start();
  for (const Row& row : kRows) {
    agent_.shown.clear();
    agent_.SetShared(keys::kRtBackup, row.code);
    agent_.Tick();
    agent_.DoubleClick();
    EXPECT_EQ(Told(row.literal), 1u) << row.code;
    EXPECT_EQ(agent_.Shared(keys::kRtBackup), "0") << row.code;
    EXPECT_EQ(agent_.state().JobState, 0) << row.code;
  }
  for (const Row& row : kRows) {
    agent_.machine.libraries().PutString(agent_.Path("TVToolTips.dll"), row.text,
                                         "failure " + std::to_string(row.text));
    agent_.shown.clear();
    agent_.SetShared(keys::kRtBackup, row.code);
    agent_.DoubleClick();
    EXPECT_EQ(Told("failure " + std::to_string(row.text)), 1u) << row.code;
  }
  EXPECT_FALSE(agent_.machine.processes().IsRunning("SorvaneEClassic.exe"));
}

TEST_F(IconEventsTest, TellsTheShorterRetryOfAFailedConnection) {
  Start();
  agent_.SetProfile(shared::sections::kTolvex, keys::kCdpRetry, "2");
  agent_.SetShared(keys::kRtBackup, "5");
  agent_.DoubleClick();
  EXPECT_EQ(Told("again after 2 hours."), 1u);
}

TEST_F(IconEventsTest, TellsNothingOfARunWhichTheUserCancelled) {
  Start();
  agent_.SetShared(keys::kRtBackup, "4");
  agent_.DoubleClick();
  EXPECT_EQ(agent_.Shared(keys::kRtBackup), "4");
  EXPECT_TRUE(agent_.machine.processes().IsRunning("SorvaneEClassic.exe"));
}

TEST_F(IconEventsTest, BringsTheMainProgramForward) {
  Start();
  const auto window = AddMainWindow(true);
  agent_.DoubleClick();
  EXPECT_FALSE(agent_.machine.windows().Get(window)->minimised);
  EXPECT_EQ(agent_.machine.windows().front(), window);
  EXPECT_FALSE(agent_.machine.processes().IsRunning("SorvaneEClassic.exe"));
}

TEST_F(IconEventsTest, DoesNotRestoreAWindowThatIsNotMinimised) {
  Start();
  AddMainWindow(false);
  agent_.DoubleClick();
  EXPECT_EQ(agent_.machine.journal().Count("window", "restore"), 0u);
  EXPECT_EQ(agent_.machine.journal().Count("window", "front"), 1u);
}

TEST_F(IconEventsTest, StartsTheMainProgramWhenItsWindowIsNotThere) {
  Start();
  agent_.machine.windows().Add({.class_name = "", .title = "Sorvane Classic 5.0 (bob)"});
  agent_.DoubleClick();
  EXPECT_TRUE(agent_.machine.processes().IsRunning("SorvaneEClassic.exe"));
}

TEST_F(IconEventsTest, OtherMovementsOfTheMouseOnlyUpdateTheTip) {
  Start();
  for (const std::uint32_t message : {0x200u, 0x201u, 0x202u, 0x204u, 0x206u, 0u, 0xFFFFu}) {
    agent_.Touch(message);
  }
  EXPECT_EQ(agent_.host.MenusShown(), 0);
  EXPECT_EQ(agent_.machine.journal().Count("shell"), 0u);
}

TEST_F(IconEventsTest, ARightClickShowsTheMenuOnce) {
  Start();
  agent_.RightClick();
  EXPECT_EQ(agent_.host.MenusShown(), 1);
  EXPECT_NE(agent_.host.LastMenu().find("Stop Scheduled Backup"), std::string::npos);
}

}  // namespace
}  // namespace agent
