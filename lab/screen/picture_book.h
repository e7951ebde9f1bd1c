// Which of an installation's pictures is on the screen at some place, by its pixels.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace lab {

using Pixels = std::vector<COLORREF>;

// The pixels of the real screen in this rectangle, line by line. Empty on failure.
Pixels ScreenPixels(const RECT& place);

class PictureBook {
 public:
  // Loads every picture (*.ico) of this folder in the size of small icons.
  explicit PictureBook(const std::string& folder);
  PictureBook(const PictureBook&) = delete;
  PictureBook& operator=(const PictureBook&) = delete;
  ~PictureBook();

  // The file name of the picture that is drawn in the middle of `place`; "" when it is none of
  // them.
  std::string NameAt(const RECT& place) const;

 private:
  struct Picture {
    std::string name;
    HICON icon;
  };
  std::vector<Picture> pictures_;
};

}  // namespace lab
