// Text between the ANSI code page of the machine and UTF-16.
#pragma once

#include <string>
#include <string_view>

#include "platform/locale.h"

namespace shared::basInCodePage {

// Up to the first NUL. A character that one side does not have becomes its default character.
std::u16string ConvertToWide(platform::Locale& locale, std::string_view text);
std::string ConvertFromWide(platform::Locale& locale, std::u16string_view text);

}  // namespace shared::basInCodePage
