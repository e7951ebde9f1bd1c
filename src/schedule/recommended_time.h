// A random off-peak hour, so that not all users' backups begin at once.
#pragma once

#include "platform/local_time.h"
#include "platform/random.h"

namespace schedule {

// A full hour of the coming night, later than `now`: from seven in the evening of the day of `now`
// to six in the morning after it. Draws once or twice.
platform::LocalTime PickRecommendedTime(const platform::LocalTime& now, platform::Random& random);

}  // namespace schedule
