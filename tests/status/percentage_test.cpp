#include "status/percentage.h"

#include <gtest/gtest.h>

namespace status {
namespace {

TEST(BarPosition, CutsTheSignAndTakesTheNumber) {
  EXPECT_EQ(BarPosition("57%", 100), 57);
  EXPECT_EQ(BarPosition("0%", 100), 0);
  EXPECT_EQ(BarPosition(" 8 %", 100), 8);
}

TEST(BarPosition, TakesTheMaximumForOneHundredWhateverItIs) {
  EXPECT_EQ(BarPosition("100%", 100), 100);
  EXPECT_EQ(BarPosition("100%", 250), 250);
  EXPECT_EQ(BarPosition("100%", 40), 40);
}

TEST(BarPosition, LosesTheLastDigitWithoutASign) {
  EXPECT_EQ(BarPosition("57", 100), 5);
  EXPECT_EQ(BarPosition("100", 100), 10);
}

TEST(BarPosition, MovesNothingForATextThatIsNoNumber) {
  for (const std::string_view text : {"", "%", "7", "abc%", "12x%", "40000%", "--3%"}) {
    EXPECT_EQ(BarPosition(text, 100), std::nullopt) << text;
  }
}

TEST(BarPosition, MovesNothingForANumberOutsideTheBar) {
  EXPECT_EQ(BarPosition("-1%", 100), std::nullopt);
  EXPECT_EQ(BarPosition("101%", 100), std::nullopt);
  EXPECT_EQ(BarPosition("101%", 101), 101);
}

}  // namespace
}  // namespace status
