// Keeping the machine awake.
#pragma once

#include <cstdint>

namespace platform {

inline constexpr std::uint32_t kSystemRequired = 0x00000001;
inline constexpr std::uint32_t kContinuous = 0x80000000;

class Power {
 public:
  virtual ~Power() = default;

  // Tells the system what this thread needs, in its own flags. False when it refuses.
  virtual bool SetThreadExecutionState(std::uint32_t flags) = 0;
};

}  // namespace platform
