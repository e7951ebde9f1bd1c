#include "forms/win32/popup_menu.h"

#include "forms/win32/scoped_gdi.h"

namespace forms::win32 {
namespace {

UINT FlagsOf(const MenuItem& item) {
  if (item.Separator()) return MF_SEPARATOR;
  return MF_STRING | (item.Enabled() ? MF_ENABLED : MF_GRAYED) |
         (item.Checked() ? MF_CHECKED : MF_UNCHECKED);
}

// The numbers of items are their places, from 1.
ScopedMenu Build(const Menu& menu) {
  ScopedMenu popup(CreatePopupMenu());
  UINT number = 0;
  for (const MenuItem& item : menu.Items()) {
    ++number;
    if (!item.Visible()) continue;
    AppendMenuA(popup.get(), FlagsOf(item), number, item.Caption().c_str());
    if (menu.Default() == &item) SetMenuDefaultItem(popup.get(), number, FALSE);
  }
  return popup;
}

}  // namespace

MenuItem* ShowPopupMenu(HWND window, Menu& menu) {
  const ScopedMenu popup = Build(menu);
  POINT mouse = {};
  GetCursorPos(&mouse);
  SetForegroundWindow(window);
  const auto number = static_cast<std::size_t>(TrackPopupMenu(
      popup.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, mouse.x, mouse.y, 0, window, nullptr));
  // Without a message behind it, the next menu would close at once.
  PostMessageA(window, WM_NULL, 0, 0);
  return number == 0 ? nullptr : &menu.Items()[number - 1];
}

}  // namespace forms::win32
