// What a person reads while continuous backup is switched: boxes, tip, caption and pointer.
#include <gtest/gtest.h>

#include <string>

#include "tests/agent/continuous_fixture.h"

namespace agent {
namespace {

namespace keys = shared::keys;

// A box as it stands on the screen.
struct Box {
  std::string title, text, first, second, picture;
  bool note = false;
};

class ContinuousWordsTest : public testing::ContinuousFixture {
 protected:
  // Notes the next box and answers it.
  void Look(Box& seen, const char* answer) {
    agent_.host.Answer([&seen, answer](forms::Form& form) {
      const auto text = [&form](std::string_view name) { return form.Find(name)->Text(); };
      seen = {form.Caption(),   text("Label1"), text("Continue"),
              text("IDCancel"), text("Image4"), form.Find("lblnote")->Shown()};
      EXPECT_EQ(text("Label2"), form.Caption());
      EXPECT_EQ(form.Find("lblcdp")->Shown(), seen.note);
      form.Find(answer)->Click();
    });
  }
  void PutText(std::uint32_t number, std::string_view text) {
    agent_.machine.libraries().PutString(agent_.Path("TVToolTips.dll"), number, std::string(text));
  }
  void Expect(const Box& seen, const Box& wanted) {
    EXPECT_EQ(seen.title, wanted.title);
    EXPECT_EQ(seen.text, wanted.text);
    EXPECT_EQ(seen.first, wanted.first);
    EXPECT_EQ(seen.second, wanted.second);
    EXPECT_EQ(seen.picture, wanted.picture);
    EXPECT_EQ(seen.note, wanted.note);
  }
};

TEST_F(ContinuousWordsTest, TheQuestionOfTheSwitchHasItsTitleAndTheNoteOnFileSizes) {
  Start();
  Box seen;
  Look(seen, "IDCancel");
  Commands().MnuCdpClick();
  Expect(seen, {"Continuous data protection (CDP)",
                "On enabling this option, files and folders selected for backup will be backed up "
                "in real time on detecting changes.",
                "Proceed", "Cancel", "question", true});
  Item().SetChecked(true);
  Look(seen, "IDCancel");
  Commands().MnuCdpClick();
  Expect(seen, {"Continuous data protection (CDP)",
                "On disabling this option, your files and folders will be backed up only at the "
                "next scheduled time.",
                "Proceed", "Cancel", "question", true});
}

TEST_F(ContinuousWordsTest, NobodyIsToldToLogInAndTheItemStaysUnchecked) {
  agent_.ForgetUser();
  Start();
  Item().SetChecked(true);
  Box seen;
  Look(seen, "Continue");
  Commands().MnuCdpClick();
  Expect(seen, {"Sorvane", "To enable continuous backup login to your Sorvane account.", "OK",
                "Close", "info", false});
  EXPECT_FALSE(Item().Checked());
  EXPECT_EQ(Pointer(), forms::Pointer::kDefault);
}

TEST_F(ContinuousWordsTest, ARunningTransferIsAskedAboutInTheLibrarysWords) {
  agent_.SetStatus(status::kStatus, "1");
  Start();
  Box seen;
  Click("Continue");
  Look(seen, "IDCancel");
  agent_.machine.Run(100);
  Expect(seen, {"Sorvane", "A backup/restore job is in progress. Do you want to cancel it?", "Yes",
                "No", "question", false});
  PutText(1580, "Cancel the job?");
  Click("Continue");
  Look(seen, "IDCancel");
  agent_.machine.Run(100);
  EXPECT_EQ(seen.text, "Cancel the job?");
  EXPECT_EQ(Pointer(), forms::Pointer::kDefault);
}

TEST_F(ContinuousWordsTest, EnablingShowsTheBusyPointerAndTheLibrarysTip) {
  PutText(969, "Switching on.");
  PutText(972, "All the time");
  Start();
  Item().SetCaption("old");
  std::string tip;
  forms::Pointer pointer = forms::Pointer::kDefault;
  when_answered_ = [&] {
    tip = agent_.Tip();
    pointer = Pointer();
  };
  Click("Continue");
  EXPECT_EQ(Pointer(), forms::Pointer::kBusy);
  agent_.machine.Run(100);
  EXPECT_EQ(tip, "Switching on.");
  EXPECT_EQ(pointer, forms::Pointer::kBusy);
  EXPECT_EQ(Pointer(), forms::Pointer::kDefault);
  EXPECT_EQ(Item().Caption(), "All the time");
  EXPECT_EQ(agent_.Tip(), "No backup has been scheduled.");
}

TEST_F(ContinuousWordsTest, DisablingShowsTheBusyPointerAndTheLibrarysTip) {
  PutText(971, "Switching off.");
  agent_.SetShared(keys::kRtBackup, "0");
  Start();
  std::string tip;
  forms::Pointer pointer = forms::Pointer::kDefault;
  bool checked = true;
  agent_.machine.At(agent_.machine.now() + 1000, [&] {
    tip = agent_.Tip();
    pointer = Pointer();
    checked = Item().Checked();
  });
  SwitchOff();
  EXPECT_EQ(tip, "Switching off.");
  EXPECT_EQ(pointer, forms::Pointer::kBusy);
  EXPECT_FALSE(checked);
  EXPECT_EQ(Pointer(), forms::Pointer::kDefault);
}

TEST_F(ContinuousWordsTest, AnAnswerOfNoLeavesThePointer) {
  Start();
  Click("IDCancel");
  EXPECT_EQ(Pointer(), forms::Pointer::kDefault);
}

TEST_F(ContinuousWordsTest, AFailureIsToldInAnInfoBoxWithOkAndClose) {
  Start();
  for (const char* code : {"2", "3", "5", "7", "8", "9", "10"}) {
    agent_.SetShared(keys::kRtBackup, code);
    Box seen;
    Look(seen, "IDCancel");
    agent_.DoubleClick();
    Expect(seen, {"Sorvane", seen.text, "OK", "Close", "info", false});
    EXPECT_FALSE(seen.text.empty()) << code;
    EXPECT_EQ(agent_.Shared(keys::kRtBackup), "0") << code;
  }
}

TEST_F(ContinuousWordsTest, TheShorterRetryHasItsOwnTextInTheLibrary) {
  PutText(975, "soon");
  PutText(976, "late");
  Start();
  struct Row {
    const char* retry;
    const char* text;
  };
  for (const Row& row : {Row{"2", "soon"}, Row{"24", "late"}, Row{"", "late"}, Row{"x", "late"}}) {
    agent_.SetProfile(shared::sections::kTolvex, keys::kCdpRetry, row.retry);
    agent_.SetShared(keys::kRtBackup, "5");
    Box seen;
    Look(seen, "Continue");
    agent_.DoubleClick();
    EXPECT_EQ(seen.text, row.text) << row.retry;
  }
}

TEST_F(ContinuousWordsTest, AFailureIsClearedBeforeItIsTold) {
  Start();
  agent_.SetShared(keys::kRtBackup, "3");
  std::string code_over_box = "none";
  agent_.host.Answer([&](forms::Form& box) {
    code_over_box = agent_.Shared(keys::kRtBackup);
    box.Unload();
  });
  agent_.DoubleClick();
  EXPECT_EQ(code_over_box, "0");
  agent_.Tick();
  EXPECT_EQ(agent_.Picture(), "tvlog.ico");
}

}  // namespace
}  // namespace agent
