#include "agent/web_management.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "shared/keys.h"
#include "tests/agent/effects.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using ::testing::Contains;
using testing::Effects;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::InstalledAgent;
using ::testing::Not;
namespace keys = shared::keys;
namespace sections = shared::sections;

constexpr std::string_view kAlert = "frmWelcome";

class WebManagementTest : public ::testing::Test {
 protected:
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.journal().Clear();
  }
  void SetError(std::string_view value) {
    agent_.SetProfile(sections::kOlwa, keys::kWebPluginError, value);
  }
  std::string Profile(std::string_view section, std::string_view key) {
    return agent_.machine.files().IniValue(agent_.UserPath("SorvaneE.ini"), section, key);
  }
  void Click(const char* answer) {
    agent_.host.AnswerWith(answer);
    agent_.agent().form().commands().WebPluginClick();
  }
  bool AlertIsShown() {
    const auto* alert = agent_.host.Find(kAlert);
    return alert != nullptr && alert->Visible();
  }
  forms::MenuItem& Item() { return agent_.Item("WebPlugin"); }
  TrayCommands& Commands() { return agent_.agent().form().commands(); }

  InstalledAgent agent_;
};

TEST_F(WebManagementTest, SwitchesOnAfterTheQuestion) {
  agent_.SetShifted(keys::kPassword, "secret");
  Start();
  Click("Continue");
  EXPECT_THAT(
      Effects(agent_),
      ElementsAre("ask On enabling this option, you will be able to manage your Backup "
                  "Set, its Schedule and View Logs remotely via Web.",
                  "trace Enabling WebPlugin", "write OLWA.ErrVal=", "write Web.WebPlugin=1"));
  EXPECT_TRUE(Item().Checked());
  EXPECT_TRUE(agent_.agent().form().WebMTimer.Enabled());
  agent_.machine.Run(100);
  EXPECT_FALSE(agent_.agent().form().WebMTimer.Enabled());
  EXPECT_EQ(agent_.agent().form().MousePointer(), forms::Pointer::kDefault);
  EXPECT_TRUE(Item().Checked());
}

TEST_F(WebManagementTest, SwitchesOffAndEndsThePlugin) {
  agent_.SetProfile(sections::kWeb, keys::kWebPlugin, "1");
  agent_.machine.processes().Start(agent_.Path("SorvanePlugin.exe"));
  Start();
  Click("Continue");
  agent_.machine.Run(100);
  EXPECT_THAT(Effects(agent_),
              ElementsAre("ask On disabling this feature, you will no longer be able to manage "
                          "your Backup Set and Schedule via Web.",
                          "trace Disabling WebPlugin", "write Web.WebPlugin=0",
                          "write OLWA.ErrVal=", "write OLWA.ErrVal=", "end SorvanePlugin.exe",
                          "write Web.WebPlugin=0"));
  EXPECT_FALSE(Item().Checked());
}

TEST_F(WebManagementTest, ALongTickInsideTheYieldDoesNotTurnTheSwitchBack) {
  agent_.SetShifted(keys::kPassword, "secret");
  Start();
  agent_.host.Answer([this](forms::Form& box) {
    agent_.machine.AtAgent(agent_.machine.now(),
                           [this] { agent_.machine.platform().clock.Sleep(3000); });
    box.PressKey(box.Find("TextCont"), forms::Key::kEnter);
  });
  agent_.agent().form().commands().WebPluginClick();
  agent_.machine.Run(200);
  EXPECT_TRUE(Item().Checked());
  EXPECT_EQ(Profile(sections::kWeb, keys::kWebPlugin), "1");
  EXPECT_FALSE(agent_.agent().form().WebMTimer.Enabled());
}

