#include "app/library_search.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

namespace {

constexpr char kLonely[] = "lonely_library.dll";

// A library that lies in the current directory only, which is a temporary one.
class LonelyLibrary {
 public:
  LonelyLibrary() {
    char folder[MAX_PATH] = {};
    char system[MAX_PATH] = {};
    GetCurrentDirectoryA(MAX_PATH, before_);
    GetTempPathA(MAX_PATH, folder);
    GetSystemDirectoryA(system, MAX_PATH);
    SetCurrentDirectoryA(folder);
    CopyFileA((std::string(system) + "\\version.dll").c_str(), kLonely, FALSE);
  }
  ~LonelyLibrary() {
    DeleteFileA(kLonely);
    SetCurrentDirectoryA(before_);
  }
  LonelyLibrary(const LonelyLibrary&) = delete;
  LonelyLibrary& operator=(const LonelyLibrary&) = delete;

 private:
  char before_[MAX_PATH] = {};
};

bool Loads(const char* name) {
  const HMODULE module = LoadLibraryA(name);
  if (module != nullptr) FreeLibrary(module);
  return module != nullptr;
}

TEST(LibrarySearch, PassesOverTheCurrentDirectoryOnceHardened) {
  const LonelyLibrary library;
  ASSERT_TRUE(Loads(kLonely));
  app::SearchLibrariesInOwnFoldersOnly();
  EXPECT_FALSE(Loads(kLonely));
  EXPECT_TRUE(Loads("version.dll"));
}

}  // namespace
