// Owners of the objects that windows are drawn with, counted like all others of the process.
#pragma once

#include "platform/win32/scoped.h"

namespace forms::win32 {

template <typename Type>
struct GdiTraits : platform::win32::NullTraits<Type, platform::win32::ObjectKind::kGdi> {
  static void Release(Type value) { DeleteObject(value); }
};

using ScopedFont = platform::win32::Scoped<GdiTraits<HFONT>>;
using ScopedBrush = platform::win32::Scoped<GdiTraits<HBRUSH>>;
using ScopedBitmap = platform::win32::Scoped<GdiTraits<HBITMAP>>;
using ScopedRegion = platform::win32::Scoped<GdiTraits<HRGN>>;

struct MemoryDcTraits : platform::win32::NullTraits<HDC, platform::win32::ObjectKind::kGdi> {
  static void Release(HDC value) { DeleteDC(value); }
};
using ScopedMemoryDc = platform::win32::Scoped<MemoryDcTraits>;

struct MenuTraits : platform::win32::NullTraits<HMENU, platform::win32::ObjectKind::kUser> {
  static void Release(HMENU value) { DestroyMenu(value); }
};
using ScopedMenu = platform::win32::Scoped<MenuTraits>;

// An object in a device context for as long as this lives.
class Selection {
 public:
  Selection(HDC dc, HGDIOBJ object) : dc_(dc), before_(SelectObject(dc, object)) {}
  ~Selection() { SelectObject(dc_, before_); }
  Selection(const Selection&) = delete;
  Selection& operator=(const Selection&) = delete;

 private:
  const HDC dc_;
  const HGDIOBJ before_;
};

// The device context of a window (null: of the screen) for as long as this lives.
class WindowDc {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  ~WindowDc() { ReleaseDC(window_, dc_); }
  WindowDc(const WindowDc&) = delete;
  WindowDc& operator=(const WindowDc&) = delete;
  HDC get() const { return dc_; }

 private:
  const HWND window_;
  const HDC dc_;
};

}  // namespace forms::win32
