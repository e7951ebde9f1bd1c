#include "status/quota_bar.h"

#include <algorithm>
#include <cmath>

namespace status {
namespace {

constexpr double kRedAbove = 90;

// To the nearest whole number, a half to its even neighbour.
double RoundHalfToEven(double value) {
  const double down = std::floor(value);
  const double rest = value - down;
  if (rest < 0.5) return down;
  if (rest > 0.5) return down + 1;
  return std::fmod(down, 2) == 0 ? down : down + 1;
}

}  // namespace

QuotaBar ComputeQuotaBar(double used, double max) {
  if (used < 0) return {};
  if (used > max) return {kQuotaBarMaximum, QuotaColour::kRed, true};
  const double share = max > 0 ? used / max * 100 : 0;
  const double percent = std::min<double>(RoundHalfToEven(share), kQuotaBarMaximum);
  return {static_cast<std::int16_t>(percent),
          percent > kRedAbove ? QuotaColour::kRed : QuotaColour::kGreen, false};
}

}  // namespace status
