#include "forms/win32/fonts.h"

#include <iterator>

namespace forms::win32 {
namespace {

constexpr int kPointsPerInch = 72;

// The best that the system has: its own, then what other systems offer in its place.
constexpr const char* kFamilies[] = {"Segoe UI", "Open Sans", "Liberation Sans", "DejaVu Sans",
                                     "Tahoma"};

int CALLBACK NoteFound(const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM found) {
  *reinterpret_cast<bool*>(found) = true;
  return 0;
}

bool IsThere(HDC dc, const char* family) {
  LOGFONTA wanted = {};
  wanted.lfCharSet = DEFAULT_CHARSET;
  lstrcpynA(wanted.lfFaceName, family, LF_FACESIZE);
  bool found = false;
  EnumFontFamiliesExA(dc, &wanted, NoteFound, reinterpret_cast<LPARAM>(&found), 0);
  return found;
}

const char* ChooseFamily() {
  const WindowDc screen(nullptr);
  for (const char* family : kFamilies) {
    if (IsThere(screen.get(), family)) return family;
  }
  return kFamilies[std::size(kFamilies) - 1];
}

}  // namespace

Fonts::Fonts() : family_(ChooseFamily()) {}

HFONT Fonts::Get(Font font, int dpi) {
  ScopedFont& made = fonts_[{font.points, font.bold, font.underline, dpi}];
  if (!made) {
    made = ScopedFont(CreateFontA(-MulDiv(font.points, dpi, kPointsPerInch), 0, 0, 0,
                                  font.bold ? FW_SEMIBOLD : FW_NORMAL, FALSE, font.underline, FALSE,
                                  DEFAULT_CHARSET, OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS,
                                  CLEARTYPE_QUALITY, DEFAULT_PITCH | FF_SWISS, family_));
  }
  return made.get();
}

}  // namespace forms::win32
