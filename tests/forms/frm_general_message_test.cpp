#include "forms/frm_general_message.h"

#include <gtest/gtest.h>

#include "forms/memory/dump.h"
#include "forms/memory/text_metric.h"
#include "tests/forms/golden.h"
#include "tests/forms/screen.h"

namespace forms {
namespace {

using testing::Golden;
using testing::MemoryScreen;

constexpr std::string_view kQuestion = "Are you sure you want to cancel the backup operation ?";

class GeneralMessageTest : public ::testing::Test {
 protected:
  bool Ask(bool show_first = true, bool show_second = true) {
    return box_.ShowMessage(kQuestion, "Yes", "No", show_first, show_second, "question", nullptr);
  }
  // What the box answers when this key is pressed at the control that has the keyboard.
  bool AnswerTo(Key key, bool show_first = true, bool show_second = true) {
    screen_.host.Answer([this, key](Form& form) { screen_.host.Press(form.Name(), key); });
    return Ask(show_first, show_second);
  }

  MemoryScreen screen_;
  bool answer_ = true;
  frmGeneralMessage box_{screen_.host, answer_};
};

TEST_F(GeneralMessageTest, FirstButtonIsTrueAndSecondIsFalse) {
  screen_.host.AnswerWith("Continue");
  EXPECT_TRUE(Ask());
  EXPECT_TRUE(answer_);
  screen_.host.AnswerWith("IDCancel");
  EXPECT_FALSE(Ask());
  EXPECT_FALSE(answer_);
}

TEST_F(GeneralMessageTest, ClosingByTheCornerPictureIsFalse) {
  screen_.host.AnswerWith("Image2");
  EXPECT_FALSE(Ask());
}

TEST_F(GeneralMessageTest, ClosingByTheSystemIsFalse) {
  screen_.host.Answer([](Form& form) { form.CloseByUser(); });
  EXPECT_FALSE(Ask());
}

TEST_F(GeneralMessageTest, EscapeIsAlwaysFalse) {
  EXPECT_FALSE(AnswerTo(Key::kEscape));
  EXPECT_FALSE(AnswerTo(Key::kEscape, true, false));
  EXPECT_FALSE(AnswerTo(Key::kEscape, false, true));
}

TEST_F(GeneralMessageTest, EnterAndSpaceAnswerForTheFirstButton) {
  EXPECT_TRUE(AnswerTo(Key::kEnter));
  EXPECT_TRUE(AnswerTo(Key::kSpace));
}

TEST_F(GeneralMessageTest, EnterAndSpaceOnTheSecondButtonAreFalse) {
  for (const Key key : {Key::kEnter, Key::kSpace}) {
    screen_.host.Answer([this, key](Form& form) {
      screen_.host.Press(form.Name(), Key::kTab);
      screen_.host.Press(form.Name(), key);
    });
    EXPECT_FALSE(Ask());
  }
}

TEST_F(GeneralMessageTest, SecondButtonAloneHasTheKeyboard) {
  EXPECT_FALSE(AnswerTo(Key::kEnter, false, true));
}

TEST_F(GeneralMessageTest, ButtonWithTheKeyboardIsHighlighted) {
  screen_.host.Answer([this](Form& form) {
    EXPECT_EQ(screen_.host.Read(form.Name(), "Image1"), "Small Btn2");
    EXPECT_EQ(screen_.host.Read(form.Name(), "Image3"), "Small Btn1");
    screen_.host.Press(form.Name(), Key::kRight);
    EXPECT_EQ(screen_.host.Read(form.Name(), "Image1"), "Small Btn1");
    EXPECT_EQ(screen_.host.Read(form.Name(), "Image3"), "Small Btn2");
    screen_.host.Click(form.Name(), "IDCancel");
  });
  EXPECT_FALSE(Ask());
}

TEST_F(GeneralMessageTest, ButtonsAndTheirPicturesAreShownAsAsked) {
  screen_.host.Answer([this](Form& form) {
    EXPECT_TRUE(screen_.host.At(form.Name(), "Continue").Shown());
    EXPECT_TRUE(screen_.host.At(form.Name(), "Image1").Shown());
    EXPECT_FALSE(screen_.host.At(form.Name(), "IDCancel").Shown());
    EXPECT_FALSE(screen_.host.At(form.Name(), "Image3").Shown());
    screen_.host.Click(form.Name(), "Continue");
  });
  EXPECT_TRUE(Ask(true, false));
}

TEST_F(GeneralMessageTest, EveryAnswerStartsAsFalse) {
  answer_ = true;
  screen_.host.Answer([](Form& form) { form.Unload(); });
  EXPECT_FALSE(Ask());
}

TEST_F(GeneralMessageTest, TimersRunWhileItWaits) {
  int ticks = 0;
  const auto timer = screen_.machine.platform().events.StartTimer(1000, [&] {
    if (++ticks == 3) box_.Unload();
  });
  screen_.host.Answer([](Form&) {});
  EXPECT_FALSE(Ask());
  EXPECT_EQ(ticks, 3);
  screen_.machine.platform().events.StopTimer(timer);
}

TEST_F(GeneralMessageTest, TitleIsTheCaptionOfTheWindow) {
  screen_.host.Answer([this](Form& form) {
    EXPECT_EQ(form.Caption(), "Continuous data protection (CDP)");
    EXPECT_EQ(screen_.host.Read(form.Name(), "Label2"), form.Caption());
    form.Unload();
  });
  box_.ShowMessageTitled("Continuous data protection (CDP)", kQuestion, "Proceed", "Cancel", true,
                         true, "question", nullptr);
}

TEST_F(GeneralMessageTest, MessageOfAnyLengthLiesAboveTheButtonsAndIsNotCut) {
  for (const int length : {1, 50, 65, 100, 150, 199, 400, 2000}) {
    std::string text;
    while (static_cast<int>(text.size()) < length) text += "backup ";
    text.resize(static_cast<std::size_t>(length));
    screen_.host.Answer([&](Form& form) {
      const Size size = form.Arrange();
      const Control& message = screen_.host.At(form.Name(), "Label1");
      const Size needed = memory::MeasureText(text, message.TextFont(), message.Bounds().width);
      EXPECT_GE(message.Bounds().height, needed.height) << length;
      EXPECT_GE(message.Bounds().width, needed.width) << length;
      EXPECT_GE(screen_.host.At(form.Name(), "Continue").Bounds().top, message.Bounds().Bottom());
      EXPECT_LE(screen_.host.At(form.Name(), "Continue").Bounds().Bottom(), size.height);
      form.Unload();
    });
    box_.ShowMessage(text, "OK", "Close", true, true, "info", nullptr);
  }
}

TEST_F(GeneralMessageTest, LooksAsItWasLookedAt) {
  screen_.host.Answer([](Form& form) {
    const std::string dump = memory::Dump(form);
    EXPECT_EQ(dump, Golden("frmGeneralMessage", dump));
    form.Unload();
  });
  Ask();
}

TEST_F(GeneralMessageTest, NoteIsShownOnlyWhenAsked) {
  box_.ShowNote();
  screen_.host.Answer([](Form& form) {
    const std::string dump = memory::Dump(form);
    EXPECT_EQ(dump, Golden("frmGeneralMessage_note", dump));
    form.Unload();
  });
  box_.ShowMessageTitled("Continuous data protection (CDP)",
                         "On enabling this option, files and folders selected for backup will be "
                         "backed up in real time on detecting changes.",
                         "Proceed", "Cancel", true, true, "question", nullptr);
}

TEST_F(GeneralMessageTest, BoxOverABoxAnswersItsOwnQuestion) {
  bool inner_answer = false;
  frmGeneralMessage inner(screen_.host, inner_answer);
  screen_.host.Answer([&](Form& form) {
    screen_.host.AnswerWith("IDCancel");
    EXPECT_FALSE(inner.ShowMessage("Inner", "OK", "Close", true, true, "warn", &form));
    form.Find("Continue")->Click();
  });
  EXPECT_TRUE(Ask());
}

}  // namespace
}  // namespace forms
