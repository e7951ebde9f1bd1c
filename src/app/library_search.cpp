#include "app/library_search.h"

#include <windows.h>

namespace app {
namespace {

using SetDirectories = BOOL(WINAPI*)(DWORD);

// As the system's headers of Windows 8 name them.
constexpr DWORD kApplicationFolder = 0x00000200;
constexpr DWORD kSystemFolder = 0x00000800;

}  // namespace

void SearchLibrariesInOwnFoldersOnly() {
  SetDllDirectoryA("");
  // The oldest systems have this function only with an update.
  const HMODULE kernel = GetModuleHandleA("kernel32.dll");
  const auto address = reinterpret_cast<void*>(GetProcAddress(kernel, "SetDefaultDllDirectories"));
  if (const auto set_directories = reinterpret_cast<SetDirectories>(address)) {
    set_directories(kApplicationFolder | kSystemFolder);
  }
}

}  // namespace app
