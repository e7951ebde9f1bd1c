#include "shared/base64.h"

#include <gtest/gtest.h>

namespace shared {
namespace {

TEST(Base64Test, EncodesTheVectorsOfTheStandard) {
  const std::pair<std::string_view, std::string_view> vectors[] = {
      {"", ""},
      {"f", "Zg=="},
      {"fo", "Zm8="},
      {"foo", "Zm9v"},
      {"foob", "Zm9vYg=="},
      {"fooba", "Zm9vYmE="},
      {"foobar", "Zm9vYmFy"},
  };
  for (const auto& [text, encoded] : vectors) {
    cBase64 coder;
    EXPECT_EQ(coder.encode(text), encoded);
    EXPECT_EQ(coder.DecodedMessage(), text);
    EXPECT_EQ(coder.Decode(encoded), text);
    EXPECT_EQ(coder.EncodedMessage(), encoded);
  }
}

TEST(Base64Test, GivesThreeBytesFourCharactersAndOneByteTwoWithPadding) {
  cBase64 coder;
  EXPECT_EQ(coder.encode("abc"), "YWJj");
  EXPECT_EQ(coder.encode("a"), "YQ==");
}

TEST(Base64Test, CarriesEveryByteThereAndBack) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes.push_back(static_cast<char>(code));
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    cBase64 coder;
    const std::string encoded = coder.encode(bytes.substr(0, length));
    EXPECT_EQ(coder.Decode(encoded), bytes.substr(0, length));
  }
}

TEST(Base64Test, EndsDecodingAtTheFirstForeignCharacter) {
  cBase64 coder;
  EXPECT_EQ(coder.Decode("Zm9v!Zm9v"), "foo");
  EXPECT_EQ(coder.Decode("Zg==Zm9v"), "f");
  EXPECT_EQ(coder.Decode("Z"), "");
  EXPECT_EQ(coder.Decode("!"), "");
}

TEST(Base64Test, EncodesItsOwnDecodedMessage) {
  cBase64 coder;
  coder.Decode("Zm9v");
  EXPECT_EQ(coder.encode(coder.DecodedMessage()), "Zm9v");
  EXPECT_EQ(coder.Decode(coder.EncodedMessage()), "foo");
}

TEST(Base64Test, ShiftsByPowersOfTwoBelowThirtyTwo) {
  EXPECT_EQ(cBase64::RShiftByte(0xFF, 4), 0xFu);
  EXPECT_EQ(cBase64::RShiftByte(0x80000000u, 31), 1u);
  EXPECT_EQ(cBase64::RShiftByte(0xFF, 32), 0u);
  EXPECT_EQ(cBase64::Power2(0), 1u);
  EXPECT_EQ(cBase64::Power2(31), 0x80000000u);
  EXPECT_EQ(cBase64::Power2(32), 0u);
}

}  // namespace
}  // namespace shared
