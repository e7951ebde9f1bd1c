#include "status/percentage.h"

#include "shared/convert.h"

namespace status {

std::optional<std::int16_t> BarPosition(std::string_view percentage, std::int16_t maximum) {
  if (percentage.empty()) return std::nullopt;
  percentage.remove_suffix(1);
  const auto value = shared::ToInt16(percentage);
  if (!value) return std::nullopt;
  if (*value == 100) return maximum;
  if (*value < 0 || *value > maximum) return std::nullopt;
  return value;
}

}  // namespace status
