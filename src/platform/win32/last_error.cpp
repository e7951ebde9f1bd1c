#include "platform/win32/last_error.h"

#include <windows.h>

namespace platform::win32 {

std::uint32_t LastError() {
  const DWORD error = GetLastError();
  return error != ERROR_SUCCESS ? error : ERROR_GEN_FAILURE;
}

std::uint32_t ErrorUnless(bool succeeded) {
  return succeeded ? ERROR_SUCCESS : LastError();
}

}  // namespace platform::win32
