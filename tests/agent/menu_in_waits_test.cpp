// The menu and the ticks go on while a handler waits: every item is taken inside each wait, once
// with every question that it leads to refused and once with every one agreed to.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "tests/agent/continuous_fixture.h"
#include "tests/agent/every_item.h"

namespace agent {
namespace {

using ::testing::Not;
using testing::TakeEveryItem;
namespace keys = shared::keys;
namespace sections = shared::sections;

enum class Answers { kNo, kYes };

class MenuInWaitsTest : public testing::ContinuousFixture,
                        public ::testing::WithParamInterface<Answers> {
 protected:
  // With the ticks running.
  void StartTicking() {
    agent_.SetShifted(keys::kPassword, "secret");
    ASSERT_TRUE(agent_.Start());
    agent_.host.AnswerAlways([](forms::Form& box) {
      const char* button = GetParam() == Answers::kYes ? "Continue" : "IDCancel";
      box.Find(button)->Click();
    });
    agent_.SetStatus(status::kPaused, "1");
  }
  // Counts an item that is taken while `waits` holds, and notes whether a tick has run by then: it
  // takes a pause away that has no transfer.
  std::function<void()> Counting(std::function<bool()> waits) {
    return [this, waits = std::move(waits)] {
      if (waits()) ++taken_;
      ticked_ = agent_.Status(status::kPaused) == "0";
    };
  }
  // Does something inside the first pump in which `holds` is true.
  void Once(const std::function<bool()>& holds, const std::function<void()>& act) {
    agent_.machine.WhenPumped([this, holds, act] { holds() ? act() : Once(holds, act); });
  }
  void TakeEveryItemOnce(const std::function<bool()>& holds) {
    Once(holds, [this, holds] {
      for (const std::string& name : testing::EveryItem(agent_)) {
        Counting(holds)();
        testing::TakeItem(agent_, name);
      }
    });
  }
  // Takes every item while a box is open, then presses its first button.
  void TakeEveryItemOverTheNextBox() {
    agent_.host.Answer([this](forms::Form& box) {
      const auto counts = Counting([&box] { return box.Visible(); });
      const auto items = static_cast<std::uint32_t>(TakeEveryItem(agent_, 3100, 100, counts));
      agent_.machine.AtAgent(agent_.machine.now() + 3100 + 100 * items, [&box] {
        if (box.Visible()) box.PressKey(box.Find("TextCont"), forms::Key::kEnter);
      });
    });
  }
  // Clicks the switch and takes every item while it is under way, which ends with this order to the
  // module and the choice that goes with it.
  void TakeItemsWhileSwitching(std::int32_t order) {
    Click("Continue");
    TakeEveryItem(agent_, 3200, 100,
                  Counting([this] { return agent_.state().ContinuousSwitchUnderWay; }));
    agent_.machine.Run(100);
    EXPECT_EQ(taken_, Items());
    EXPECT_TRUE(ticked_);
    EXPECT_EQ(orders_, std::vector<std::int32_t>{order});
    EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), std::to_string(order));
    ExpectAtRest();
  }
  // Nothing of a wait is left, and the agent goes on as before.
  void ExpectAtRest() {
    agent_.machine.Run(60000);
    EXPECT_FALSE(agent_.machine.ran_away());
    EXPECT_FALSE(agent_.machine.exited());
    EXPECT_FALSE(agent_.state().ContinuousSwitchUnderWay);
    EXPECT_FALSE(agent_.state().WebSwitchUnderWay);
    EXPECT_FALSE(Timer().Enabled());
    EXPECT_FALSE(agent_.agent().form().WebMTimer.Enabled());
    EXPECT_EQ(Pointer(), forms::Pointer::kDefault);
    EXPECT_THAT(agent_.host.OpenForms(), Not(::testing::Contains("frmGeneralMessage")));
    // The item tells what the profile holds.
    agent_.RightClick();
    EXPECT_EQ(Item().Checked(), Profile(keys::kRealTimeBackup) == "1");
    EXPECT_EQ(agent_.Item("WebPlugin").Checked(), WebIsOn());
  }
  bool WebIsOn() {
    return agent_.machine.files().IniValue(agent_.UserPath("SorvaneE.ini"), sections::kWeb,
                                           keys::kWebPlugin) == "1";
  }
  int Items() { return static_cast<int>(testing::EveryItem(agent_).size()); }

  int taken_ = 0;
  bool ticked_ = false;
};

INSTANTIATE_TEST_SUITE_P(Answered, MenuInWaitsTest, ::testing::Values(Answers::kNo, Answers::kYes),
                         [](const auto& answers) {
                           return std::string(answers.param == Answers::kYes ? "Yes" : "No");
                         });

TEST_P(MenuInWaitsTest, TheModuleIsWaitedFor) {
  agent_.SetShared(keys::kRtBackup, "1");
  StartTicking();
  Item().SetChecked(true);
  TakeItemsWhileSwitching(0);
}

TEST_P(MenuInWaitsTest, TheEngineIsWaitedForByTheSwitch) {
  script_ = std::vector<std::string>(8, "-1");
  StartTicking();
  TakeItemsWhileSwitching(1);
}

