#include "forms/win32/scale.h"

#include "forms/win32/scoped_gdi.h"

namespace forms::win32 {
namespace {

using GetDpiForWindowFunction = UINT(WINAPI*)(HWND);

// Older systems have one number for all screens, and not this function.
GetDpiForWindowFunction FindGetDpiForWindow() {
  const HMODULE user = GetModuleHandleA("user32.dll");
  return reinterpret_cast<GetDpiForWindowFunction>(
      reinterpret_cast<void*>(GetProcAddress(user, "GetDpiForWindow")));
}

}  // namespace

int DpiOf(HWND window) {
  if (window != nullptr) {
    if (const auto get_dpi = FindGetDpiForWindow()) {
      const UINT dpi = get_dpi(window);
      if (dpi != 0) return static_cast<int>(dpi);
    }
  }
  const WindowDc screen(nullptr);
  return GetDeviceCaps(screen.get(), LOGPIXELSX);
}

}  // namespace forms::win32
