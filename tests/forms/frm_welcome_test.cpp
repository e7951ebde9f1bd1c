#include "forms/frm_welcome.h"

#include <gtest/gtest.h>

#include "forms/memory/dump.h"
#include "tests/forms/golden.h"
#include "tests/forms/screen.h"

namespace forms {
namespace {

using testing::Golden;
using testing::MemoryScreen;

class WelcomeTest : public ::testing::Test {
 protected:
  MemoryScreen screen_;
  std::string done_;
  frmWelcome alert_{screen_.host,
                    {[this] { done_ += "options;"; }, [this] { done_ += "report;"; },
                     [this](std::string_view line) { done_ += std::string(line) + ";"; }}};
};

TEST_F(WelcomeTest, FadesInWithinASecondAndThenStops) {
  alert_.Show();
  EXPECT_EQ(alert_.Alpha(), 0);
  screen_.machine.Run(500);
  EXPECT_GT(alert_.Alpha(), 100);
  EXPECT_LT(alert_.Alpha(), 255);
  screen_.machine.Run(500);
  EXPECT_EQ(alert_.Alpha(), 255);
  EXPECT_FALSE(alert_.Timers()[0]->Enabled());
}

TEST_F(WelcomeTest, FadesInAgainWhenItIsShownAgain) {
  alert_.Show();
  screen_.machine.Run(1000);
  alert_.Unload();
  alert_.Show();
  EXPECT_EQ(alert_.Alpha(), 0);
  screen_.machine.Run(1000);
  EXPECT_EQ(alert_.Alpha(), 255);
}

TEST_F(WelcomeTest, LiesAtTheLowerRightOfTheDesktop) {
  alert_.Show();
  const Rect place = screen_.host.Place(alert_);
  const Rect desktop = screen_.host.GetDesktopRectt();
  EXPECT_TRUE(desktop.Contains(place));
  EXPECT_LT(desktop.Right() - place.Right(), 20);
  EXPECT_LT(desktop.Bottom() - place.Bottom(), 20);
}

TEST_F(WelcomeTest, CloseOnlyClosesWithoutLogin) {
  alert_.LoginRequired = 0;
  alert_.Show();
  screen_.host.Click("frmWelcome", "cmdExit");
  EXPECT_EQ(done_, "  [INFORMATION]  WebpluginAlert Screen is Closed;");
  EXPECT_FALSE(alert_.Loaded());
}

TEST_F(WelcomeTest, CloseLeadsToTheLoginFirstWhenItIsRequired) {
  alert_.LoginRequired = 1;
  alert_.Show();
  screen_.host.Press("frmWelcome", Key::kEscape);
  EXPECT_EQ(done_, "options;  [INFORMATION]  WebpluginAlert Screen is Closed;");
  EXPECT_FALSE(alert_.Loaded());
}

TEST_F(WelcomeTest, LinkHidesTheAlertAndOpensTheErrorReport) {
  alert_.Show();
  screen_.host.Click("frmWelcome", "lblErrorReportLink");
  EXPECT_EQ(done_, "report;");
  EXPECT_FALSE(alert_.Visible());
}

TEST_F(WelcomeTest, LinkStandsInTheGapOfItsSentence) {
  alert_.Show();
  alert_.Arrange();
  const Rect text = alert_.lblSupport.Bounds();
  const Rect link = alert_.lblErrorReportLink.Bounds();
  EXPECT_EQ(link.top, text.top);
  EXPECT_GT(link.left, text.left + 100);
}

TEST_F(WelcomeTest, LongReasonIsNotCut) {
  alert_.lblInstall.SetText(
      "Web Manager is disabled as your password has been changed. Login with your new password to "
      "continue.");
  alert_.Show();
  const Size size = alert_.Arrange();
  EXPECT_GT(alert_.lblInstall.Bounds().height, 20);
  EXPECT_GE(alert_.lblSupport.Bounds().top, alert_.lblInstall.Bounds().Bottom());
  EXPECT_LT(alert_.lblSupport.Bounds().Bottom(), size.height);
}

TEST_F(WelcomeTest, LooksAsItWasLookedAt) {
  alert_.Show();
  const std::string dump = memory::Dump(alert_);
  EXPECT_EQ(dump, Golden("frmWelcome", dump));
}

}  // namespace
}  // namespace forms
