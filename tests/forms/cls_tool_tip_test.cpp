#include "forms/cls_tool_tip.h"

#include <gtest/gtest.h>

#include "tests/forms/sample_form.h"
#include "tests/forms/screen.h"

namespace forms {
namespace {

using testing::frmSample;
using testing::MemoryScreen;

class ToolTipTest : public ::testing::Test {
 protected:
  ToolTipTest() { form_.Load(); }

  MemoryScreen screen_;
  frmSample form_{screen_.host};
  clsToolTip tip_{screen_.host};
};

TEST_F(ToolTipTest, IsNothingBeforeItIsCreated) {
  EXPECT_FALSE(tip_.AddTool(form_.cmdOk.Window(), "OK"));
  EXPECT_EQ(tip_.ToolTipCount(), 0);
  EXPECT_EQ(tip_.ToolTipHandle(), platform::kNoWindow);
  EXPECT_EQ(tip_.ToolTipText(form_.cmdOk.Window()), "");
}

TEST_F(ToolTipTest, CannotBeCreatedForAFormWithoutAWindow) {
  EXPECT_FALSE(tip_.Create(platform::kNoWindow));
}

TEST_F(ToolTipTest, OneWindowServesManyTools) {
  ASSERT_TRUE(tip_.Create(form_.Window()));
  EXPECT_TRUE(tip_.AddTool(form_.cmdOk.Window(), "OK"));
  EXPECT_TRUE(tip_.AddTool(form_.cmdClose.Window(), "Close"));
  EXPECT_EQ(tip_.ToolTipCount(), 2);
  EXPECT_EQ(tip_.ToolTipText(form_.cmdClose.Window()), "Close");
  tip_.SetToolTipText(form_.cmdClose.Window(), "Hide");
  EXPECT_EQ(tip_.ToolTipText(form_.cmdClose.Window()), "Hide");
  tip_.RemoveToolTip(form_.cmdOk.Window());
  EXPECT_EQ(tip_.ToolTipCount(), 1);
}

TEST_F(ToolTipTest, ToolIsMadeAnewOnEveryMoveOfTheMouse) {
  ASSERT_TRUE(tip_.Create(form_.Window()));
  form_.cmdOk.on_mouse_move = [this](Point) {
    tip_.RemoveToolTip(form_.cmdOk.Window());
    tip_.AddTool(form_.cmdOk.Window(), form_.cmdOk.Text());
  };
  screen_.host.MoveOver("frmSample", "cmdOk");
  form_.cmdOk.SetText("Hide");
  screen_.host.MoveOver("frmSample", "cmdOk");
  EXPECT_EQ(tip_.ToolTipCount(), 1);
  EXPECT_EQ(tip_.ToolTipText(form_.cmdOk.Window()), "Hide");
}

TEST_F(ToolTipTest, KeepsItsPropertiesFromBeforeItsCreation) {
  tip_.SetMaxTipWidth(100);
  tip_.SetDelayTime(TipDelay::kAutoPop, 1000000);
  tip_.Margins(1, 2, 3, 4);
  ASSERT_TRUE(tip_.Create(form_.Window()));
  EXPECT_EQ(tip_.MaxTipWidth(), 100);
  EXPECT_EQ(tip_.DelayTime(TipDelay::kAutoPop), 1000000);
  EXPECT_EQ(tip_.Margin(TipSide::kRight), 3);
}

TEST_F(ToolTipTest, TitleAndIconOfAToolBecomeThoseOfTheWindow) {
  ASSERT_TRUE(tip_.Create(form_.Window()));
  tip_.AddTool(form_.cmdOk.Window(), "OK", "Backup", TipIcon::kWarning);
  EXPECT_EQ(tip_.ToolTipTitle(), "Backup");
  EXPECT_EQ(tip_.ToolTipIcon(), TipIcon::kWarning);
}

TEST_F(ToolTipTest, PropertiesGiveBackWhatWasSet) {
  tip_.SetRightToLeft(true);
  tip_.SetBalloon(true);
  tip_.SetBackColor(theme::kAccent);
  tip_.SetForeColor(theme::kOnAccent);
  tip_.SetFont(theme::kStrongFont);
  tip_.SetMargin(TipSide::kTop, 7);
  tip_.SetToolTipIcon(TipIcon::kInfo);
  tip_.SetToolTipTitle("Status");
  EXPECT_TRUE(tip_.RightToLeft());
  EXPECT_TRUE(tip_.Balloon());
  EXPECT_EQ(tip_.BackColor(), theme::kAccent);
  EXPECT_EQ(tip_.ForeColor(), theme::kOnAccent);
  EXPECT_EQ(tip_.TextFont(), theme::kStrongFont);
  EXPECT_EQ(tip_.Margin(TipSide::kTop), 7);
  EXPECT_EQ(tip_.ToolTipIcon(), TipIcon::kInfo);
  EXPECT_EQ(tip_.ToolTipTitle(), "Status");
}

TEST(ToolTipTextTest, CutsAtTheFirstNul) {
  EXPECT_EQ(clsToolTip::StripNull(std::string_view("ab\0cd", 5)), "ab");
  EXPECT_EQ(clsToolTip::StripNull("ab"), "ab");
  EXPECT_EQ(clsToolTip::StripNull(std::string_view("\0", 1)), "");
}

TEST(ToolTipTextTest, NarrowsAWideText) {
  EXPECT_EQ(clsToolTip::PtrToStrW(u"Close"), "Close");
  EXPECT_EQ(clsToolTip::PtrToStrW(u"caf\u00E9 \u20AC"), "caf\xE9 ?");
  EXPECT_EQ(clsToolTip::PtrToStrW(nullptr), "");
}

}  // namespace
}  // namespace forms
