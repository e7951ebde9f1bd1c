#include <gtest/gtest.h>

#include "tests/forms/sample_form.h"
#include "tests/forms/screen.h"

namespace forms {
namespace {

using testing::frmSample;
using testing::MemoryScreen;

class KeyboardTest : public ::testing::Test {
 protected:
  KeyboardTest() {
    form_.cmdOk.on_click = [this] { clicked_ += "ok "; };
    form_.cmdClose.on_click = [this] { clicked_ += "close "; };
    form_.lblLink.on_click = [this] { clicked_ += "link "; };
    form_.Show();
  }
  void Press(Key key) { screen_.host.Press("frmSample", key); }

  MemoryScreen screen_;
  frmSample form_{screen_.host};
  std::string clicked_;
};

TEST_F(KeyboardTest, EnterClicksTheDefaultButton) {
  form_.txtName.SetFocus();
  Press(Key::kEnter);
  EXPECT_EQ(clicked_, "ok ");
}

TEST_F(KeyboardTest, EscapeClicksTheCancelButtonWhereverTheKeyboardIs) {
  form_.lvJobs.SetFocus();
  Press(Key::kEscape);
  EXPECT_EQ(clicked_, "close ");
}

TEST_F(KeyboardTest, EnterAndSpaceOnAButtonClickThatButton) {
  form_.cmdClose.SetFocus();
  Press(Key::kEnter);
  Press(Key::kSpace);
  form_.lblLink.SetFocus();
  Press(Key::kEnter);
  EXPECT_EQ(clicked_, "close close link ");
}

TEST_F(KeyboardTest, EnterInTextOfSeveralLinesIsALineEnd) {
  form_.txtNotes.SetFocus();
  Press(Key::kEnter);
  EXPECT_EQ(clicked_, "");
}

TEST_F(KeyboardTest, DisabledDefaultButtonUsesTheKeyUp) {
  form_.cmdOk.SetEnabled(false);
  Press(Key::kEnter);
  EXPECT_EQ(clicked_, "");
}

TEST_F(KeyboardTest, ControlsOwnHandlerComesFirst) {
  form_.txtName.SetFocus();
  form_.txtName.on_key = [](Key key) { return key == Key::kEscape; };
  Press(Key::kEscape);
  EXPECT_EQ(clicked_, "");
  Press(Key::kEnter);
  EXPECT_EQ(clicked_, "ok ");
}

TEST_F(KeyboardTest, TabGoesThroughTheStopsInTheOrderOfTheMembers) {
  EXPECT_EQ(form_.NextStop(nullptr, false), &form_.lblLink);
  EXPECT_EQ(form_.NextStop(&form_.lblLink, false), &form_.txtName);
  EXPECT_EQ(form_.NextStop(&form_.cmdClose, false), &form_.lblLink);
  EXPECT_EQ(form_.NextStop(&form_.lblLink, true), &form_.cmdClose);
  form_.lblLink.SetFocus();
  Press(Key::kTab);
  EXPECT_TRUE(form_.txtName.HasFocus());
  Press(Key::kBackTab);
  EXPECT_TRUE(form_.lblLink.HasFocus());
}

TEST_F(KeyboardTest, TabPassesOverWhatIsHiddenOrDisabled) {
  form_.txtName.SetVisible(false);
  form_.txtNotes.SetEnabled(false);
  EXPECT_EQ(form_.NextStop(&form_.lblLink, false), &form_.cmbDay);
  form_.fraButtons.SetVisible(false);
  EXPECT_EQ(form_.NextStop(&form_.lvJobs, false), &form_.lblLink);
}

TEST_F(KeyboardTest, ArrowsChooseWithinTheGroupOfRadioButtons) {
  form_.optWeekly.SetFocus();
  Press(Key::kDown);
  EXPECT_TRUE(form_.optMonthly.Checked());
  EXPECT_TRUE(form_.optMonthly.HasFocus());
  Press(Key::kDown);
  EXPECT_TRUE(form_.optWeekly.Checked());
  Press(Key::kUp);
  EXPECT_TRUE(form_.optMonthly.Checked());
}

TEST_F(KeyboardTest, ArrowsGoFromButtonToButton) {
  form_.cmdOk.SetFocus();
  Press(Key::kRight);
  EXPECT_TRUE(form_.cmdClose.HasFocus());
  Press(Key::kRight);
  EXPECT_TRUE(form_.cmdOk.HasFocus());
}

TEST_F(KeyboardTest, ArrowWithNowhereToGoLeavesTheKeyboard) {
  form_.optOther.SetFocus();
  Press(Key::kDown);
  EXPECT_TRUE(form_.optOther.HasFocus());
}

TEST_F(KeyboardTest, DisabledFormTakesNoKeys) {
  form_.SetEnabled(false);
  Press(Key::kEnter);
  EXPECT_EQ(clicked_, "");
}

}  // namespace
}  // namespace forms
