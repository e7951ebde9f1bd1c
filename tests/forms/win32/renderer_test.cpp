#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <set>

#include "forms/frm_general_message.h"
#include "forms/frm_welcome.h"
#include "forms/menu.h"
#include "platform/win32/handle_balance.h"
#include "tests/forms/sample_form.h"
#include "tests/forms/win32/real_screen.h"

namespace forms {
namespace {

using testing::ClassOf;
using testing::CutTexts;
using testing::frmSample;
using testing::RealScreen;
using testing::TextOf;
using testing::WindowOf;

class RendererTest : public ::testing::Test {
 protected:
  RealScreen screen_;
  frmSample form_{screen_.host};
};

TEST_F(RendererTest, WindowHasTheFormsNameAsItsClassAndTheCaptionAsItsText) {
  form_.Load();
  EXPECT_EQ(ClassOf(WindowOf(form_)), "frmSample");
  EXPECT_EQ(TextOf(WindowOf(form_)), "Scheduled jobs");
  EXPECT_FALSE(IsWindowVisible(WindowOf(form_)));
  form_.SetCaption("Sorvane - Status");
  EXPECT_EQ(TextOf(WindowOf(form_)), "Sorvane - Status");
  EXPECT_EQ(GetAncestor(WindowOf(form_), GA_PARENT), GetDesktopWindow());
}

TEST_F(RendererTest, EveryControlIsAChildWindowWithItsTextAndNumber) {
  form_.Show();
  for (const Control* control : form_.Controls()) {
    const HWND window = WindowOf(*control);
    ASSERT_NE(window, nullptr) << control->Name();
    EXPECT_EQ(GetParent(window), WindowOf(form_)) << control->Name();
    EXPECT_EQ(GetDlgCtrlID(window), ControlId(control->Name())) << control->Name();
    EXPECT_EQ(GetDlgItem(WindowOf(form_), control->Id()), window) << control->Name();
    // The picker's text is its date in the user's format.
    if (control->Kind() != ControlKind::kDatePicker) {
      EXPECT_EQ(TextOf(window), control->Text()) << control->Name();
    }
  }
}

TEST_F(RendererTest, ChangedPropertiesReachTheWindow) {
  form_.Show();
  form_.lblText.SetText("Paused & waiting");
  form_.cmdOk.SetEnabled(false);
  form_.cmdClose.SetVisible(false);
  form_.chkNotify.SetChecked(false);
  form_.barQuota.SetValue(77);
  form_.sldBand.SetValue(60);
  form_.cmbDay.Select(2);
  form_.lvJobs.Select(1);
  EXPECT_EQ(TextOf(WindowOf(form_.lblText)), "Paused & waiting");
  EXPECT_FALSE(IsWindowEnabled(WindowOf(form_.cmdOk)));
  EXPECT_FALSE(IsWindowVisible(WindowOf(form_.cmdClose)));
  EXPECT_EQ(SendMessageA(WindowOf(form_.chkNotify), BM_GETCHECK, 0, 0), BST_UNCHECKED);
  EXPECT_EQ(SendMessageA(WindowOf(form_.barQuota), PBM_GETPOS, 0, 0), 77);
  EXPECT_EQ(SendMessageA(WindowOf(form_.sldBand), TBM_GETPOS, 0, 0), 60);
  EXPECT_EQ(TextOf(WindowOf(form_.cmbDay)), "Wednesday");
  EXPECT_EQ(
      SendMessageA(WindowOf(form_.lvJobs), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED),
      1);
}

TEST_F(RendererTest, HiddenFrameHidesWhatIsInIt) {
  form_.Show();
  form_.fraButtons.SetVisible(false);
  EXPECT_FALSE(IsWindowVisible(WindowOf(form_.cmdOk)));
  form_.fraButtons.SetVisible(true);
  EXPECT_TRUE(IsWindowVisible(WindowOf(form_.cmdOk)));
}

TEST_F(RendererTest, SystemClickOfAButtonReachesItsHandler) {
  int clicks = 0;
  form_.cmdOk.on_click = [&clicks] { ++clicks; };
  form_.Show();
  SendMessageA(WindowOf(form_.cmdOk), BM_CLICK, 0, 0);
  SendMessageA(WindowOf(form_), WM_COMMAND,
               MAKEWPARAM(static_cast<WORD>(form_.cmdOk.Id()), BN_CLICKED), 0);
  EXPECT_EQ(clicks, 2);
}

TEST_F(RendererTest, SystemClickOfAPictureOrLabelReachesItsHandler) {
  int clicks = 0;
  form_.imgClose.on_click = [&clicks] { ++clicks; };
  form_.lblLink.on_click = form_.imgClose.on_click;
  form_.Show();
  for (const HWND window : {WindowOf(form_.imgClose), WindowOf(form_.lblLink)}) {
    SendMessageA(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
    SendMessageA(window, WM_LBUTTONUP, 0, MAKELPARAM(2, 2));
  }
  EXPECT_EQ(clicks, 2);
}

TEST_F(RendererTest, WhatTheUserDoesReachesTheControls) {
  int changes = 0;
  form_.txtName.on_change = [&changes] { ++changes; };
  form_.cmbDay.on_change = form_.txtName.on_change;
  form_.Show();
  SetWindowTextA(WindowOf(form_.txtName), "eve");
  EXPECT_EQ(form_.txtName.Text(), "eve");
  SendMessageA(WindowOf(form_.cmbDay), CB_SETCURSEL, 0, 0);
  SendMessageA(WindowOf(form_), WM_COMMAND,
               MAKEWPARAM(static_cast<WORD>(form_.cmbDay.Id()), CBN_SELCHANGE),
               reinterpret_cast<LPARAM>(WindowOf(form_.cmbDay)));
  EXPECT_EQ(form_.cmbDay.Selected(), 0);
  SendMessageA(WindowOf(form_.chkNotify), BM_CLICK, 0, 0);
  EXPECT_FALSE(form_.chkNotify.Checked());
  SendMessageA(WindowOf(form_.optMonthly), BM_CLICK, 0, 0);
  EXPECT_TRUE(form_.optMonthly.Checked());
  EXPECT_EQ(SendMessageA(WindowOf(form_.optWeekly), BM_GETCHECK, 0, 0), BST_UNCHECKED);
  EXPECT_EQ(changes, 2);
}

TEST_F(RendererTest, ArrowKeysMoveTheSlider) {
  form_.Show();
  screen_.Settle();
  form_.sldBand.SetFocus();
  screen_.Press(WindowOf(form_.sldBand), VK_RIGHT);
  EXPECT_EQ(form_.sldBand.Value(), 26);
}

TEST_F(RendererTest, TextFromTheProgramTellsNobodyOfAChange) {
  int changes = 0;
  form_.txtName.on_change = [&changes] { ++changes; };
  form_.Show();
  form_.txtName.SetText("bob");
  EXPECT_EQ(TextOf(WindowOf(form_.txtName)), "bob");
  EXPECT_EQ(changes, 0);
}

TEST_F(RendererTest, KeysGoByTheRulesOfTheForm) {
  std::string clicked;
  form_.cmdOk.on_click = [&clicked] { clicked += "ok "; };
  form_.cmdClose.on_click = [&clicked] { clicked += "close "; };
  form_.Show();
  screen_.Press(WindowOf(form_.txtName), VK_RETURN);
  screen_.Press(WindowOf(form_.lvJobs), VK_ESCAPE);
  screen_.Press(WindowOf(form_.cmdClose), VK_SPACE);
  EXPECT_EQ(clicked, "ok close close ");
}

TEST_F(RendererTest, HeldDownEnterDoesNotAnswerASecondTime) {
  int clicks = 0;
  form_.cmdOk.on_click = [&clicks] { ++clicks; };
  form_.Show();
  PostMessageA(WindowOf(form_.cmdOk), WM_KEYDOWN, VK_RETURN, 1);
  PostMessageA(WindowOf(form_.cmdOk), WM_KEYDOWN, VK_RETURN, (1 << 30) + 1);
  screen_.Settle();
  EXPECT_EQ(clicks, 1);
}

TEST_F(RendererTest, TabMovesTheKeyboardInTheOrderOfTheMembers) {
  form_.Show();
  SetForegroundWindow(WindowOf(form_));
  form_.lblLink.SetFocus();
  screen_.Press(WindowOf(form_.lblLink), VK_TAB);
  EXPECT_EQ(GetFocus(), WindowOf(form_.txtName));
  EXPECT_TRUE(form_.txtName.HasFocus());
}

TEST_F(RendererTest, ControlThatGoesOrIsDisabledLeavesTheKeyboardToAnother) {
  form_.BringToFront();
  form_.txtName.SetFocus();
  form_.txtName.SetEnabled(false);
  EXPECT_EQ(GetFocus(), WindowOf(*form_.FirstStop()));
  form_.cmdOk.SetFocus();
  form_.cmdOk.SetVisible(false);
  EXPECT_EQ(GetFocus(), WindowOf(*form_.FirstStop()));
  form_.cmdClose.SetFocus();
  form_.fraButtons.Hold({&form_.cmdClose});
  form_.fraButtons.SetVisible(false);
  EXPECT_EQ(GetFocus(), WindowOf(*form_.FirstStop()));
}

TEST_F(RendererTest, KeyboardReturnsFromAQuestionToWhereItWas) {
  form_.BringToFront();
  form_.cmdClose.SetFocus();
  bool answer = false;
  frmGeneralMessage question(screen_.host, answer);
  screen_.PressSoon(VK_ESCAPE);
  question.ShowMessage("Cancel?", "Yes", "No", true, true, "question", &form_);
  screen_.Settle();
  EXPECT_EQ(GetFocus(), WindowOf(form_.cmdClose));
}

TEST_F(RendererTest, MessageHandlerComesBeforeTheWindow) {
  form_.Load();
  form_.on_message = [](std::uint32_t message, std::uintptr_t wparam,
                        std::intptr_t) -> std::optional<std::intptr_t> {
    if (message == WM_APP + 1) return static_cast<std::intptr_t>(wparam + 1);
    return std::nullopt;
  };
  EXPECT_EQ(SendMessageA(WindowOf(form_), WM_APP + 1, 41, 0), 42);
  EXPECT_EQ(TextOf(WindowOf(form_)), "Scheduled jobs");
}

TEST_F(RendererTest, SystemCloseUnloadsTheForm) {
  form_.Show();
  const HWND window = WindowOf(form_);
  SendMessageA(window, WM_CLOSE, 0, 0);
  EXPECT_FALSE(form_.Loaded());
  EXPECT_FALSE(IsWindow(window));
}

TEST_F(RendererTest, FormWhoseWindowTheSystemTookAwayIsUnloaded) {
  form_.Show();
  DestroyWindow(WindowOf(form_));
  EXPECT_FALSE(form_.Loaded());
  form_.Show();
  EXPECT_TRUE(IsWindowVisible(WindowOf(form_)));
}

TEST_F(RendererTest, ClickHandlerMayUnloadItsOwnForm) {
  form_.Show();
  SendMessageA(WindowOf(form_.cmdClose), BM_CLICK, 0, 0);
  screen_.Settle();
  EXPECT_FALSE(form_.Loaded());
}

TEST_F(RendererTest, MouseHandlerMayUnloadItsOwnForm) {
  form_.imgClose.on_mouse_down = [this](Point) { form_.Unload(); };
  form_.Show();
  SendMessageA(WindowOf(form_.imgClose), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2));
  EXPECT_FALSE(form_.Loaded());
  form_.Show();
  EXPECT_TRUE(form_.Visible());
}

TEST_F(RendererTest, MousePlacesAreUnitsWithinTheControl) {
  RealScreen dense(192);
  frmSample form(dense.host);
  Point seen;
  form.barQuota.on_mouse_move = [&seen](Point place) { seen = place; };
  form.Show();
  SendMessageA(WindowOf(form.barQuota), WM_MOUSEMOVE, 0, MAKELPARAM(40, 8));
  EXPECT_EQ(seen, (Point{20, 4}));
}

TEST_F(RendererTest, QuietFormLeavesTheKeyboardWhereItIs) {
  form_.Show();
  SetForegroundWindow(WindowOf(form_));
  form_.txtName.SetFocus();
  frmWelcome alert(screen_.host, {});
  alert.Show();
  screen_.Settle();
  EXPECT_TRUE(IsWindowVisible(WindowOf(alert)));
  EXPECT_TRUE(form_.txtName.HasFocus());
}

TEST_F(RendererTest, MinimisedFormLeavesTheKeyboardWhereItIs) {
  form_.Show();
  SetForegroundWindow(WindowOf(form_));
  form_.txtName.SetFocus();
  frmSample other(screen_.host);
  other.Minimise();
  screen_.Settle();
  EXPECT_TRUE(IsIconic(WindowOf(other)));
  EXPECT_TRUE(form_.txtName.HasFocus());
}

TEST_F(RendererTest, WindowGrowsWithALongerText) {
  form_.Show();
  RECT before;
  GetWindowRect(WindowOf(form_), &before);
  std::string text;
  for (int word = 0; word < 200; ++word) text += "backup ";
  form_.lblText.SetText(text);
  screen_.Settle();
  RECT after;
  GetWindowRect(WindowOf(form_), &after);
  EXPECT_GT(after.bottom - after.top, before.bottom - before.top);
  EXPECT_EQ(CutTexts(form_, 96), "");
}

TEST_F(RendererTest, LowerRightFormLiesInTheWorkArea) {
  frmWelcome alert(screen_.host, {});
  alert.Show();
  RECT place;
  RECT area;
  GetWindowRect(WindowOf(alert), &place);
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  EXPECT_LE(place.right, area.right);
  EXPECT_LE(place.bottom, area.bottom);
  EXPECT_LT(area.right - place.right, 30);
}

TEST_F(RendererTest, LayeredFormFadesInOnTopOfAll) {
  frmWelcome alert(screen_.host, {});
  alert.Show();
  BYTE alpha = 1;
  GetLayeredWindowAttributes(WindowOf(alert), nullptr, &alpha, nullptr);
  EXPECT_EQ(alpha, 0);
  screen_.events.RunUntil([&alert] { return alert.Alpha() == 255; });
  GetLayeredWindowAttributes(WindowOf(alert), nullptr, &alpha, nullptr);
  EXPECT_EQ(alpha, 255);
  EXPECT_NE(GetWindowLongPtrA(WindowOf(alert), GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(RendererTest, RoundCornersAreCutOff) {
  form_.Show();
  const win32::ScopedRegion region(CreateRectRgn(0, 0, 0, 0));
  ASSERT_NE(GetWindowRgn(WindowOf(form_), region.get()), ERROR);
  RECT place;
  GetWindowRect(WindowOf(form_), &place);
  EXPECT_FALSE(PtInRegion(region.get(), 0, 0));
  EXPECT_TRUE(PtInRegion(region.get(), (place.right - place.left) / 2, 1));
  EXPECT_FALSE(PtInRegion(region.get(), place.right - place.left - 1, 0));
}

TEST_F(RendererTest, OwnerTakesNoInputWhileAModalFormIsOpen) {
  bool answer = true;
  frmGeneralMessage box(screen_.host, answer);
  form_.Show();
  bool owner_enabled = true;
  HWND owner = nullptr;
  screen_.Soon([&] {
    owner_enabled = IsWindowEnabled(WindowOf(form_));
    owner = GetWindow(WindowOf(box), GW_OWNER);
    PostMessageA(GetDlgItem(WindowOf(box), ControlId("TextCont")), WM_KEYDOWN, VK_RETURN, 1);
  });
  EXPECT_TRUE(box.ShowMessage("Go on?", "Yes", "No", true, true, "question", &form_));
  EXPECT_FALSE(owner_enabled);
  EXPECT_EQ(owner, WindowOf(form_));
  EXPECT_TRUE(IsWindowEnabled(WindowOf(form_)));
}

TEST_F(RendererTest, KeyboardStartsOnTheFirstButtonsTextBox) {
  bool answer = false;
  frmGeneralMessage box(screen_.host, answer);
  HWND focus = nullptr;
  HWND expected = nullptr;
  screen_.Soon([&] {
    SetForegroundWindow(WindowOf(box));
    focus = GetFocus();
    expected = GetDlgItem(WindowOf(box), ControlId("TextCont"));
    box.Unload();
  });
  box.ShowMessage("Go on?", "Yes", "No", true, true, "question", nullptr);
  EXPECT_EQ(focus, expected);
}

TEST_F(RendererTest, EscapeAnswersFalse) {
  bool answer = true;
  frmGeneralMessage box(screen_.host, answer);
  screen_.PressSoon(VK_ESCAPE);
  EXPECT_FALSE(box.ShowMessage("Go on?", "Yes", "No", true, true, "question", nullptr));
}

TEST(RendererScale, WindowsGrowWithTheScreensDensityAndCutNoText) {
  SIZE sizes[2] = {};
  int place = 0;
  for (const int dpi : {96, 144}) {
    RealScreen screen(dpi);
    frmSample sample(screen.host);
    frmWelcome alert(screen.host, {});
    bool answer = false;
    frmGeneralMessage box(screen.host, answer);
    box.ShowNote();
    sample.Show();
    alert.Show();
    EXPECT_EQ(CutTexts(sample, dpi), "") << dpi;
    EXPECT_EQ(CutTexts(alert, dpi), "") << dpi;
    screen.Soon([&] {
      EXPECT_EQ(CutTexts(box, dpi), "") << dpi;
      box.Unload();
    });
    box.ShowMessageTitled(
        "Continuous data protection (CDP)",
        "On enabling this option, files and folders selected for backup will be backed up in real "
        "time on detecting changes.",
        "Proceed", "Cancel", true, true, "question", nullptr);
    RECT window;
    GetWindowRect(WindowOf(sample), &window);
    sizes[place++] = {window.right - window.left, window.bottom - window.top};
  }
  EXPECT_GT(sizes[1].cx, sizes[0].cx * 14 / 10);
  EXPECT_GT(sizes[1].cy, sizes[0].cy * 14 / 10);
}

TEST(RendererScale, MessageOfAnyLengthIsNotCut) {
  for (const int dpi : {96, 120, 144, 192}) {
    RealScreen screen(dpi);
    for (const std::size_t length : {1u, 64u, 65u, 99u, 149u, 199u, 400u}) {
      std::string text;
      while (text.size() < length) text += "schedule ";
      text.resize(length);
      bool answer = false;
      frmGeneralMessage box(screen.host, answer);
      screen.Soon([&] {
        EXPECT_EQ(CutTexts(box, dpi), "") << dpi << " " << length;
        box.Unload();
      });
      box.ShowMessage(text, "OK", "Close", true, true, "info", nullptr);
    }
  }
}

TEST(RendererBalance, UnloadedFormsLeaveNoObjectBehind) {
  using platform::win32::CountOf;
  using platform::win32::ObjectKind;
  RealScreen screen;
  frmSample form(screen.host);
  const auto show_once = [&] {
    form.Show();
    screen.Settle();
    form.Unload();
    screen.Settle();
  };
  // Fonts and pictures are kept for the next time.
  show_once();
  const auto gdi = CountOf(ObjectKind::kGdi).Outstanding();
  const auto user = CountOf(ObjectKind::kUser).Outstanding();
  for (int times = 0; times < 20; ++times) show_once();
  EXPECT_EQ(CountOf(ObjectKind::kGdi).Outstanding(), gdi);
  EXPECT_EQ(CountOf(ObjectKind::kUser).Outstanding(), user);
}

TEST(RendererMenu, ShowsTheMenuAndRunsTheChosenItem) {
  RealScreen screen;
  frmSample form(screen.host);
  form.Load();
  Menu menu("MnuTrayMenu");
  std::string chosen;
  menu.Add("mnuStatus", "Status").SetVisible(false);
  menu.Add("MnuHelp", "&Help").on_click = [&chosen] { chosen += "help"; };
  menu.Add("MnuExit", "&Exit").on_click = [&chosen] { chosen += "exit"; };
  screen.Soon([&form] {
    // The menu has the keyboard: down, then the second item.
    for (const int key : {VK_DOWN, VK_DOWN, VK_RETURN}) {
      PostMessageA(WindowOf(form), WM_KEYDOWN, static_cast<WPARAM>(key), 1);
    }
  });
  form.PopUp(menu);
  EXPECT_EQ(chosen, "exit");
}

}  // namespace
}  // namespace forms
