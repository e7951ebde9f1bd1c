#include "forms/win32/picture_store.h"

namespace forms::win32 {
namespace {

HICON Load(const std::string& key, int size) {
  const bool is_path = key.find_first_of("\\/.") != std::string::npos;
  const HINSTANCE source = is_path ? nullptr : GetModuleHandleA(nullptr);
  return static_cast<HICON>(LoadImageA(source, key.c_str(), IMAGE_ICON, size, size,
                                       is_path ? LR_LOADFROMFILE : LR_DEFAULTCOLOR));
}

}  // namespace

HICON PictureStore::Get(std::string_view key, int size) {
  if (key.empty()) return nullptr;
  const auto place = std::pair(std::string(key), size);
  const auto found = pictures_.find(place);
  if (found != pictures_.end()) return found->second.get();
  platform::win32::ScopedIcon loaded(Load(place.first, size));
  if (!loaded) return nullptr;
  return pictures_.emplace(place, std::move(loaded)).first->second.get();
}

}  // namespace forms::win32
