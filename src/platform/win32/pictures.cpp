#include "platform/win32/pictures.h"

#include <windows.h>

namespace platform::win32 {
namespace {

// Paths name the same file in any case.
std::string InLowerCase(std::string_view path) {
  std::string lower(path);
  CharLowerBuffA(lower.data(), static_cast<DWORD>(lower.size()));
  return lower;
}

}  // namespace

PictureId Pictures::Load(std::string_view path) {
  std::string name = InLowerCase(path);
  if (const auto found = by_path_.find(name); found != by_path_.end()) return found->second;
  ScopedIcon icon(static_cast<HICON>(LoadImageA(nullptr, name.c_str(), IMAGE_ICON,
                                                GetSystemMetrics(SM_CXSMICON),
                                                GetSystemMetrics(SM_CYSMICON), LR_LOADFROMFILE)));
  if (!icon) return kNoPicture;
  icons_.push_back(std::move(icon));
  const auto picture = static_cast<PictureId>(icons_.size());
  by_path_.emplace(std::move(name), picture);
  return picture;
}

HICON Pictures::IconOf(PictureId picture) const {
  const auto place = static_cast<std::size_t>(picture) - 1;
  return place < icons_.size() ? icons_[place].get() : nullptr;
}

}  // namespace platform::win32
