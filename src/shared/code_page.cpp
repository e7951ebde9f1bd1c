#include "shared/code_page.h"

#include "shared/convert.h"

namespace shared::basInCodePage {

std::u16string ConvertToWide(platform::Locale& locale, std::string_view text) {
  return locale.ToWide(StripNulls(text));
}

std::string ConvertFromWide(platform::Locale& locale, std::u16string_view text) {
  return locale.FromWide(text.substr(0, text.find(u'\0')));
}

}  // namespace shared::basInCodePage
