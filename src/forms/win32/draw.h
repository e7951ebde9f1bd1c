// Draws controls in the look of the theme.
#pragma once

#include <windows.h>

#include "forms/controls.h"
#include "forms/win32/screen.h"

namespace forms::win32 {

// What of a control's window matters for drawing it.
struct Face {
  RECT place;  // the window's inside
  int dpi;
  bool hover;
  bool pressed;
  bool focused;
  bool enabled;
};

// The colour that a control lies on.
Colour GroundOf(const Control& control);

void DrawControl(HDC dc, const Control& control, const Face& face, Screen& screen);

// The edge of a window without a system frame, `size` pixels large, seen from a place in it.
void DrawWindowEdge(HDC dc, SIZE size, POINT seen_from, int radius, int dpi);

}  // namespace forms::win32