TEST_P(MenuInWaitsTest, TheEngineIsWaitedForByTheDailySynchronisation) {
  script_ = std::vector<std::string>(40, "-1");
  agent_.SetProfile(sections::kTolvex, keys::kSyncDay, "1");
  agent_.SetProfile(sections::kTolvex, keys::kSyncMonth, "1");
  agent_.SetProfile(sections::kTolvex, keys::kSyncYear, "2020");
  StartTicking();
  // The synchronisation is over when it starts its last command.
  const auto waits = [this] { return !asked_.empty() && asked_.back() != " 20"; };
  Once(waits, [this, waits] {
    EXPECT_EQ(asked_.front(), " 38");
    agent_.SetStatus(status::kPaused, "1");
    TakeEveryItem(agent_, 3010, 50, Counting(waits));
  });
  agent_.machine.Run(120000);
  EXPECT_EQ(taken_, Items());
  EXPECT_TRUE(ticked_);
  EXPECT_EQ(std::ranges::count(asked_, " 38"), 10);
  EXPECT_EQ(std::ranges::count(asked_, " 20"), 1);
  ExpectAtRest();
}

TEST_P(MenuInWaitsTest, TheStopGivesWayOnce) {
  // The job's client runs until it is ended; others answer.
  agent_.machine.processes().Install("SorvaneEClsClient.exe",
                                     [this](const platform::memory::Launch& launch) {
                                       if (!launch.arguments.empty()) Answer(launch);
                                     });
  const auto client = agent_.machine.processes().Start(agent_.Path("SorvaneEClsClient.exe"));
  agent_.PutUserFile(status::kScheduleDataFile, "1\r\n");
  agent_.SetProgress(status::kProgWndSection, status::kProgWndJob, "2");
  StartTicking();
  const auto waits = [this] { return agent_.Status(status::kCancel) == "1"; };
  TakeEveryItemOnce(waits);
  Commands().StopClick();
  EXPECT_EQ(taken_, Items());
  EXPECT_EQ(agent_.Status(status::kStatus), "5");
  EXPECT_EQ(agent_.Status(status::kDllStatus), "3");
  EXPECT_FALSE(agent_.machine.processes().Find(client)->running);
  ExpectAtRest();
}

TEST_P(MenuInWaitsTest, TheWebSwitchGivesWayBeforeItsQuestion) {
  StartTicking();
  TakeEveryItemOnce([] { return true; });
  agent_.host.AnswerAlways([](forms::Form& box) { box.Find("IDCancel")->Click(); });
  Commands().WebPluginClick();
  EXPECT_EQ(taken_, Items());
  EXPECT_FALSE(WebIsOn());
  ExpectAtRest();
}

TEST_P(MenuInWaitsTest, TheWebSwitchGivesWayWhileItSwitchesOn) {
  StartTicking();
  const auto waits = [this] { return agent_.state().WebSwitchUnderWay; };
  TakeEveryItemOnce(waits);
  agent_.host.AnswerWith("Continue");
  Commands().WebPluginClick();
  EXPECT_EQ(taken_, Items());
  EXPECT_TRUE(WebIsOn());
  EXPECT_TRUE(agent_.Item("WebPlugin").Checked());
  ExpectAtRest();
}

TEST_P(MenuInWaitsTest, TheWebSwitchGivesWayWhileItSwitchesOff) {
  agent_.SetProfile(sections::kWeb, keys::kWebPlugin, "1");
  agent_.machine.processes().Start(agent_.Path("SorvanePlugin.exe"));
  StartTicking();
  const auto waits = [this] { return agent_.state().WebSwitchUnderWay; };
  TakeEveryItemOnce(waits);
  agent_.host.AnswerWith("Continue");
  Commands().WebPluginClick();
  EXPECT_EQ(taken_, Items());
  ExpectAtRest();
  EXPECT_FALSE(WebIsOn());
  EXPECT_FALSE(agent_.machine.processes().IsRunning("SorvanePlugin.exe"));
}

TEST_P(MenuInWaitsTest, TheQuestionOfTheLogoutIsOpen) {
  StartTicking();
  TakeEveryItemOverTheNextBox();
  Commands().MnuLoginClick();
  EXPECT_EQ(taken_, Items());
  EXPECT_TRUE(ticked_);
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
  ExpectAtRest();
}

TEST_P(MenuInWaitsTest, TheQuestionOfTheContinuousSwitchIsOpen) {
  StartTicking();
  TakeEveryItemOverTheNextBox();
  Commands().MnuCdpClick();
  EXPECT_EQ(taken_, Items());
  EXPECT_TRUE(ticked_);
  ExpectAtRest();
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "1");
}

TEST_P(MenuInWaitsTest, TheQuestionOfTheWebSwitchIsOpen) {
  StartTicking();
  TakeEveryItemOverTheNextBox();
  Commands().WebPluginClick();
  EXPECT_EQ(taken_, Items());
  EXPECT_TRUE(ticked_);
  ExpectAtRest();
  EXPECT_TRUE(WebIsOn());
}

TEST_P(MenuInWaitsTest, AFailureIsTold) {
  StartTicking();
  agent_.SetShared(keys::kRtBackup, "3");
  TakeEveryItemOverTheNextBox();
  agent_.DoubleClick();
  EXPECT_EQ(taken_, Items());
  EXPECT_TRUE(ticked_);
  EXPECT_EQ(agent_.Shared(keys::kRtBackup), "0");
  ExpectAtRest();
}

}  // namespace
}  // namespace agent