TEST_F(WebManagementTest, AnErrorThatStaysDoesNotLogOutWhoLogsInAgain) {
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

TEST_F(WebManagementTest, OnlyAPlainErrorOffersTheReport) {
  Start();
  const auto offers = [this] {
    return agent_.host.Find(kAlert)->Find("lblErrorReportLink")->Visible();
  };
  Commands().HandleWebManagerError(kWebError);
  EXPECT_TRUE(offers());
  Commands().HandleWebManagerError(kWebAccountCancelled);
  EXPECT_FALSE(offers());
}

TEST_F(WebManagementTest, CancelLeavesTheSwitch) {
  Start();
  Click("IDCancel");
  EXPECT_EQ(Profile(sections::kWeb, keys::kWebPlugin), "");
  EXPECT_FALSE(agent_.agent().form().WebMTimer.Enabled());
}

TEST_F(WebManagementTest, WithNobodyLoggedInLeadsToTheLogin) {
  agent_.ForgetUser();
  Start();
  Click("Continue");
  EXPECT_THAT(Effects(agent_),
              ElementsAre("ask To enable web management login to your Sorvane account.",
                          "write OLWA.ErrVal=", "write Web.WebPlugin=0",
                          "start C:\\Sorvane\\SorvaneEClassic.exe"));
  EXPECT_FALSE(Item().Checked());
}

TEST_F(WebManagementTest, WithoutAPasswordAsksForTheDesktopLogin) {
  Start();
  Click("Continue");
  agent_.host.AnswerWith("Continue");
  agent_.machine.journal().Clear();
  agent_.machine.Run(100);
  EXPECT_THAT(Effects(agent_), ElementsAre("ask Login to the Sorvane desktop application to "
                                           "enable the 'Web Management' feature."));
  EXPECT_FALSE(agent_.agent().form().WebMTimer.Enabled());
}

TEST_F(WebManagementTest, APasswordChangeAtStartLogsTheUserOut) {
  SetError("-1");
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
  EXPECT_TRUE(AlertIsShown());
  EXPECT_EQ(agent_.host.Read(kAlert, "lblInstall"),
            "Web Manager is disabled as your password has been changed. Login with your new "
            "password to continue.");
}

TEST_F(WebManagementTest, AnErrorAtStartDoesNotLogTheUserOut) {
  SetError("-3");
  ASSERT_TRUE(agent_.Start());
  EXPECT_EQ(agent_.ConnectionStatus(), 1u);
  EXPECT_EQ(agent_.host.Read(kAlert, "lblInstall"),
            "Web Manager is disabled as an error has occured");
}

TEST_F(WebManagementTest, AnErrorSwitchesOffEndsThePluginAndTells) {
  agent_.SetProfile(sections::kWeb, keys::kWebPlugin, "1");
  agent_.machine.processes().Start(agent_.Path("SorvanePlugin.exe"));
  Start();
  const auto before = agent_.machine.now();
  Commands().HandleWebManagerError(kWebAccountCancelled);
  EXPECT_THAT(Effects(agent_),
              ElementsAre("write Web.WebPlugin=0", "end SorvanePlugin.exe",
                          "trace  Error occurred in web management -2", "registry Status=0"));
  EXPECT_EQ(agent_.machine.now() - before, 1000u);
  EXPECT_EQ(agent_.host.Read(kAlert, "lblInstall"),
            "Web Manager is disabled as your Sorvane account is canceled.");
}

TEST_F(WebManagementTest, OnlyAChangedPasswordStandsInTheTip) {
  Start();
  Commands().HandleWebManagerError(kWebError);
  EXPECT_THAT(Effects(agent_), Not(Contains(HasSubstr("tip "))));
  Commands().HandleWebManagerError(kWebPasswordChanged);
  EXPECT_THAT(agent_.Tip(), HasSubstr("Sorvane - Web Manager is disabled"));
}

TEST_F(WebManagementTest, TwoErrorsInARowShowTheWindowOnce) {
  Start();
  Commands().HandleWebManagerError(kWebError);
  EXPECT_TRUE(AlertIsShown());
  agent_.host.Click(kAlert, "cmdExit");
  for (int i = 0; i < 3; ++i) Commands().HandleWebManagerError(kWebError);
  EXPECT_FALSE(AlertIsShown());
}

TEST_F(WebManagementTest, TheSwitchLetsTheNextErrorBeTold) {
  agent_.SetShifted(keys::kPassword, "secret");
  Start();
  Commands().HandleWebManagerError(kWebError);
  agent_.host.Click(kAlert, "cmdExit");
  Click("Continue");
  Commands().HandleWebManagerError(kWebError);
  EXPECT_TRUE(AlertIsShown());
}

TEST_F(WebManagementTest, WithNobodyLoggedInAnErrorIsOnlyCleared) {
  agent_.ForgetUser();
  Start();
  Commands().HandleWebManagerError(kWebPasswordChanged);
  EXPECT_FALSE(AlertIsShown());
  EXPECT_EQ(agent_.ConnectionStatus(), 1u);
}

TEST_F(WebManagementTest, ClosingTheAlertOfAChangedPasswordLeadsToTheLogin) {
  Start();
  Commands().HandleWebManagerError(kWebPasswordChanged);
  agent_.machine.journal().Clear();
  agent_.host.Click(kAlert, "cmdExit");
  EXPECT_THAT(Effects(agent_), ElementsAre("start C:\\Sorvane\\SorvaneEClassic.exe",
                                           "trace  WebpluginAlert Screen is Closed"));
}

TEST_F(WebManagementTest, ASlowTickTellsAnErrorThatThePluginHasLeft) {
  ASSERT_TRUE(agent_.Start());
  SetError("-3");
  agent_.machine.Run(21000);
  EXPECT_TRUE(AlertIsShown());
}

TEST_F(WebManagementTest, WaitsAMinuteAtMostForThePluginsAnswer) {
  Start();
  auto& web = Commands().web_management();
  const auto before = agent_.machine.now();
  EXPECT_EQ(web.WaitWebManagerAuth(), 0);
  EXPECT_EQ(agent_.machine.now() - before, 60000u);
  for (const char* answer : {"-1", "1", "-2"}) {
    agent_.machine.At(agent_.machine.now() + 500, [this, answer] {
      agent_.machine.files().PutIni(agent_.Path("UserName.ini"), sections::kRdPlugin,
                                    keys::kPluginAuth, answer);
    });
    agent_.machine.files().PutIni(agent_.Path("UserName.ini"), sections::kRdPlugin,
                                  keys::kPluginAuth, "5");
    EXPECT_EQ(std::to_string(web.WaitWebManagerAuth()), answer);
  }
}

}  // namespace
}  // namespace agent
