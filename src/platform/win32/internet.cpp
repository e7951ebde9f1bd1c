#include "platform/win32/internet.h"

#include <windows.h>
#include <wininet.h>

namespace platform::win32 {

bool Internet::RefreshSettings() {
  const auto set_option = library_.Find<decltype(&InternetSetOptionA)>("InternetSetOptionA");
  if (!set_option) return false;
  const bool told = set_option(nullptr, INTERNET_OPTION_SETTINGS_CHANGED, nullptr, 0) != 0;
  set_option(nullptr, INTERNET_OPTION_REFRESH, nullptr, 0);
  return told;
}

}  // namespace platform::win32
