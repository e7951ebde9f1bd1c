#include "forms/layout.h"

#include <gtest/gtest.h>

#include "forms/memory/text_metric.h"
#include "tests/forms/screen.h"

namespace forms {
namespace {

using testing::MemoryScreen;

constexpr FormDesign kDesign = {.name = "frmTwo", .caption = "Two", .width = 200};

class frmTwo : public Form {
 public:
  explicit frmTwo(FormHost& host) : Form(host, kDesign) {}
  ~frmTwo() override { Unload(); }
  Label lblFirst{*this, "lblFirst", "First"};
  Label lblSecond{*this, "lblSecond", "Second"};
  Button cmdEnd{*this, "cmdEnd", "End"};
};

class LayoutTest : public ::testing::Test {
 protected:
  MemoryScreen screen_;
  frmTwo form_{screen_.host};
};

TEST_F(LayoutTest, StackPutsCellsBelowEachOther) {
  form_.SetLayout(Stack({Item(form_.lblFirst), Item(form_.lblSecond)}).Gap(8));
  const Size size = form_.Arrange();
  EXPECT_EQ(size, (Size{200, 40}));
  EXPECT_EQ(form_.lblFirst.Bounds(), (Rect{0, 0, 200, 16}));
  EXPECT_EQ(form_.lblSecond.Bounds(), (Rect{0, 24, 200, 16}));
}

TEST_F(LayoutTest, LineGivesTheRoomLeftOverToTheCellThatGrows) {
  form_.SetLayout(Line({Item(form_.lblFirst).Width(60), Space().Grow(), Item(form_.cmdEnd)}));
  form_.Arrange();
  EXPECT_EQ(form_.lblFirst.Bounds().left, 0);
  EXPECT_EQ(form_.cmdEnd.Bounds().Right(), 200);
  EXPECT_EQ(form_.cmdEnd.Bounds().width, theme::kButtonWidth);
}

TEST_F(LayoutTest, HiddenControlLeavesItsPlaceToTheOthers) {
  form_.SetLayout(Stack({Item(form_.lblFirst), Item(form_.lblSecond)}).Gap(8));
  form_.lblFirst.SetVisible(false);
  EXPECT_EQ(form_.Arrange().height, 16);
  EXPECT_EQ(form_.lblSecond.Bounds().top, 0);
}

TEST_F(LayoutTest, HiddenControlMayKeepItsPlace) {
  form_.SetLayout(Stack({Item(form_.lblFirst).KeepRoom(), Item(form_.lblSecond)}).Gap(8));
  form_.lblFirst.SetVisible(false);
  EXPECT_EQ(form_.Arrange().height, 40);
}

TEST_F(LayoutTest, LongTextWrapsAndMakesTheWindowHigher) {
  form_.lblFirst.SetText(std::string(20, 'a') + " " + std::string(20, 'b') + " " +
                         std::string(20, 'c'));
  form_.SetLayout(Stack({Item(form_.lblFirst).Width(130).Grow(), Item(form_.cmdEnd)}).Gap(0));
  form_.Arrange();
  const Rect text = form_.lblFirst.Bounds();
  EXPECT_EQ(text.height, 48);
  EXPECT_GE(form_.cmdEnd.Bounds().top, text.Bottom());
}

TEST_F(LayoutTest, LongCaptionMakesTheButtonAndTheWindowWider) {
  form_.cmdEnd.SetText(std::string(60, 'w'));
  form_.SetLayout(Line({Space().Grow(), Item(form_.cmdEnd)}));
  const Size size = form_.Arrange();
  EXPECT_GE(form_.cmdEnd.Bounds().width,
            memory::MeasureText(form_.cmdEnd.Text(), theme::kBodyFont, 0).width);
  EXPECT_GE(size.width, form_.cmdEnd.Bounds().width);
}

TEST_F(LayoutTest, PileGivesAllTheSamePlace) {
  form_.SetLayout(Pile({Item(form_.lblFirst), Item(form_.cmdEnd)}));
  form_.Arrange();
  EXPECT_EQ(form_.lblFirst.Bounds(), form_.cmdEnd.Bounds());
}

TEST_F(LayoutTest, TextChangeAsksForANewArrangement) {
  form_.SetLayout(Stack({Item(form_.lblFirst)}));
  form_.Load();
  form_.Arrange();
  EXPECT_FALSE(form_.NeedsArranging());
  form_.lblFirst.SetText("First");
  EXPECT_FALSE(form_.NeedsArranging());
  form_.lblFirst.SetText("Another");
  EXPECT_TRUE(form_.NeedsArranging());
}

TEST(TextMetric, WrapsBetweenWordsAndBreaksWordsThatAreTooLong) {
  EXPECT_EQ(memory::MeasureText("", theme::kBodyFont, 0), (Size{0, 16}));
  EXPECT_EQ(memory::MeasureText("abc", theme::kBodyFont, 0), (Size{18, 16}));
  EXPECT_EQ(memory::MeasureText("abc\r\nde", theme::kBodyFont, 0), (Size{18, 32}));
  EXPECT_EQ(memory::MeasureText("abc de", theme::kBodyFont, 36), (Size{36, 16}));
  EXPECT_EQ(memory::MeasureText("abc de", theme::kBodyFont, 35), (Size{18, 32}));
  EXPECT_EQ(memory::MeasureText("abcdefgh", theme::kBodyFont, 18), (Size{18, 48}));
}

}  // namespace
}  // namespace forms
