// What a read of a whole number from a private-profile file gives.
#include "tests/platform/profile_case.h"

namespace {

struct IntegerCase {
  const char* text;
  std::int32_t number;
};

class ProfileIntegers : public ProfileContract {
 protected:
  void ExpectAll(const std::vector<IntegerCase>& cases) {
    for (const IntegerCase& one : cases) {
      Put("[S]\r\nk=" + std::string(one.text) + "\r\n");
      EXPECT_EQ(ReadInt("S", "k"), one.number) << "'" << one.text << "'";
    }
  }
};

TEST_F(ProfileIntegers, ReadsDigitsWithASign) {
  ExpectAll({{"0", 0},
             {"7", 7},
             {"402", 402},
             {"-432", -432},
             {"+1", 1},
             {"-0", 0},
             {"2147483647", 2147483647},
             {"-2147483648", -2147483647 - 1}});
}

TEST_F(ProfileIntegers, IsNotOctalWithLeadingZeros) {
  ExpectAll({{"010", 10}, {"0009", 9}});
}

TEST_F(ProfileIntegers, PassesOverBlanksAndQuotes) {
  ExpectAll({{"  12", 12}, {"12  ", 12}, {"\"5\"", 5}, {"'-5'", -5}, {"\" 5\"", 5}});
}

TEST_F(ProfileIntegers, EndsAtTheFirstOtherCharacter) {
  ExpectAll({{"12abc", 12}, {"1.9", 1}, {"1,000", 1}, {"1e3", 1}, {"12 34", 12}, {"3;note", 3}});
}

TEST_F(ProfileIntegers, IsZeroWithoutDigits) {
  ExpectAll({{"", 0},
             {"abc", 0},
             {"-", 0},
             {"+", 0},
             {"--1", 0},
             {"+-1", 0},
             {"- 1", 0},
             {"x12", 0},
             {".5", 0}});
}

TEST_F(ProfileIntegers, WrapsAroundAt32Bits) {
  ExpectAll({{"2147483648", -2147483647 - 1},
             {"4294967295", -1},
             {"4294967296", 0},
             {"4294967297", 1},
             {"-2147483649", 2147483647},
             {"99999999999", 1215752191}});
}

TEST_F(ProfileIntegers, IsZeroWithoutFileSectionOrKey) {
  EXPECT_EQ(ReadInt("S", "k"), 0);
  Put("[T]\r\nk=5\r\n[S]\r\na=5\r\n");
  EXPECT_EQ(ReadInt("S", "k"), 0);
  EXPECT_EQ(ReadInt("U", "k"), 0);
}

}  // namespace
