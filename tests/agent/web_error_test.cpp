// What the agent does with the errors of the web plug-in.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/agent/effects.h"
#include "tests/agent/web_fixture.h"

namespace agent {
namespace {

using testing::Effects;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::InstalledAgent;
using testing::kAlert;
using ::testing::Not;
namespace keys = shared::keys;
namespace sections = shared::sections;

class WebErrorTest : public testing::WebFixture {};

TEST_F(WebErrorTest, AnErrorThatStaysDoesNotLogOutWhoLogsInAgain) {
  ASSERT_TRUE(agent_.Start());
  SetError("-1");
  agent_.machine.Run(21000);
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
  agent_.LogIn();
  agent_.machine.Run(60000);
  EXPECT_EQ(agent_.ConnectionStatus(), 1u);
  SetError("-2");
  agent_.machine.Run(21000);
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
}

TEST_F(WebErrorTest, OnlyAPlainErrorOffersTheReport) {
  Start();
  const auto offers = [this] {
    return agent_.host.Find(kAlert)->Find("lblErrorReportLink")->Visible();
  };
  Commands().HandleWebManagerError(kWebError);
  EXPECT_TRUE(offers());
  Commands().HandleWebManagerError(kWebAccountCancelled);
  EXPECT_FALSE(offers());
}

TEST_F(WebErrorTest, APasswordChangeAtStartLogsTheUserOut) {
  SetError("-1");
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
  EXPECT_TRUE(AlertIsShown());
  EXPECT_EQ(agent_.host.Read(kAlert, "lblInstall"),
            "Web Manager is disabled as your password has been changed. Login with your new "
            "password to continue.");
}

TEST_F(WebErrorTest, AnErrorThatStandsThereAtStartIsDealtWithTwiceAndShownOnce) {
  for (const char* error : {"-1", "-2", "-3"}) {
    InstalledAgent agent;
    agent.SetProfile(sections::kOlwa, keys::kWebPluginError, error);
    ASSERT_TRUE(agent.Start());
    agent.machine.Run(61000);
    EXPECT_EQ(agent.Traced(std::string("Error occurred in web management ") + error), 2u);
    EXPECT_EQ(agent.machine.journal().Count("form", "show frmWelcome"), 1u) << error;
  }
}

TEST_F(WebErrorTest, OnlyAnErrorThatLogsOutBringsTheLoginWordsToTheMenu) {
  struct Row {
    std::int16_t error;
    const char* caption;
  };
  constexpr Row kRows[] = {{kWebError, "Sorvane - Schedule Backup"},
                           {kWebPasswordChanged, "Login - Sorvane Schedule Backup"},
                           {kWebAccountCancelled, "Login - Sorvane Schedule Backup"}};
  Start();
  for (const Row& row : kRows) {
    agent_.LogIn();
    Commands().HandleWebManagerError(row.error);
    agent_.RightClick();
    EXPECT_EQ(agent_.Item("MnuOptions").Caption(), row.caption) << row.error;
    EXPECT_FALSE(Item().Checked()) << row.error;
  }
}

TEST_F(WebErrorTest, AnErrorOfAnotherKindThanTheLastIsToldInItsOwnWordsToo) {
  Start();
  Commands().HandleWebManagerError(kWebError);
  Commands().HandleWebManagerError(kWebAccountCancelled);
  // The window stands there already: only its words change.
  EXPECT_EQ(agent_.machine.journal().Count("form", "show frmWelcome"), 1u);
  EXPECT_EQ(agent_.host.Read(kAlert, "lblInstall"),
            "Web Manager is disabled as your Sorvane account is canceled.");
}

TEST_F(WebErrorTest, AnErrorAtStartDoesNotLogTheUserOut) {
  SetError("-3");
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.ConnectionStatus(), 1u);
  EXPECT_EQ(agent_.host.Read(kAlert, "lblInstall"),
            "Web Manager is disabled as an error has occured");
}

TEST_F(WebErrorTest, AnErrorSwitchesOffEndsThePluginAndTells) {
  agent_.SetProfile(sections::kWeb, keys::kWebPlugin, "1");
  agent_.machine.processes().Start(agent_.Path("SorvanePlugin.exe"));
  Start();
  const auto before = agent_.machine.now();
  Commands().HandleWebManagerError(kWebAccountCancelled);
  EXPECT_THAT(Effects(agent_), ElementsAre("write Web.WebPlugin=0", "end SorvanePlugin.exe",
                                           "trace  Error occurred in web management -2",
                                           "registry Status=0", "show frmWelcome"));
  EXPECT_EQ(agent_.machine.now() - before, 1000u);
  EXPECT_EQ(agent_.host.Read(kAlert, "lblInstall"),
            "Web Manager is disabled as your Sorvane account is canceled.");
}

TEST_F(WebErrorTest, AChangedPasswordIsToldInItsOrder) {
  Start();
  agent_.state().WebState = 1;
  Item().SetChecked(true);
  Commands().HandleWebManagerError(kWebPasswordChanged);
  EXPECT_THAT(Effects(agent_),
              ElementsAre("write Web.WebPlugin=0", "trace  Error occurred in web management -1",
                          "registry Status=0",
                          // As much of it as an icon's tip holds.
                          "tip Sorvane - Web Manager is disabled as your password has been cha",
                          "show frmWelcome"));
  EXPECT_EQ(agent_.state().WebState, 0);
  EXPECT_FALSE(Item().Checked());
}

TEST_F(WebErrorTest, APlainErrorIsToldInItsOrder) {
  Start();
  Commands().HandleWebManagerError(kWebError);
  EXPECT_THAT(Effects(agent_),
              ElementsAre("write Web.WebPlugin=0", "trace  Error occurred in web management -3",
                          "show frmWelcome"));
  EXPECT_EQ(agent_.ConnectionStatus(), 1u);
}

TEST_F(WebErrorTest, AnyOtherValueOnlySwitchesOff) {
  Start();
  for (const int other : {-4, 0, 1, 32767}) {
    const auto value = static_cast<std::int16_t>(other);
    agent_.machine.journal().Clear();
    Commands().HandleWebManagerError(value);
    EXPECT_THAT(Effects(agent_),
                ElementsAre("write Web.WebPlugin=0",
                            "trace  Error occurred in web management " + std::to_string(value)));
    EXPECT_FALSE(AlertIsShown());
  }
  Commands().HandleWebManagerError(kWebError);
  EXPECT_TRUE(AlertIsShown());
}

TEST_F(WebErrorTest, OnlyAChangedPasswordStandsInTheTip) {
  Start();
  Commands().HandleWebManagerError(kWebError);
  EXPECT_THAT(Effects(agent_), Not(Contains(HasSubstr("tip "))));
  Commands().HandleWebManagerError(kWebPasswordChanged);
  EXPECT_THAT(agent_.Tip(), HasSubstr("Sorvane - Web Manager is disabled"));
}

TEST_F(WebErrorTest, TwoErrorsInARowShowTheWindowOnce) {
  Start();
  Commands().HandleWebManagerError(kWebError);
  EXPECT_TRUE(AlertIsShown());
  agent_.host.Click(kAlert, "cmdExit");
  for (int i = 0; i < 3; ++i) Commands().HandleWebManagerError(kWebError);
  EXPECT_FALSE(AlertIsShown());
}

TEST_F(WebErrorTest, TheSwitchLetsTheNextErrorBeTold) {
  agent_.SetShifted(keys::kPassword, "secret");
  Start();
  Commands().HandleWebManagerError(kWebError);
  agent_.host.Click(kAlert, "cmdExit");
  Click("Continue");
  Commands().HandleWebManagerError(kWebError);
  EXPECT_TRUE(AlertIsShown());
}

TEST_F(WebErrorTest, WithNobodyLoggedInAnErrorIsOnlyCleared) {
  agent_.ForgetUser();
  Start();
  for (const std::int16_t error : {kWebPasswordChanged, kWebAccountCancelled, kWebError}) {
    agent_.machine.journal().Clear();
    Commands().HandleWebManagerError(error);
    EXPECT_THAT(Effects(agent_),
                ElementsAre("write Web.WebPlugin=0",
                            "trace  Error occurred in web management " + std::to_string(error),
                            "write OLWA.ErrVal=", "write Web.WebPlugin=0"));
    EXPECT_FALSE(AlertIsShown());
    EXPECT_EQ(agent_.ConnectionStatus(), 1u);
  }
}

TEST_F(WebErrorTest, ClosingTheAlertOfAPlainErrorOnlyCloses) {
  agent_.SetShifted(keys::kPassword, "secret");
  Start();
  // Also when the one before it asked for a login.
  Commands().HandleWebManagerError(kWebPasswordChanged);
  Click("Continue");
  Commands().HandleWebManagerError(kWebError);
  agent_.machine.journal().Clear();
  agent_.host.Click(kAlert, "cmdExit");
  EXPECT_THAT(Effects(agent_),
              ElementsAre("trace  WebpluginAlert Screen is Closed", "unload frmWelcome"));
}

TEST_F(WebErrorTest, SwitchingOffAlsoLetsTheNextErrorBeTold) {
  Start();
  Commands().HandleWebManagerError(kWebError);
  agent_.host.Click(kAlert, "cmdExit");
  Item().SetChecked(true);
  Click("Continue");
  Commands().HandleWebManagerError(kWebError);
  EXPECT_TRUE(AlertIsShown());
}

TEST_F(WebErrorTest, ClosingTheAlertOfAChangedPasswordLeadsToTheLogin) {
  Start();
  Commands().HandleWebManagerError(kWebPasswordChanged);
  agent_.machine.journal().Clear();
  agent_.host.Click(kAlert, "cmdExit");
  EXPECT_THAT(Effects(agent_),
              ElementsAre("start C:\\Sorvane\\SorvaneEClassic.exe",
                          "trace  WebpluginAlert Screen is Closed", "unload frmWelcome"));
}

TEST_F(WebErrorTest, ASlowTickTellsAnErrorThatThePluginHasLeft) {
  ASSERT_TRUE(agent_.Start());
  SetError("-3");
  agent_.machine.Run(21000);
  EXPECT_TRUE(AlertIsShown());
}

}  // namespace
}  // namespace agent
