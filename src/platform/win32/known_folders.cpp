// The folders that Windows knows by their meaning.
#include <shlobj.h>
#include <windows.h>

#include "platform/win32/shell.h"

namespace platform::win32 {
namespace {

std::string WithoutFinalBackslash(std::string path) {
  if (path.ends_with('\\')) path.pop_back();
  return path;
}

// The temporary folder's name is often given in its short form.
std::string TemporaryFolder() {
  char path[MAX_PATH + 1];
  const DWORD length = GetTempPathA(sizeof path, path);
  if (length == 0 || length >= sizeof path) return {};
  char long_path[MAX_PATH + 1];
  const DWORD long_length = GetLongPathNameA(path, long_path, sizeof long_path);
  const bool longer = long_length > 0 && long_length < sizeof long_path;
  return WithoutFinalBackslash(longer ? long_path : path);
}

int ToSystemNumber(KnownFolder which) {
  switch (which) {
    case KnownFolder::kDesktop:
      return CSIDL_DESKTOPDIRECTORY;
    case KnownFolder::kDocuments:
      return CSIDL_PERSONAL;
    case KnownFolder::kMusic:
      return CSIDL_MYMUSIC;
    case KnownFolder::kPictures:
      return CSIDL_MYPICTURES;
    case KnownFolder::kVideos:
      return CSIDL_MYVIDEO;
    case KnownFolder::kFavourites:
      return CSIDL_FAVORITES;
    case KnownFolder::kCommonFavourites:
      return CSIDL_COMMON_FAVORITES;
    case KnownFolder::kInternetCache:
      return CSIDL_INTERNET_CACHE;
    case KnownFolder::kCookies:
      return CSIDL_COOKIES;
    case KnownFolder::kTemporary:
      break;
  }
  return -1;
}

}  // namespace

std::string Shell::FindFolder(KnownFolder which) {
  if (which == KnownFolder::kTemporary) return TemporaryFolder();
  char path[MAX_PATH] = {};
  if (!SHGetSpecialFolderPathA(nullptr, path, ToSystemNumber(which), FALSE)) return {};
  return WithoutFinalBackslash(path);
}

}  // namespace platform::win32
