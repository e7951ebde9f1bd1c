// Date texts of other programs brought to "mm-dd-yyyy HH:mm:ss".
#pragma once

#include <string>
#include <string_view>

namespace schedule {

// Any text of date and time in that form: separators of the date become "-", those of the time ":",
// parts of one digit get a "0", and an afternoon by "PM" becomes twelve hours later. The order of
// day and month stays, and nothing is checked. A text without a time stays without one; "" stays
// "".
std::string ValidateSorvaneDateFormat(std::string_view text);

// The time of the above. Twelve is added to the hour for every "PM", also to that of noon.
std::string ValidateSorvaneTimeFormat(std::string_view text, bool is_pm);

}  // namespace schedule
