// A picture in memory for shapes with smooth edges, put on the screen in one go.
#pragma once

#include <windows.h>

#include <cstdint>

#include "forms/theme.h"
#include "forms/win32/scoped_gdi.h"

namespace forms::win32 {

// A point or a length in pixels.
struct Spot {
  double x;
  double y;
};

class Canvas {
 public:
  // Filled with `ground`.
  Canvas(int width, int height, Colour ground);

  // A box with round corners, within the edges given.
  void Box(double left, double top, double right, double bottom, double radius, Colour colour);
  // Its outline, `width` wide, inside the edges.
  void Outline(double left, double top, double right, double bottom, double radius, double width,
               Colour colour, Colour inside);
  // A line with round ends.
  void Line(Spot from, Spot to, double width, Colour colour);

  // Copies all to a place of a device context.
  void CopyTo(HDC target, int left, int top) const;

 private:
  void Blend(int x, int y, double cover, Colour colour);

  const int width_;
  const int height_;
  ScopedMemoryDc dc_;
  ScopedBitmap bitmap_;
  std::uint32_t* pixels_ = nullptr;  // of the bitmap; null when there is no memory for it
};

}  // namespace forms::win32
