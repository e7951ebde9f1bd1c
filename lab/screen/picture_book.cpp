#include "lab/screen/picture_book.h"

#include <cstdlib>
#include <limits>

namespace lab {
namespace {

// Mean difference of a colour channel up to which two pictures count as the same.
constexpr long kMostDifference = 6;

// A bitmap in memory with a device context of its own.
class Canvas {
 public:
  Canvas(int width, int height) : width_(width), height_(height), screen_(GetDC(nullptr)) {
    context_ = CreateCompatibleDC(screen_);
    bitmap_ = CreateCompatibleBitmap(screen_, width, height);
    old_ = SelectObject(context_, bitmap_);
  }
  Canvas(const Canvas&) = delete;
  Canvas& operator=(const Canvas&) = delete;
  ~Canvas() {
    SelectObject(context_, old_);
    DeleteObject(bitmap_);
    DeleteDC(context_);
    ReleaseDC(nullptr, screen_);
  }

  HDC context() const { return context_; }
  bool CopyScreen(int x, int y) {
    return BitBlt(context_, 0, 0, width_, height_, screen_, x, y, SRCCOPY) != FALSE;
  }
  Pixels Read() const {
    Pixels pixels;
    for (int y = 0; y < height_; ++y) {
      for (int x = 0; x < width_; ++x) pixels.push_back(GetPixel(context_, x, y));
    }
    return pixels;
  }

 private:
  int width_;
  int height_;
  HDC screen_;
  HDC context_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ old_ = nullptr;
};

Pixels Draw(HICON icon, COLORREF background, int size) {
  Canvas canvas(size, size);
  const RECT all = {0, 0, size, size};
  HBRUSH brush = CreateSolidBrush(background);
  FillRect(canvas.context(), &all, brush);
  DeleteObject(brush);
  DrawIconEx(canvas.context(), 0, 0, icon, size, size, 0, nullptr, DI_NORMAL);
  return canvas.Read();
}

long Difference(const Pixels& left, const Pixels& right) {
  if (left.size() != right.size() || left.empty()) return std::numeric_limits<long>::max();
  long sum = 0;
  for (std::size_t i = 0; i < left.size(); ++i) {
    sum += std::abs(GetRValue(left[i]) - GetRValue(right[i])) +
           std::abs(GetGValue(left[i]) - GetGValue(right[i])) +
           std::abs(GetBValue(left[i]) - GetBValue(right[i]));
  }
  return sum / static_cast<long>(left.size() * 3);
}

}  // namespace

Pixels ScreenPixels(const RECT& place) {
  Canvas canvas(place.right - place.left, place.bottom - place.top);
  if (!canvas.CopyScreen(place.left, place.top)) return {};
  return canvas.Read();
}

PictureBook::PictureBook(const std::string& folder) {
  WIN32_FIND_DATAA found;
  const HANDLE search = FindFirstFileA((folder + "\\*.ico").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  const int size = GetSystemMetrics(SM_CXSMICON);
  do {
    const std::string path = folder + "\\" + found.cFileName;
    auto icon = static_cast<HICON>(
        LoadImageA(nullptr, path.c_str(), IMAGE_ICON, size, size, LR_LOADFROMFILE));
    if (icon) pictures_.push_back({found.cFileName, icon});
  } while (FindNextFileA(search, &found));
  FindClose(search);
}

PictureBook::~PictureBook() {
  for (const Picture& picture : pictures_) DestroyIcon(picture.icon);
}

std::string PictureBook::NameAt(const RECT& place) const {
  const int size = GetSystemMetrics(SM_CXSMICON);
  const int left = place.left + (place.right - place.left - size) / 2;
  const int top = place.top + (place.bottom - place.top - size) / 2;
  const Pixels shown = ScreenPixels({left, top, left + size, top + size});
  const Pixels corner = ScreenPixels({place.left, place.top, place.left + 1, place.top + 1});
  if (corner.empty()) return "";

  std::string best;
  long least = kMostDifference + 1;
  for (const Picture& picture : pictures_) {
    const long difference = Difference(shown, Draw(picture.icon, corner.front(), size));
    if (difference < least) {
      least = difference;
      best = picture.name;
    }
  }
  return best;
}

}  // namespace lab
