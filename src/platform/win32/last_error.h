// The system's last error as the ports give it.
#pragma once

#include <cstdint>

namespace platform::win32 {

// The number of the error that a call of this thread has just failed with; never 0, so that a
// failure cannot be taken for success.
std::uint32_t LastError();

// 0 when `succeeded`, else LastError().
std::uint32_t ErrorUnless(bool succeeded);

}  // namespace platform::win32
