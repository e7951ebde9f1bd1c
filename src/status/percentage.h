// The progress bar's value from the engine's text.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace status {

// Position of a bar that goes from 0 to `maximum`: the text without its last character as a 16-bit
// number, where 100 means the maximum, whatever that is. Nothing (the bar stays where it is) when
// the text is empty, is no number or would lie outside the bar. A text without a percent sign loses
// its last digit.
std::optional<std::int16_t> BarPosition(std::string_view percentage, std::int16_t maximum);

}  // namespace status
