// Popup menus of the system, made from menus as data.
#pragma once

#include <windows.h>

#include "forms/menu.h"

namespace forms::win32 {

// Shows the menu at the mouse for the window, which is brought to the front, and waits. Returns the
// chosen item, null for none. Ampersands choose letters.
MenuItem* ShowPopupMenu(HWND window, Menu& menu);

}  // namespace forms::win32
