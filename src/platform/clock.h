// The clock of the machine.
#pragma once

#include <cstdint>

#include "platform/local_time.h"

namespace platform {

class Clock {
 public:
  virtual ~Clock() = default;

  // The local wall clock. It may be set back by the user.
  virtual LocalTime Now() = 0;

  // Milliseconds that only grow, from any start.
  virtual std::uint64_t Milliseconds() = 0;

  // Stops this thread for `milliseconds`. Neither timers nor window messages run meanwhile; other
  // programs do.
  virtual void Sleep(std::uint32_t milliseconds) = 0;
};

}  // namespace platform
