// Units of forms and pixels of a screen.
#pragma once

#include <windows.h>

#include "forms/geometry.h"

namespace forms::win32 {

inline constexpr int kUnitsPerInch = 96;

// Pixels for units, rounded to the nearest.
inline int ToPixels(int units, int dpi) {
  return MulDiv(units, dpi, kUnitsPerInch);
}

// Edges are rounded each for itself: a width or height may come out this many pixels smaller.
inline int RoundingLoss(int dpi) {
  return dpi % kUnitsPerInch == 0 ? 0 : 1;
}

// The least units that hold so many pixels wherever they begin.
inline int ToUnits(int pixels, int dpi) {
  return ((pixels + RoundingLoss(dpi)) * kUnitsPerInch + dpi - 1) / dpi;
}

// Dots per inch of the screen that a window is on; of the main screen for null.
int DpiOf(HWND window);

}  // namespace forms::win32
