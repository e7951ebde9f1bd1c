#include "forms/win32/canvas.h"

#include <algorithm>
#include <cmath>

namespace forms::win32 {
namespace {

constexpr Colour kBitsPerPart = 8;

Colour Part(Colour colour, int part) {
  return colour >> (kBitsPerPart * static_cast<Colour>(part)) & 0xFF;
}

// The order of colours in a bitmap: blue lowest.
std::uint32_t ToPixel(Colour colour) {
  return Part(colour, 2) | Part(colour, 1) << kBitsPerPart | Part(colour, 0) << 2 * kBitsPerPart;
}

// How far the middle of a pixel lies outside a box with round corners; below 0 inside.
double OutsideBox(Spot place, Spot middle, Spot half, double radius) {
  const double x = std::abs(place.x - middle.x) - half.x + radius;
  const double y = std::abs(place.y - middle.y) - half.y + radius;
  return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0) - radius;
}

double OutsideLine(Spot place, Spot from, Spot to, double half_width) {
  const Spot way = {to.x - from.x, to.y - from.y};
  const double length = way.x * way.x + way.y * way.y;
  const double along =
      length == 0 ? 0
                  : std::clamp(((place.x - from.x) * way.x + (place.y - from.y) * way.y) / length,
                               0.0, 1.0);
  return std::hypot(place.x - from.x - along * way.x, place.y - from.y - along * way.y) -
         half_width;
}

double Cover(double outside) {
  return std::clamp(0.5 - outside, 0.0, 1.0);
}

}  // namespace

Canvas::Canvas(int width, int height, Colour ground)
    : width_(std::max(width, 1)), height_(std::max(height, 1)), dc_(CreateCompatibleDC(nullptr)) {
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width_;
  info.bmiHeader.biHeight = -height_;  // from the top down
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* pixels = nullptr;
  bitmap_ = ScopedBitmap(CreateDIBSection(dc_.get(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
  pixels_ = static_cast<std::uint32_t*>(pixels);
  if (pixels_) std::fill_n(pixels_, width_ * height_, ToPixel(ground));
}

void Canvas::Blend(int x, int y, double cover, Colour colour) {
  if (cover <= 0) return;
  std::uint32_t& pixel = pixels_[y * width_ + x];
  const std::uint32_t wanted = ToPixel(colour);
  std::uint32_t blended = 0;
  for (int part = 0; part < 3; ++part) {
    const double before = Part(pixel, part);
    const double mixed = before + (Part(wanted, part) - before) * cover;
    blended |= static_cast<std::uint32_t>(std::lround(mixed))
               << kBitsPerPart * static_cast<Colour>(part);
  }
  pixel = blended;
}

void Canvas::Box(double left, double top, double right, double bottom, double radius,
                 Colour colour) {
  if (!pixels_) return;
  const Spot middle = {(left + right) / 2, (top + bottom) / 2};
  const Spot half = {(right - left) / 2, (bottom - top) / 2};
  const double least_radius = std::min({radius, half.x, half.y});
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      Blend(x, y, Cover(OutsideBox({x + 0.5, y + 0.5}, middle, half, least_radius)), colour);
    }
  }
}

void Canvas::Outline(double left, double top, double right, double bottom, double radius,
                     double width, Colour colour, Colour inside) {
  Box(left, top, right, bottom, radius, colour);
  Box(left + width, top + width, right - width, bottom - width, std::max(radius - width, 0.0),
      inside);
}

void Canvas::Line(Spot from, Spot to, double width, Colour colour) {
  if (!pixels_) return;
  for (int y = 0; y < height_; ++y) {
    for (int x = 0; x < width_; ++x) {
      Blend(x, y, Cover(OutsideLine({x + 0.5, y + 0.5}, from, to, width / 2)), colour);
    }
  }
}

void Canvas::CopyTo(HDC target, int left, int top) const {
  if (!pixels_) return;
  const Selection selection(dc_.get(), bitmap_.get());
  BitBlt(target, left, top, width_, height_, dc_.get(), 0, 0, SRCCOPY);
}

}  // namespace forms::win32
