#include "forms/controls.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/forms/sample_form.h"
#include "tests/forms/screen.h"

namespace forms {
namespace {

using testing::frmSample;
using testing::MemoryScreen;

class ControlTest : public ::testing::Test {
 protected:
  MemoryScreen screen_;
  frmSample form_{screen_.host};
};

TEST_F(ControlTest, CountsAPropertyOnlyWhenItsValueChanges) {
  const int before = form_.lblText.Changes();
  form_.lblText.SetText("The next backup starts tonight.");
  form_.lblText.SetVisible(true);
  form_.lblText.SetEnabled(true);
  form_.lblText.SetTextColour(theme::kText);
  form_.lblText.SetFontPoints(9);
  EXPECT_EQ(form_.lblText.Changes(), before);
  form_.lblText.SetText("No backup has been scheduled.");
  form_.lblText.SetVisible(false);
  EXPECT_EQ(form_.lblText.Changes(), before + 2);
}

TEST_F(ControlTest, ShowsNothingAnewWhenTheTextIsTheSame) {
  form_.Show();
  const auto before = screen_.Journal();
  form_.lblText.SetText(form_.lblText.Text());
  EXPECT_EQ(screen_.Journal(), before);
  form_.lblText.SetText("Paused");
  EXPECT_EQ(screen_.Journal().back(), "frmSample.lblText \"Paused\"");
}

TEST_F(ControlTest, NumbersOfOneFormDiffer) {
  std::set<int> ids;
  for (const Control* control : form_.Controls()) ids.insert(control->Id());
  EXPECT_EQ(ids.size(), form_.Controls().size());
}

TEST_F(ControlTest, NumberFollowsFromTheNameAlone) {
  EXPECT_EQ(form_.lblText.Id(), ControlId("lblText"));
  EXPECT_EQ(form_.Find(ControlId("lblText")), &form_.lblText);
  EXPECT_EQ(form_.Find("noSuchControl"), nullptr);
  // Programs outside find the control by it: it must not move between builds.
  EXPECT_EQ(ControlId("Continue"), 14948);
  EXPECT_EQ(ControlId("IDCancel"), 3610);
}

TEST_F(ControlTest, DisabledOrHiddenControlTakesNoClick) {
  int clicks = 0;
  form_.cmdOk.on_click = [&clicks] { ++clicks; };
  form_.cmdOk.SetEnabled(false);
  form_.cmdOk.Click();
  form_.cmdOk.SetEnabled(true);
  form_.fraButtons.SetVisible(false);
  form_.cmdOk.Click();
  form_.fraButtons.SetVisible(true);
  form_.SetEnabled(false);
  form_.cmdOk.Click();
  EXPECT_EQ(clicks, 0);
  form_.SetEnabled(true);
  form_.cmdOk.Click();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlTest, ControlInAHiddenFrameIsNotShownButStaysVisible) {
  form_.fraButtons.SetVisible(false);
  EXPECT_FALSE(form_.cmdOk.Shown());
  EXPECT_TRUE(form_.cmdOk.Visible());
}

TEST_F(ControlTest, ClickTurnsACheckBoxBeforeItsHandlerRuns) {
  bool seen = true;
  form_.chkNotify.on_click = [&] { seen = form_.chkNotify.Checked(); };
  form_.chkNotify.Click();
  EXPECT_FALSE(seen);
}

TEST_F(ControlTest, ChoosingARadioButtonLeavesOtherGroupsAlone) {
  form_.optMonthly.Click();
  EXPECT_TRUE(form_.optMonthly.Checked());
  EXPECT_FALSE(form_.optWeekly.Checked());
  EXPECT_TRUE(form_.optOther.Checked());
}

TEST_F(ControlTest, ProgressBarStaysBetweenItsEnds) {
  form_.barQuota.SetValue(170);
  EXPECT_EQ(form_.barQuota.Value(), 100);
  form_.barQuota.SetValue(-3);
  EXPECT_EQ(form_.barQuota.Value(), 0);
  form_.barQuota.SetValue(80);
  form_.barQuota.SetMaximum(50);
  EXPECT_EQ(form_.barQuota.Value(), 50);
}

TEST_F(ControlTest, OnlyTheUserTellsOfAChange) {
  int changes = 0;
  form_.sldBand.on_change = [&changes] { ++changes; };
  form_.txtName.on_change = [&changes] { ++changes; };
  form_.cmbDay.on_change = [&changes] { ++changes; };
  form_.lvJobs.on_change = [&changes] { ++changes; };
  form_.dtpTime.on_change = [&changes] { ++changes; };
  form_.sldBand.SetValue(50);
  form_.txtName.SetText("bob");
  form_.cmbDay.Select(0);
  form_.lvJobs.Select(1);
  form_.dtpTime.SetValue({2025, 1, 1, 0, 0, 0});
  EXPECT_EQ(changes, 0);
  form_.sldBand.Move(60);
  form_.txtName.Type("eve");
  form_.cmbDay.Choose(2);
  form_.lvJobs.Choose(0);
  form_.dtpTime.Choose({2025, 1, 2, 0, 0, 0});
  EXPECT_EQ(changes, 5);
}

TEST_F(ControlTest, ComboBoxDropsAChoiceThatIsNoLongerThere) {
  form_.cmbDay.Select(2);
  form_.cmbDay.SetItems({"Monday"});
  EXPECT_EQ(form_.cmbDay.Selected(), -1);
  EXPECT_EQ(form_.cmbDay.Text(), "");
}

TEST_F(ControlTest, TypedTextThatIsAnItemChoosesIt) {
  form_.cmbMail.Type("bob@example.org");
  EXPECT_EQ(form_.cmbMail.Selected(), 1);
  form_.cmbMail.Type("x");
  EXPECT_EQ(form_.cmbMail.Selected(), -1);
  EXPECT_EQ(form_.cmbMail.Text(), "x");
}

TEST_F(ControlTest, CellOutsideTheListIsEmpty) {
  EXPECT_EQ(form_.lvJobs.Cell(1, 0), "Photos");
  EXPECT_EQ(form_.lvJobs.Cell(2, 0), "");
  EXPECT_EQ(form_.lvJobs.Cell(0, 9), "");
  EXPECT_EQ(form_.lvJobs.Cell(-1, 0), "");
}

TEST_F(ControlTest, SelectionEndsWhenItsRowIsGone) {
  form_.lvJobs.Select(1);
  form_.lvJobs.SetRows({{{"Photos"}, ""}});
  EXPECT_EQ(form_.lvJobs.Selected(), -1);
}

}  // namespace
}  // namespace forms
