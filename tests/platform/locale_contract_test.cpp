// The user's locale and the conversions of text.
#include "tests/platform/contract_test.h"

namespace {

class LocaleContract : public ContractTest {
 protected:
  platform::Locale& locale() { return ports().locale; }

  bool HasWesternCodePage() { return locale().AnsiCodePage() == 1252; }
};

TEST_F(LocaleContract, GivesTheItemsInUse) {
  EXPECT_EQ(locale().Item(platform::kLocaleDecimalSeparator).size(), 1u);
  EXPECT_NE(locale().Item(platform::kLocaleShortDate).find_first_of("Mm"), std::string::npos);
  EXPECT_NE(locale().Item(platform::kLocaleTimeFormat).find("mm"), std::string::npos);
}

TEST_F(LocaleContract, GivesNothingForAnItemThatThereIsNot) {
  EXPECT_EQ(locale().Item(0xFFFF), "");
}

TEST_F(LocaleContract, HasACodePage) {
  EXPECT_GT(locale().AnsiCodePage(), 0u);
}

TEST_F(LocaleContract, ConvertsPlainTextBothWays) {
  std::string text;
  for (char character = ' '; character <= '~'; ++character) text += character;
  const std::u16string wide = locale().ToWide(text);
  EXPECT_EQ(wide, std::u16string(text.begin(), text.end()));
  EXPECT_EQ(locale().FromWide(wide), text);
}

TEST_F(LocaleContract, ConvertsEmptyTextToEmptyText) {
  EXPECT_EQ(locale().ToWide(""), u"");
  EXPECT_EQ(locale().FromWide(u""), "");
}

TEST_F(LocaleContract, KeepsNulsInTheMiddle) {
  EXPECT_EQ(locale().ToWide(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
  EXPECT_EQ(locale().FromWide(std::u16string_view(u"a\0b", 3)), std::string("a\0b", 3));
}

TEST_F(LocaleContract, BringsEveryByteBackOfTheWesternCodePage) {
  if (!HasWesternCodePage()) GTEST_SKIP() << "another code page";
  std::string bytes;
  for (int code = 1; code < 256; ++code) bytes += static_cast<char>(code);
  EXPECT_EQ(locale().FromWide(locale().ToWide(bytes)), bytes);
  EXPECT_EQ(locale().ToWide("\x80\xE4\x99"), u"\u20AC\u00E4\u2122");
}

TEST_F(LocaleContract, PutsTheDefaultCharacterForWhatTheCodePageDoesNotHave) {
  if (!HasWesternCodePage()) GTEST_SKIP() << "another code page";
  // The second looks like "A", and is none.
  EXPECT_EQ(locale().FromWide(u"\u4E2D-\u0100-\u0416"), "?-?-?");
}

TEST_F(LocaleContract, TellsAnErrorInASentence) {
  constexpr std::uint32_t kFileNotFound = 2;
  const std::string sentence = locale().SystemErrorText(kFileNotFound);
  EXPECT_GT(sentence.size(), 5u);
  EXPECT_EQ(sentence.find_first_of("\r\n"), std::string::npos);
  EXPECT_NE(sentence, locale().SystemErrorText(5));
}

TEST_F(LocaleContract, HasNoSentenceForAnErrorThatThereIsNot) {
  EXPECT_EQ(locale().SystemErrorText(0x2FFFFFFF), "");
}

}  // namespace
