// Pictures by key: those of the program itself, and icon files by their path. Each is loaded once
// for each size.
#pragma once

#include <windows.h>

#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "platform/win32/scoped.h"

namespace forms::win32 {

class PictureStore {
 public:
  // The picture `size` pixels wide and high; null for an unknown key or a file that is no icon,
  // which is tried again by the next call. Owned by this object.
  HICON Get(std::string_view key, int size);

 private:
  std::map<std::pair<std::string, int>, platform::win32::ScopedIcon> pictures_;
};

}  // namespace forms::win32
