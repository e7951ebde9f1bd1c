// Keeping Windows awake.
#pragma once

#include "platform/power.h"

namespace platform::win32 {

class Power final : public platform::Power {
 public:
  bool SetThreadExecutionState(std::uint32_t flags) override;
};

}  // namespace platform::win32
