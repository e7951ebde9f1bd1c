#include <gtest/gtest.h>

#include <algorithm>

#include "forms/memory/dump.h"
#include "tests/forms/golden.h"
#include "tests/status/ui/frm_status_fixture.h"

namespace status {
namespace {

using forms::testing::Golden;
using Lines = std::vector<std::string>;

class FrmStatusTest : public testing::Test, public FrmStatusFixture {};

TEST_F(FrmStatusTest, ShowsTheUserAtRest) {
  window.Show();
  EXPECT_EQ(window.Caption(), "Sorvane - Scheduled Backup Status");
  EXPECT_EQ(Text("Label1"), window.Caption());
  EXPECT_EQ(Text("lblUserName"), "anna");
  EXPECT_EQ(Text("lblQuotaInfo"), "1.5 KB out of 4.0 KB");
  EXPECT_EQ(window.Find("QuotaProgressbar")->Shown(), true);
  EXPECT_EQ(Text("lblHoursInfo"), "Backup will start in next 2 hour(s).");
  EXPECT_EQ(Text("Image2"), "close");
  EXPECT_FALSE(Shown("progressFrame"));
}

TEST_F(FrmStatusTest, TurnsToTheTransferAndBack) {
  ShowBackup();
  EXPECT_TRUE(Shown("progressFrame") && Shown("BkupFilepath") && Shown("cmd_ProgPause"));
  EXPECT_FALSE(Shown("lblHoursInfo") || Shown("QuotaProgressbar"));
  EXPECT_EQ(Text("Image2"), "hide");
  EXPECT_EQ(Text("lblFileCountBkup"), "Backedup files: 7");
  SetProgress("BackupProgressInfo", "BackupInProgress", "0");
  machine.Run(2000);
  EXPECT_FALSE(Shown("progressFrame"));
  EXPECT_EQ(Text("Image2"), "close");
}

TEST_F(FrmStatusTest, FollowsTheFiguresOnItsFastTimer) {
  ShowBackup();
  SetProgress("BackupProgressInfo", "Backedup Files", "8");
  machine.Run(1999);
  EXPECT_EQ(Text("lblFileCountBkup"), "Backedup files: 7");
  machine.Run(1);
  EXPECT_EQ(Text("lblFileCountBkup"), "Backedup files: 8");
}

TEST_F(FrmStatusTest, PausesAndResumes) {
  ShowBackup();
  Click("cmd_ProgPause");
  EXPECT_EQ(Read("Paused"), "1");
  EXPECT_EQ(Text("cmd_ProgPause"), "Resume");
  EXPECT_EQ(Text("BkupProgress"), "Backup process has been paused. Click 'Resume' to continue.");
  EXPECT_EQ(At("BkupProgress").TextColour(), forms::theme::kAlert);
  Click("cmd_ProgPause");
  EXPECT_EQ(Read("Paused"), "0");
  EXPECT_EQ(Text("cmd_ProgPause"), "Pause");
  EXPECT_EQ(Text("BkupProgress"), "12 MB of 40 MB");
}

TEST_F(FrmStatusTest, UnloadsOnceTheCancelIsConfirmed) {
  ShowBackup();
  messages.answer = false;
  Click("cmd_ProgCancel");
  EXPECT_TRUE(window.Loaded());
  messages.answer = true;
  Click("cmd_ProgCancel");
  EXPECT_FALSE(window.Loaded());
  EXPECT_EQ(Read("Cancel"), "1");
}

TEST_F(FrmStatusTest, StaysWholeWhenItGoesAndComesBackBehindTheQuestion) {
  ShowBackup();
  messages.when_asked = [this] {
    SetProgress("ProgWnd", "Status", "1");
    machine.Run(2000);
    EXPECT_FALSE(window.Loaded());
    SetProgress("ProgWnd", "Status", "0");
    window.Show();
  };
  Click("cmd_ProgCancel");
  EXPECT_FALSE(window.Loaded());
  EXPECT_FALSE(ProgressChannel(machine.platform(), state).IsTransferInProgress());
}

TEST_F(FrmStatusTest, ClosesByEscapeByTheCornerAndByItsButton) {
  for (const std::string_view control : {"", "Image2", "Cmd_No", "imgClose"}) {
    window.Show();
    control.empty() ? host.Press("frmStatus", forms::Key::kEscape) : Click(control);
    EXPECT_FALSE(window.Loaded()) << control;
  }
}

TEST_F(FrmStatusTest, ClosesByEscapeDuringATransferWithoutTouchingIt) {
  ShowBackup();
  host.Press("frmStatus", forms::Key::kEscape);
  EXPECT_FALSE(window.Loaded());
  EXPECT_TRUE(ProgressChannel(machine.platform(), state).IsTransferInProgress());
}

TEST_F(FrmStatusTest, UnloadsAtOnceWhenTheEngineShowsTheTransfer) {
  StartTransfer("1", "1");
  window.Show();
  EXPECT_FALSE(window.Loaded());
  EXPECT_EQ(commands.calls, Lines{"disable status"});
}

TEST_F(FrmStatusTest, GivesItsPlaceToTheLog) {
  window.Show();
  Click("Cmd_Yes");
  EXPECT_EQ(commands.calls, Lines{"log"});
  EXPECT_TRUE(window.Visible());
}

TEST_F(FrmStatusTest, StoresTheBox) {
  window.Show();
  Click("chkDesNotify1");
  EXPECT_EQ(Read("DesktopNotification"), "1");
  Click("chkDesNotify1");
  EXPECT_EQ(Read("DesktopNotification"), "0");
}

TEST_F(FrmStatusTest, MovesTheSliderByTheMouse) {
  ShowBackup();
  window.Arrange();
  forms::Control& knob = At("PictSliderKnob2");
  const forms::Rect box = At("PictSliderBox2").Bounds();
  EXPECT_EQ(knob.Bounds().Right(), box.Right());
  knob.on_mouse_down({8, 8});
  knob.on_mouse_move({8 - (box.width - 16) / 2, 8});
  EXPECT_EQ(Text("LabelBand"), "50%");
  EXPECT_EQ(machine.files().IniValue(kUserIni, "Registry", "Bandwidth"), "");
  // A tick in between leaves the knob in the hand.
  machine.Run(2000);
  EXPECT_EQ(Text("LabelBand"), "50%");
  knob.on_mouse_up({8, 8});
  EXPECT_EQ(machine.files().IniValue(kUserIni, "Registry", "Bandwidth"), "50");
  knob.on_mouse_move({40, 8});
  EXPECT_EQ(Text("LabelBand"), "50%");
}

TEST_F(FrmStatusTest, StopsTheKnobAtTheEndsOfTheBox) {
  ShowBackup();
  window.Arrange();
  forms::Control& knob = At("PictSliderKnob2");
  knob.on_mouse_down({8, 8});
  knob.on_mouse_move({500, 8});
  EXPECT_EQ(Text("LabelBand"), "100%");
  knob.on_mouse_move({-900, 8});
  EXPECT_EQ(Text("LabelBand"), "100%");
}

TEST_F(FrmStatusTest, LetsTheKnobGoWhenTheTransferEndsUnderTheHand) {
  ShowBackup();
  window.Arrange();
  forms::Control& knob = At("PictSliderKnob2");
  const forms::Rect box = At("PictSliderBox2").Bounds();
  knob.on_mouse_down({8, 8});
  knob.on_mouse_move({8 - (box.width - 16) / 2, 8});
  SetProgress("BackupProgressInfo", "BackupInProgress", "0");
  machine.Run(2000);
  knob.on_mouse_up({8, 8});
  EXPECT_EQ(machine.files().IniValue(kUserIni, "Registry", "Bandwidth"), "");
  SetProgress("BackupProgressInfo", "BackupInProgress", "1");
  machine.Run(2000);
  EXPECT_EQ(Text("LabelBand"), "100%");
}

TEST_F(FrmStatusTest, LetsTheKnobGoWhenItIsUnloadedUnderTheHand) {
  ShowBackup();
  At("PictSliderKnob2").on_mouse_down({8, 8});
  host.Press("frmStatus", forms::Key::kEscape);
  window.Show();
  window.Arrange();
  At("PictSliderKnob2").on_mouse_move({-40, 8});
  EXPECT_EQ(Text("LabelBand"), "100%");
}

TEST_F(FrmStatusTest, MovesTheSliderByTheKeyboard) {
  ShowBackup();
  static_cast<forms::Slider&>(At("Slider2")).Move(70);
  EXPECT_EQ(Text("LabelBand"), "70%");
  EXPECT_EQ(machine.files().IniValue(kUserIni, "Registry", "Bandwidth"), "70");
}

TEST_F(FrmStatusTest, TurnsAutoPauseOn) {
  ShowBackup();
  EXPECT_FALSE(Shown("LblAutoPauseInfo"));
  Click("chkAutoPause");
  EXPECT_TRUE(Shown("LblAutoPauseInfo"));
  EXPECT_EQ(Text("imgProgAutoPause"), "chkautopause");
  EXPECT_EQ(Text("LabelBand"), "25%");
  Click("chkAutoPause");
  EXPECT_EQ(Text("imgProgAutoPause"), "unchkautopause");
}

TEST_F(FrmStatusTest, HidesTheBandwidthDuringARestore) {
  StartTransfer("3");
  window.Show();
  EXPECT_FALSE(Shown("LabelBand") || Shown("PictSliderKnob2") || Shown("chkAutoPause"));
  EXPECT_TRUE(Shown("cmd_ProgPause"));
}

TEST_F(FrmStatusTest, SwapsThePicturesOfItsButtonsUnderTheMouse) {
  window.Show();
  At("Cmd_Yes").on_mouse_move({1, 1});
  EXPECT_EQ(Text("imgViewLog"), "Small Btn2");
  At("Cmd_Yes").on_mouse_leave();
  EXPECT_EQ(Text("imgViewLog"), "Small Btn1");
}

TEST_F(FrmStatusTest, TellsWhatItsButtonsDo) {
  window.Show();
  host.MoveOver("frmStatus", "Cmd_Yes");
  EXPECT_EQ(seen.back(), "tip \"View the log\"");
  host.MoveOver("frmStatus", "Cmd_No");
  EXPECT_EQ(seen.back(), "tip \"Close\"");
  StartTransfer("1");
  machine.Run(2000);
  host.MoveOver("frmStatus", "Cmd_ProgViewLog");
  EXPECT_EQ(seen.back(), "tip \"View the log\"");
  const std::size_t told = seen.size();
  host.MoveOver("frmStatus", "cmd_ProgCancel");
  EXPECT_EQ(std::ranges::count_if(seen.begin() + static_cast<std::ptrdiff_t>(told), seen.end(),
                                  [](const std::string& line) { return line.starts_with("tip"); }),
            0);
}

TEST_F(FrmStatusTest, TellsWhatTheCornerButtonDoes) {
  window.Show();
  host.MoveOver("frmStatus", "Image2");
  EXPECT_EQ(seen.back(), "tip \"Close\"");
  StartTransfer("1");
  machine.Run(2000);
  host.MoveOver("frmStatus", "Image2");
  EXPECT_EQ(seen.back(), "tip \"Hide\"");
}

TEST_F(FrmStatusTest, TellsTheWholePathOfTheFile) {
  ShowBackup();
  host.MoveOver("frmStatus", "BkupFilepath");
  EXPECT_EQ(seen.back(), "tip \"C:\\Users\\anna\\Pictures\\summer.jpg\"");
}

struct ScreenCase {
  int dpi;
  std::size_t first_line;
  int points;
};

TEST_F(FrmStatusTest, GoesByTheScreenForTheSizeOfTexts) {
  state.LargeFonts = true;  // of the agent, not of this window
  for (const ScreenCase& one : {ScreenCase{96, 70, 10}, ScreenCase{144, 62, 9}}) {
    SCOPED_TRACE(one.dpi);
    host.SetScreenDpi(one.dpi);
    SetProgress("BackupProgressInfo", "BackupInProgress", "0");
    window.Show();
    EXPECT_EQ(window.Find("lblHoursInfo")->TextFont().points, one.points);
    StartTransfer("1");
    SetProgress("BackupProgressInfo", "FileName", std::string(71, 'x'));
    machine.Run(2000);
    EXPECT_EQ(Text("BkupFilepath").find("\r\n"), one.first_line);
    window.Unload();
  }
}

TEST_F(FrmStatusTest, IsDraggedByItsTitle) {
  for (const std::string_view label : {"Label1", "Label2", "Label4"}) {
    EXPECT_TRUE(static_cast<forms::Label*>(window.Find(label))->DragsWindow());
  }
}

TEST_F(FrmStatusTest, DisablesTheLogWhileNobodyIsLoggedIn) {
  LogIn("");
  window.Show();
  EXPECT_EQ(Text("lblHoursInfo"), "Login to the account for which you want to see the status.");
  EXPECT_FALSE(At("Cmd_Yes").Enabled());
  LogIn("anna");
  machine.Run(2000);
  EXPECT_TRUE(At("Cmd_Yes").Enabled());
  EXPECT_EQ(Text("lblUserName"), "anna");
}

TEST_F(FrmStatusTest, KeepsPauseAndCancelInTheirPlaceInEveryTransfer) {
  ShowBackup();
  window.Arrange();
  const forms::Rect pause = At("cmd_ProgPause").Bounds();
  const forms::Rect cancel = At("cmd_ProgCancel").Bounds();
  const auto stay = [&] {
    window.Arrange();
    return At("cmd_ProgPause").Bounds() == pause && At("cmd_ProgCancel").Bounds() == cancel;
  };
  Click("chkAutoPause");
  EXPECT_TRUE(stay());
  Click("cmd_ProgPause");
  EXPECT_TRUE(stay());
  SetProgress("BackupProgressInfo", "BackupInProgress", "0");
  StartTransfer("3");
  machine.Run(2000);
  EXPECT_TRUE(stay());
}

TEST_F(FrmStatusTest, CentresAStatusLineWithoutANextRunInItsCard) {
  machine.files().Delete(Path("scheduleData.txt"));
  LogIn("");
  window.Show();
  window.Arrange();
  const auto middle = [this](std::string_view name) {
    return At(name).Bounds().top + At(name).Bounds().height / 2;
  };
  EXPECT_EQ(middle("lblHoursInfo"), middle("imgStatus"));
}

TEST_F(FrmStatusTest, KeepsItsSizeWhenItTurnsToATransfer) {
  window.Show();
  const forms::Size at_rest = window.Arrange();
  ShowBackup();
  machine.Run(2000);
  EXPECT_EQ(window.Arrange(), at_rest);
}

TEST_F(FrmStatusTest, LooksAsItWasLookedAtAtRest) {
  window.Show();
  const std::string dump = forms::memory::Dump(window);
  EXPECT_EQ(dump, Golden("frmStatus", dump));
}

TEST_F(FrmStatusTest, LooksAsItWasLookedAtInATransfer) {
  ShowBackup();
  const std::string dump = forms::memory::Dump(window);
  EXPECT_EQ(dump, Golden("frmStatus_transfer", dump));
}

TEST_F(FrmStatusTest, LooksAsItWasLookedAtLoggedOut) {
  LogIn("");
  window.Show();
  const std::string dump = forms::memory::Dump(window);
  EXPECT_EQ(dump, Golden("frmStatus_logged_out", dump));
}

TEST_F(FrmStatusTest, SurvivesAPressOnEachControl) {
  for (const bool transfer : {false, true}) {
    for (const forms::Control* control : window.Controls()) {
      if (transfer) StartTransfer("1");
      window.Show();
      if (control->Shown() && control->Enabled()) Click(control->Name());
      window.Unload();
    }
  }
}

TEST_F(FrmStatusTest, LeavesNoTimerRunningBehindIt) {
  window.Show();
  window.Unload();
  machine.gate().Start();
  machine.Run(60000);
  EXPECT_EQ(machine.gate().total(), 0u);
}

}  // namespace
}  // namespace status
