#include "platform/win32/internet.h"

#include <windows.h>
#include <wininet.h>

namespace platform::win32 {

bool Internet::RefreshSettings() {
  const bool told = InternetSetOptionA(nullptr, INTERNET_OPTION_SETTINGS_CHANGED, nullptr, 0) != 0;
  InternetSetOptionA(nullptr, INTERNET_OPTION_REFRESH, nullptr, 0);
  return told;
}

}  // namespace platform::win32
