#include "platform/win32/random.h"

#include <windows.h>

#include <cstdint>

namespace platform::win32 {
namespace {

std::uint32_t ClockSeed() {
  LARGE_INTEGER ticks;
  QueryPerformanceCounter(&ticks);
  FILETIME time;
  GetSystemTimeAsFileTime(&time);
  // The process id keeps two agents apart that start in the same moment.
  return ticks.LowPart ^ time.dwLowDateTime ^ GetCurrentProcessId();
}

}  // namespace

Random::Random() : generator_(ClockSeed()) {}

double Random::Next() {
  constexpr double kAll = 4294967296.0;  // one more than the greatest number of the generator
  return static_cast<double>(generator_()) / kAll;
}

}  // namespace platform::win32
