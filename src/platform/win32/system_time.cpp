#include "platform/win32/system_time.h"

namespace platform::win32 {

LocalTime ToLocalTime(const SYSTEMTIME& time) {
  return {.year = time.wYear,
          .month = time.wMonth,
          .day = time.wDay,
          .hour = time.wHour,
          .minute = time.wMinute,
          .second = time.wSecond};
}

LocalTime ToLocalTime(const FILETIME& time) {
  SYSTEMTIME universal;
  SYSTEMTIME local;
  if (!FileTimeToSystemTime(&time, &universal)) return {};
  // By the rules of daylight saving that held on that day, not by today's.
  if (!SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local)) return {};
  return ToLocalTime(local);
}

}  // namespace platform::win32
