// What all windows of a host are drawn with.
#pragma once

#include "forms/win32/common_controls.h"
#include "forms/win32/fonts.h"
#include "forms/win32/picture_store.h"
#include "forms/win32/scale.h"

namespace forms::win32 {

struct Screen {
  Fonts fonts;
  PictureStore pictures;
  CommonControls controls;
  int fixed_dpi = 0;  // taken for every window when above 0

  int Dpi(HWND window) const { return fixed_dpi > 0 ? fixed_dpi : DpiOf(window); }
};

// How texts are laid out, for measuring and for drawing.
inline constexpr UINT kTextFormat = DT_WORDBREAK | DT_NOPREFIX | DT_EDITCONTROL | DT_EXPANDTABS;

}  // namespace forms::win32
