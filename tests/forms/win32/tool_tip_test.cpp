#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>
#include "forms/cls_tool_tip.h"
#include "tests/forms/sample_form.h"
#include "tests/forms/win32/real_screen.h"

namespace forms {
namespace {

using testing::ClassOf;
using testing::frmSample;
using testing::RealScreen;
using testing::WindowOf;

class RealToolTipTest : public ::testing::Test {
 protected:
  RealToolTipTest() {
    form_.Show();
    created_ = tip_.Create(form_.Window());
  }
  HWND Tip() const { return reinterpret_cast<HWND>(tip_.ToolTipHandle()); }

  RealScreen screen_;
  frmSample form_{screen_.host};
  clsToolTip tip_{screen_.host};
  bool created_ = false;
};

TEST_F(RealToolTipTest, IsTheSystemsControlAndAlwaysOnTop) {
  ASSERT_TRUE(created_);
  EXPECT_EQ(ClassOf(Tip()), TOOLTIPS_CLASSA);
  EXPECT_NE(GetWindowLongPtrA(Tip(), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(RealToolTipTest, AddsRenamesAndRemovesTools) {
  EXPECT_TRUE(tip_.AddTool(form_.cmdOk.Window(), "OK"));
  EXPECT_TRUE(tip_.AddTool(form_.imgClose.Window(), "Close"));
  EXPECT_EQ(tip_.ToolTipCount(), 2);
  EXPECT_EQ(tip_.ToolTipText(form_.imgClose.Window()), "Close");
  tip_.SetToolTipText(form_.imgClose.Window(), "Hide");
  EXPECT_EQ(tip_.ToolTipText(form_.imgClose.Window()), "Hide");
  tip_.RemoveToolTip(form_.imgClose.Window());
  EXPECT_EQ(tip_.ToolTipCount(), 1);
}

TEST_F(RealToolTipTest, ComesUpOverAMouseThatRestsAfterTheToolWasMadeAnew) {
  constexpr DWORD kPatience = 5000;  // milliseconds
  form_.imgClose.on_mouse_move = [this](Point) {
    tip_.RemoveToolTip(form_.imgClose.Window());
    tip_.AddTool(form_.imgClose.Window(), "Close");
  };
  form_.Show();
  RECT place;
  GetWindowRect(WindowOf(form_.imgClose), &place);
  const POINT middle = {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
  POINT mouse;
  GetCursorPos(&mouse);
  SetCursorPos(middle.x, middle.y);
  const DWORD start = GetTickCount();
  screen_.events.RunUntil(
      [&] { return IsWindowVisible(Tip()) || GetTickCount() - start > kPatience; });
  EXPECT_TRUE(IsWindowVisible(Tip()));
  SetCursorPos(mouse.x, mouse.y);
}

TEST_F(RealToolTipTest, WrapsAtItsWidthAndStaysWhileTheMouseRests) {
  tip_.SetMaxTipWidth(100);
  tip_.SetDelayTime(TipDelay::kInitial, 300);
  tip_.SetDelayTime(TipDelay::kAutoPop, 1000000);
  EXPECT_EQ(SendMessageA(Tip(), TTM_GETMAXTIPWIDTH, 0, 0), 100);
  EXPECT_EQ(SendMessageA(Tip(), TTM_GETDELAYTIME, TTDT_AUTOPOP, 0), 0x7FFF);
  EXPECT_EQ(tip_.DelayTime(TipDelay::kAutoPop), 1000000);
  EXPECT_EQ(SendMessageA(Tip(), TTM_GETDELAYTIME, TTDT_INITIAL, 0), 300);
}

TEST(RealToolTipScale, WrapsAtAWidthThatGrowsWithTheScreensDensity) {
  RealScreen screen(144);
  frmSample form(screen.host);
  form.Show();
  clsToolTip tip(screen.host);
  ASSERT_TRUE(tip.Create(form.Window()));
  const HWND window = reinterpret_cast<HWND>(tip.ToolTipHandle());
  tip.SetMaxTipWidth(100);
  EXPECT_EQ(SendMessageA(window, TTM_GETMAXTIPWIDTH, 0, 0), 150);
  tip.SetMaxTipWidth(-1);
  EXPECT_EQ(SendMessageA(window, TTM_GETMAXTIPWIDTH, 0, 0), -1);
  EXPECT_EQ(tip.MaxTipWidth(), -1);
}

TEST_F(RealToolTipTest, TakesColoursMarginsAndShape) {
  tip_.SetBackColor(theme::kAccent);
  tip_.SetForeColor(theme::kOnAccent);
  tip_.Margins(4, 5, 6, 7);
  tip_.SetBalloon(true);
  EXPECT_EQ(SendMessageA(Tip(), TTM_GETTIPBKCOLOR, 0, 0), static_cast<LRESULT>(theme::kAccent));
  EXPECT_EQ(SendMessageA(Tip(), TTM_GETTIPTEXTCOLOR, 0, 0), static_cast<LRESULT>(theme::kOnAccent));
  RECT margins = {};
  SendMessageA(Tip(), TTM_GETMARGIN, 0, reinterpret_cast<LPARAM>(&margins));
  EXPECT_EQ(margins.left, 4);
  EXPECT_EQ(margins.bottom, 7);
  EXPECT_NE(GetWindowLongPtrA(Tip(), GWL_STYLE) & TTS_BALLOON, 0);
}

TEST_F(RealToolTipTest, GoesWithItsObject) {
  HWND window = nullptr;
  {
    clsToolTip other(screen_.host);
    ASSERT_TRUE(other.Create(form_.Window()));
    window = reinterpret_cast<HWND>(other.ToolTipHandle());
    EXPECT_TRUE(IsWindow(window));
  }
  EXPECT_FALSE(IsWindow(window));
}

}  // namespace
}  // namespace forms
