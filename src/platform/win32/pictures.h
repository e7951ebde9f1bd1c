// Icons from files, in the size of the notification area, each loaded once.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/shell.h"
#include "platform/win32/scoped.h"

namespace platform::win32 {

class Pictures {
 public:
  // kNoPicture for a missing file or one that is no icon; the next call tries again.
  PictureId Load(std::string_view path);

  // Null for kNoPicture and for numbers that were never given.
  HICON IconOf(PictureId picture) const;

 private:
  std::vector<ScopedIcon> icons_;  // picture n is at n - 1
  std::map<std::string, PictureId, std::less<>> by_path_;
};

}  // namespace platform::win32
