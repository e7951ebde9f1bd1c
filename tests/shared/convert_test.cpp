#include "shared/convert.h"

#include <gtest/gtest.h>

namespace shared {
namespace {

struct NumberCase {
  std::string_view text;
  std::optional<int> number;
};

TEST(ConvertTest, TakesAndRefusesTextsAsSixteenBitNumbers) {
  constexpr NumberCase kCases[] = {
      {"0", 0},
      {"7", 7},
      {" 7 ", 7},
      {"+7", 7},
      {"-7", -7},
      {"007", 7},
      {"2.4", 2},
      {".9", 1},
      {"9.", 9},
      {"1e3", 1000},
      {"1.5E1", 15},
      {"32767", 32767},
      {"-32768", -32768},
      {"32767.4", 32767},
      {"-32768.5", -32768},
      {"-0", 0},
      {"1e-400", 0},
      {"", {}},
      {" ", {}},
      {"x", {}},
      {"7x", {}},
      {"x7", {}},
      {"1 2", {}},
      {"- 7", {}},
      {"--7", {}},
      {".", {}},
      {"+", {}},
      {"1e", {}},
      {"1e+", {}},
      {"1.2.3", {}},
      {"32768", {}},
      {"32767.5", {}},
      {"-32769", {}},
      {"1e999", {}},
      {"inf", {}},
      {"nan", {}},
      {"0x10", {}},
      {"99999999999999999999", {}},
      {"\t7", {}},
      {"7\n", {}},
  };
  for (const NumberCase& one : kCases) {
    const auto number = ToInt16(one.text);
    EXPECT_EQ(number.has_value(), one.number.has_value()) << '"' << one.text << '"';
    if (number && one.number) {
      EXPECT_EQ(*number, *one.number) << '"' << one.text << '"';
    }
  }
}

TEST(ConvertTest, RoundsHalvesToTheEvenNumber) {
  EXPECT_EQ(ToInt16("0.5"), 0);
  EXPECT_EQ(ToInt16("1.5"), 2);
  EXPECT_EQ(ToInt16("2.5"), 2);
  EXPECT_EQ(ToInt16("-0.5"), 0);
  EXPECT_EQ(ToInt16("-1.5"), -2);
  EXPECT_EQ(ToInt16("-2.5"), -2);
  EXPECT_EQ(ToInt32("2147483646.5"), 2147483646);
}

TEST(ConvertTest, HoldsTheBordersOfThirtyTwoBits) {
  EXPECT_EQ(ToInt32("2147483647"), 2147483647);
  EXPECT_EQ(ToInt32("-2147483648"), -2147483647 - 1);
  EXPECT_FALSE(ToInt32("2147483648"));
  EXPECT_FALSE(ToInt32("-2147483649"));
}

TEST(ConvertTest, GivesNoDoubleForANumberThatIsTooLarge) {
  EXPECT_EQ(ToDouble(" -402.25 "), -402.25);
  EXPECT_FALSE(ToDouble("1e400"));
  EXPECT_FALSE(ToDouble("-1e400"));
  EXPECT_EQ(ToDouble("1e-400"), 0.0);
}

TEST(ConvertTest, TakesTheNumberAtTheStartOfAText) {
  EXPECT_EQ(LeadingNumber("12 files"), 12);
  EXPECT_EQ(LeadingNumber(" 1 2x"), 12);
  EXPECT_EQ(LeadingNumber("-3.5MB"), -3.5);
  EXPECT_EQ(LeadingNumber("1e"), 1);
  EXPECT_EQ(LeadingNumber("files"), 0);
  EXPECT_EQ(LeadingNumber(""), 0);
  EXPECT_EQ(LeadingNumber("1e999"), 0);
}

TEST(ConvertTest, TrimsBlanksOnly) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim("\ta "), "\ta");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(ConvertTest, CutsAtTheFirstNul) {
  EXPECT_EQ(StripNulls(std::string_view("ab\0cd\0", 6)), "ab");
  EXPECT_EQ(StripNulls(std::string_view("\0ab", 3)), "");
  EXPECT_EQ(StripNulls("ab"), "ab");
}

TEST(ConvertTest, ChangesTheCaseOfAsciiLettersOnly) {
  EXPECT_EQ(ToUpper("az{\xE4"), "AZ{\xE4");
  EXPECT_EQ(ToLower("AZ[\xC4"), "az[\xC4");
  EXPECT_TRUE(EqualsIgnoreCase("Tray.EXE", "tray.exe"));
  EXPECT_FALSE(EqualsIgnoreCase("tray", "tray.exe"));
  EXPECT_FALSE(EqualsIgnoreCase("\xC4", "\xE4"));
}

TEST(ConvertTest, ReplacesEveryOccurrence) {
  EXPECT_EQ(ReplaceAll("Sorvane and Sorvane", "Sorvane", "Partner"), "Partner and Partner");
  EXPECT_EQ(ReplaceAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(ReplaceAll("aaa", "a", "aa"), "aaaaaa");
  EXPECT_EQ(ReplaceAll("abc", "", "x"), "abc");
  EXPECT_EQ(ReplaceAll("", "a", "x"), "");
}

}  // namespace
}  // namespace shared
