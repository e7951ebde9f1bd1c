#include "agent/web_management.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "shared/character_shift.h"
#include "tests/agent/effects.h"
#include "tests/agent/web_fixture.h"

namespace agent {
namespace {

using testing::Effects;
using ::testing::ElementsAre;
namespace keys = shared::keys;
namespace sections = shared::sections;

class WebManagementTest : public testing::WebFixture {};

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

TEST_F(WebManagementTest, APasswordInTheOldKeyIsEnough) {
  Start();
  agent_.SetProfile(sections::kTolvex, keys::kPlainPassword,
                    shared::ShiftCharacters("secret", shared::kProfileShift).text);
  Click("Continue");
  agent_.machine.journal().Clear();
  agent_.machine.Run(100);
  EXPECT_THAT(Effects(agent_), ElementsAre("write OLWA.ErrVal="));
  EXPECT_TRUE(Item().Checked());
}

TEST_F(WebManagementTest, AUserWhoHasGoneWhenTheTimerTicksIsSentToTheDesktopLogin) {
  agent_.machine.libraries().PutString(agent_.Path("TVToolTips.dll"), 979, "Log in first.");
  agent_.SetShifted(keys::kPassword, "secret");
  Start();
  Click("Continue");
  agent_.ForgetUser();
  agent_.host.AnswerWith("Continue");
  agent_.machine.journal().Clear();
  agent_.machine.Run(100);
  EXPECT_THAT(Effects(agent_), ElementsAre("ask Log in first."));
  EXPECT_EQ(agent_.agent().form().MousePointer(), forms::Pointer::kDefault);
}

TEST_F(WebManagementTest, TheQuestionsHaveTheirTitleAndButtons) {
  Start();
  int looked = 0;
  const auto look = [&looked](forms::Form& box) {
    const auto text = [&box](std::string_view name) { return box.Find(name)->Text(); };
    EXPECT_EQ(box.Caption(), "Web Management");
    EXPECT_EQ(text("Continue") + "/" + text("IDCancel") + "/" + text("Image4"),
              "Proceed/Cancel/question");
    EXPECT_FALSE(box.Find("lblnote")->Shown());
    ++looked;
    box.Unload();
  };
  for (const bool on : {false, true}) {
    Item().SetChecked(on);
    agent_.host.Answer(look);
    Commands().WebPluginClick();
    EXPECT_EQ(agent_.agent().form().MousePointer(), forms::Pointer::kDefault);
  }
  EXPECT_EQ(looked, 2);
}

TEST_F(WebManagementTest, NobodyIsToldInAPlainBox) {
  agent_.ForgetUser();
  Start();
  Item().SetChecked(true);
  std::string words;
  agent_.host.Answer([&words](forms::Form& box) {
    for (const char* name : {"Continue", "IDCancel", "Image4"}) {
      words += box.Find(name)->Text() + " ";
    }
    words += box.Caption();
    box.Unload();
  });
  Commands().WebPluginClick();
  EXPECT_EQ(words, "OK Close info Sorvane");
  EXPECT_FALSE(Item().Checked());
}

TEST_F(WebManagementTest, ThePointerIsBusyUntilTheTimerTicks) {
  agent_.SetShifted(keys::kPassword, "secret");
  Start();
  for (const bool on : {false, true}) {
    Item().SetChecked(on);
    Click("Continue");
    EXPECT_EQ(agent_.agent().form().MousePointer(), forms::Pointer::kBusy);
    agent_.machine.Run(100);
    EXPECT_EQ(agent_.agent().form().MousePointer(), forms::Pointer::kDefault);
  }
}

TEST_F(WebManagementTest, SwitchingOffForgetsThePluginsState) {
  agent_.SetProfile(sections::kWeb, keys::kWebPlugin, "1");
  Start();
  agent_.state().WebState = 1;
  Click("Continue");
  EXPECT_EQ(agent_.state().WebState, 1);
  agent_.machine.Run(100);
  EXPECT_EQ(agent_.state().WebState, 0);
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

TEST_F(WebManagementTest, TheWaitForThePluginGivesWayOnceAtItsBegin) {
  Start();
  const auto before = agent_.machine.now();
  std::uint64_t gave_way_at = 0;
  int times = 0;
  for (std::uint32_t pump = 1; pump <= 2; ++pump) {
    agent_.machine.WhenPumped(
        [&] {
          gave_way_at = agent_.machine.now();
          ++times;
        },
        pump);
  }
  Commands().web_management().WaitWebManagerAuth();
  EXPECT_EQ(times, 1);
  EXPECT_EQ(gave_way_at, before);
}

}  // namespace
}  // namespace agent
