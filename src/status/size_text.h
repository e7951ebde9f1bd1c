// A number of bytes as people read it.
#pragma once

#include <string>
#include <string_view>

#include "platform/locale.h"

namespace status {

// `bytes` in GB, MB, KB or B with one decimal, which is cut and never rounded: "1.9 GB". A unit
// begins strictly above its size, so 1048576 is "1024.0 KB"; exactly 1024 belongs to no unit and
// gives "0.0": other programs show it so. `separator` is the system's decimal separator; "," gives
// a comma, anything else a point.
std::string FormatSizeText(double bytes, std::string_view separator);

// The same with the separator of the machine's locale.
std::string FormatSizeText(double bytes, platform::Locale& locale);

}  // namespace status
