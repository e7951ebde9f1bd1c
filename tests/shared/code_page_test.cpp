#include "shared/code_page.h"

#include "tests/shared/installed_product.h"

namespace shared {
namespace {

using CodePageTest = InstalledProduct;

TEST_F(CodePageTest, CarriesAnsiTextIntoUtf16AndBack) {
  platform::Locale& locale = platform().locale;
  EXPECT_EQ(basInCodePage::ConvertToWide(locale, "a\xE4\x80"), u"a\u00E4\u20AC");
  EXPECT_EQ(basInCodePage::ConvertFromWide(locale, u"a\u00E4\u20AC"), "a\xE4\x80");
  EXPECT_EQ(basInCodePage::ConvertToWide(locale, ""), u"");
  EXPECT_EQ(basInCodePage::ConvertFromWide(locale, u""), "");
}

TEST_F(CodePageTest, EndsAtTheFirstNul) {
  platform::Locale& locale = platform().locale;
  EXPECT_EQ(basInCodePage::ConvertToWide(locale, std::string_view("a\0b", 3)), u"a");
  EXPECT_EQ(basInCodePage::ConvertFromWide(locale, std::u16string_view(u"a\0b", 3)), "a");
}

TEST_F(CodePageTest, GivesAnotherCharacterForOneThatTheCodePageLacks) {
  EXPECT_EQ(basInCodePage::ConvertFromWide(platform().locale, u"\u4E2D"), "?");
}

}  // namespace
}  // namespace shared
