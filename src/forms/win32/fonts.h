// Fonts of the theme in the sizes of the screens, each made once.
#pragma once

#include <windows.h>

#include <map>
#include <tuple>

#include "forms/theme.h"
#include "forms/win32/scoped_gdi.h"

namespace forms::win32 {

class Fonts {
 public:
  Fonts();

  // Owned by this object.
  HFONT Get(Font font, int dpi);

 private:
  using Key = std::tuple<int, bool, bool, int>;

  const char* const family_;
  std::map<Key, ScopedFont> fonts_;
};

}  // namespace forms::win32
