// Pictures of dates and times, as the locale gives them: "dd/MM/yyyy", "h:mm:ss tt".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/local_time.h"

namespace schedule {

// A picture in alternating pieces: runs of one letter, and everything else.
std::vector<std::string_view> CutPicture(std::string_view picture);

// "Jan" to "Dec"; "" for another number.
std::string_view MonthName(int month);

// 1 to 12 for an English month in upper case, in full or by its first three or more letters; 0 for
// another word.
int MonthOfName(std::string_view upper_name);

// The picture with the values of `time` for d, M, y, h, H, m, s and t, each by the length of its
// run. Other characters stand as they are; text between apostrophes stands without them.
std::string FillPicture(std::string_view picture, const platform::LocalTime& time);

}  // namespace schedule
