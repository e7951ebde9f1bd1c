#include "shared/character_shift.h"

#include <gtest/gtest.h>

namespace shared {
namespace {

TEST(CharacterShiftTest, RaisesEachCodeAndKeepsTheLength) {
  EXPECT_EQ(ShiftCharacters("anna", kProfileShift).text, "erre");
  EXPECT_EQ(ShiftCharacters("", kProfileShift).text, "");
  EXPECT_TRUE(ShiftCharacters("", kProfileShift).complete);
}

TEST(CharacterShiftTest, ComesBackByTheOppositeShift) {
  std::string all;
  for (int code = 0; code <= 255 - kShareShift; ++code) all.push_back(static_cast<char>(code));
  for (const int by : {kConfigShift, kProfileShift, kShareShift}) {
    EXPECT_EQ(ShiftCharacters(ShiftCharacters(all, by).text, -by).text, all);
  }
}

TEST(CharacterShiftTest, StopsAtTheFirstCodeThatLeavesTheRange) {
  const ShiftResult above = ShiftCharacters("ab\xFCz", kProfileShift);
  EXPECT_EQ(above.text, "ef");
  EXPECT_FALSE(above.complete);
  const ShiftResult below = ShiftCharacters("f\x03z", -kProfileShift);
  EXPECT_EQ(below.text, "b");
  EXPECT_FALSE(below.complete);
}

TEST(CharacterShiftTest, TakesTheLastCodeThatFits) {
  EXPECT_EQ(ShiftCharacters("\xFB", kProfileShift).text, "\xFF");
  EXPECT_EQ(ShiftCharacters("\x04", -kProfileShift).text, std::string(1, '\0'));
}

}  // namespace
}  // namespace shared
