// Local time as seconds and as a calendar moment.
#pragma once

#include <cstdint>

#include "platform/local_time.h"

namespace platform::memory {

// Seconds since 1970-01-01 00:00:00, both local; the way back holds for any number of them.
std::int64_t SecondsOf(const LocalTime& time);
LocalTime LocalTimeOf(std::int64_t seconds);

}  // namespace platform::memory
