// Whoever cannot see the window or has no mouse: keyboard, names of controls, and no flicker.
#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

#include "tests/status/ui/frm_status_fixture.h"
#include "tests/status/ui/frm_status_states.h"

namespace status {
namespace {

using Lines = std::vector<std::string>;

class FrmStatusAccess : public testing::Test, public FrmStatusFixture {};

TEST(FrmStatusStates, ChangeNoPropertyAtAnyTickWhileTheChannelStaysTheSame) {
  for (const State& one : kStates) {
    FrmStatusFixture f;
    one.seed(f);
    f.window.Show();
    f.machine.Run(2000);
    const int before = f.window.Changes();
    f.machine.Run(30000);
    EXPECT_EQ(f.window.Changes(), before) << one.name;
  }
}

// What a screen reader calls a control is its text.
TEST(FrmStatusStates, NameEveryControlThatTheKeyboardOrMouseReaches) {
  for (const State& one : kStates) {
    FrmStatusFixture f;
    one.seed(f);
    f.window.Show();
    for (const forms::Control* control : f.window.Controls()) {
      const bool used = control->TabStop() || control->on_click ||
                        control->Kind() == forms::ControlKind::kProgressBar;
      if (!used || !control->Shown() || control == f.window.Find("BkupFilepath")) continue;
      EXPECT_NE(control->Text(), "") << one.name << ": " << control->Name();
    }
  }
}

TEST(FrmStatusStates, ReachEveryControlThatCanBeClickedByTheKeyboard) {
  // Pictures whose work another control does.
  const std::vector<std::pair<std::string_view, std::string_view>> twins = {
      {"Image2", "Cmd_No"},
      {"imgClose", "Cmd_No"},
      {"imgViewLog", "Cmd_Yes"},
      {"imgProgViewLog", "Cmd_ProgViewLog"},
      {"imgProgPuaseResume", "cmd_ProgPause"},
      {"imgProgCancel", "cmd_ProgCancel"},
      {"imgProgAutoPause", "chkAutoPause"}};
  for (const State& one : kStates) {
    FrmStatusFixture f;
    one.seed(f);
    f.window.Show();
    f.machine.Run(2000);
    const Lines stops = f.Stops();
    for (const forms::Control* control : f.window.Controls()) {
      if (!control->on_click || !control->Shown() || !control->Enabled()) continue;
      const auto twin = std::ranges::find(twins, control->Name(),
                                          &std::pair<std::string_view, std::string_view>::first);
      const std::string_view wanted = twin == twins.end() ? control->Name() : twin->second;
      EXPECT_NE(std::ranges::find(stops, wanted), stops.end()) << one.name << ": " << wanted;
    }
  }
}

TEST_F(FrmStatusAccess, LetsTheTabKeyGoThroughBothFaces) {
  window.Show();
  EXPECT_EQ(window.FirstStop(), window.Find("Cmd_Yes"));
  EXPECT_EQ(Stops(), (Lines{"chkDesNotify1", "Cmd_Yes", "Cmd_No"}));
  StartTransfer("2");
  machine.Run(2000);
  EXPECT_EQ(Stops(), (Lines{"cmd_ProgPause", "cmd_ProgCancel", "BkupFilepath", "Slider2",
                            "chkAutoPause", "chkDesNotify1", "Cmd_ProgViewLog", "Cmd_No"}));
}

TEST_F(FrmStatusAccess, ClicksByEnterAndSpaceTheButtonThatHasTheKeyboard) {
  ShowBackup();
  At("cmd_ProgPause").SetFocus();
  host.Press("frmStatus", forms::Key::kSpace);
  EXPECT_EQ(Read("Paused"), "1");
  host.Press("frmStatus", forms::Key::kEnter);
  EXPECT_EQ(Read("Paused"), "0");
  At("chkAutoPause").SetFocus();
  host.Press("frmStatus", forms::Key::kEscape);
  EXPECT_FALSE(window.Loaded());
}

TEST_F(FrmStatusAccess, KeepsTheKeyboardOnTheLogWhenItTurns) {
  window.Show();
  At("Cmd_Yes").SetFocus();
  StartTransfer("2");
  machine.Run(2000);
  EXPECT_TRUE(At("Cmd_ProgViewLog").HasFocus());
  SetProgress("BackupProgressInfo", "BackupInProgress", "0");
  machine.Run(2000);
  EXPECT_TRUE(At("Cmd_Yes").HasFocus());
}

TEST_F(FrmStatusAccess, MarksWhatHasTheKeyboardAndNoRing) {
  ShowBackup();
  At("BkupFilepath").SetFocus();
  EXPECT_EQ(At("lblBackup").TextColour(), forms::theme::kAccent);
  At("Slider2").SetFocus();
  EXPECT_EQ(At("lblBackup").TextColour(), forms::theme::kMutedText);
  EXPECT_EQ(At("LabelBand").TextColour(), forms::theme::kAccent);
}

}  // namespace
}  // namespace status
