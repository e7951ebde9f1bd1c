// The system's times as the ports give them.
#pragma once

#include <windows.h>

#include "platform/local_time.h"

namespace platform::win32 {

LocalTime ToLocalTime(const SYSTEMTIME& time);

// Of a file's time stamp; the default LocalTime when it cannot be converted.
LocalTime ToLocalTime(const FILETIME& time);

}  // namespace platform::win32
