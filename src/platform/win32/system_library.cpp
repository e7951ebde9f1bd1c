#include "platform/win32/system_library.h"

namespace platform::win32 {

void* SystemLibrary::Address(const char* function) {
  if (!library_) {
    library_ = ScopedLibrary(LoadLibraryExA(name_, nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32));
  }
  if (!library_) return nullptr;
  return reinterpret_cast<void*>(GetProcAddress(library_.get(), function));
}

}  // namespace platform::win32
