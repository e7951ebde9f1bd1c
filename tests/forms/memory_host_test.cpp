#include "forms/memory/host.h"

#include <gtest/gtest.h>

#include "forms/memory/dump.h"
#include "tests/forms/sample_form.h"
#include "tests/forms/screen.h"

namespace forms {
namespace {

using testing::frmSample;
using testing::MemoryScreen;

class MemoryHostTest : public ::testing::Test {
 protected:
  MemoryScreen screen_;
  frmSample form_{screen_.host};
};

TEST_F(MemoryHostTest, AnswersModalWindowsFromItsScript) {
  std::string clicked;
  form_.cmdOk.on_click = [&] {
    clicked += "ok ";
    form_.Hide();
  };
  screen_.host.AnswerWith("cmdOk");
  screen_.host.AnswerWith("cmdClose");
  form_.ShowModal(nullptr);
  EXPECT_TRUE(form_.Loaded());
  form_.ShowModal(nullptr);
  EXPECT_FALSE(form_.Loaded());
  EXPECT_EQ(clicked, "ok ");
  EXPECT_EQ(screen_.host.AnswersLeft(), 0u);
}

TEST_F(MemoryHostTest, WindowWithoutAnAnswerIsClosedByEscape) {
  form_.ShowModal(nullptr);
  EXPECT_FALSE(form_.Loaded());
  const auto lines = screen_.Journal();
  EXPECT_NE(std::find(lines.begin(), lines.end(), "unanswered frmSample"), lines.end());
}

TEST_F(MemoryHostTest, ModalWindowThatIsLeftOpenWaitsForATimer) {
  form_.tmrTick.on_tick = [this] { form_.Unload(); };
  form_.tmrTick.SetEnabled(true);
  screen_.host.Answer([](Form&) {});
  form_.ShowModal(nullptr);
  EXPECT_FALSE(form_.Loaded());
  EXPECT_EQ(screen_.machine.now(), 1000u);
}

TEST_F(MemoryHostTest, TypesAndReadsByName) {
  form_.Show();
  screen_.host.Type("frmSample", "txtName", "eve");
  EXPECT_EQ(screen_.host.Read("frmSample", "txtName"), "eve");
  form_.txtName.SetEnabled(false);
  screen_.host.Type("frmSample", "txtName", "bob");
  EXPECT_EQ(screen_.host.Read("frmSample", "txtName"), "eve");
}

TEST_F(MemoryHostTest, ListsTheFormsThatAreShown) {
  form_.Load();
  EXPECT_TRUE(screen_.host.OpenForms().empty());
  form_.Show();
  EXPECT_EQ(screen_.host.OpenForms(), std::vector<std::string>{"frmSample"});
  form_.Minimise();
  EXPECT_TRUE(screen_.host.OpenForms().empty());
}

TEST_F(MemoryHostTest, RecordsTheMenuAndRunsTheChosenItem) {
  Menu menu("MnuTrayMenu");
  bool exited = false;
  MenuItem& status = menu.Add("mnuStatus", "Status");
  menu.Add("BLLine", "-").SetVisible(false);
  menu.Add("blankline2", "-");
  menu.Add("mnuCDP", "Continuous Backup").SetChecked(true);
  menu.Add("MnuExit", "&Exit").on_click = [&exited] { exited = true; };
  menu.Item("mnuCDP").SetEnabled(false);
  menu.SetDefault(&status);
  form_.Load();

  form_.PopUp(menu);
  EXPECT_FALSE(exited);
  screen_.host.ChooseFromMenu("MnuExit");
  form_.PopUp(menu);
  EXPECT_TRUE(exited);
  EXPECT_EQ(screen_.host.MenusShown(), 2);
  EXPECT_EQ(screen_.host.LastMenu(),
            "mnuStatus \"Status\" default\n"
            "-\n"
            "mnuCDP \"Continuous Backup\" checked disabled\n"
            "MnuExit \"&Exit\"\n");
}

TEST_F(MemoryHostTest, DisabledMenuItemCannotBeChosen) {
  Menu menu("MnuTrayMenu");
  bool ran = false;
  menu.Add("mnuStop", "Stop").on_click = [&ran] { ran = true; };
  menu.Item("mnuStop").SetEnabled(false);
  form_.Load();
  screen_.host.ChooseFromMenu("mnuStop");
  form_.PopUp(menu);
  EXPECT_FALSE(ran);
}

TEST_F(MemoryHostTest, EveryEnabledControlCanBePressed) {
  for (Control* control : form_.Controls()) {
    form_.Show();
    screen_.host.Click("frmSample", control->Name());
  }
}

TEST_F(MemoryHostTest, FormLiesInTheMiddleOfTheDesktop) {
  screen_.host.SetDesktop({100, 0, 1000, 800});
  const Rect place = screen_.host.Place(form_);
  EXPECT_EQ(place.left + place.width / 2, 600);
  EXPECT_EQ(place.top + place.height / 2, 400);
}

}  // namespace
}  // namespace forms
