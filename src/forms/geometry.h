// Places and sizes in units: 1/96 inch, one pixel on a screen of 96 dots per inch. Hosts scale
// them.
#pragma once

namespace forms {

struct Point {
  int x = 0;
  int y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  int width = 0;
  int height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;

  int Right() const { return left + width; }
  int Bottom() const { return top + height; }
  bool Contains(const Rect& inner) const {
    return inner.left >= left && inner.top >= top && inner.Right() <= Right() &&
           inner.Bottom() <= Bottom();
  }
  friend bool operator==(const Rect&, const Rect&) = default;
};

}  // namespace forms
