#include "platform/win32/clock.h"

#include <windows.h>

#include "platform/win32/system_time.h"

namespace platform::win32 {

LocalTime Clock::Now() {
  SYSTEMTIME time;
  GetLocalTime(&time);
  return ToLocalTime(time);
}

std::uint64_t Clock::Milliseconds() {
  return GetTickCount64();
}

void Clock::Sleep(std::uint32_t milliseconds) {
  ::Sleep(milliseconds);
}

}  // namespace platform::win32
