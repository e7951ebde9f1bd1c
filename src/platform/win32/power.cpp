#include "platform/win32/power.h"

#include <windows.h>

namespace platform::win32 {

static_assert(kSystemRequired == ES_SYSTEM_REQUIRED && kContinuous == ES_CONTINUOUS);

bool Power::SetThreadExecutionState(std::uint32_t flags) {
  return ::SetThreadExecutionState(flags) != 0;
}

}  // namespace platform::win32
