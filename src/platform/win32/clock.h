// The clock of Windows.
#pragma once

#include "platform/clock.h"

namespace platform::win32 {

class Clock final : public platform::Clock {
 public:
  LocalTime Now() override;
  std::uint64_t Milliseconds() override;
  void Sleep(std::uint32_t milliseconds) override;
};

}  // namespace platform::win32
