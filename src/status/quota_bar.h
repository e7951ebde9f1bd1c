// The bar that shows how much of the quota is used.
#pragma once

#include <cstdint>

#include "status/status_view.h"

namespace status {

// Position and colour of the quota bar, and what it makes of the status line.
struct QuotaBar {
  std::int16_t position = 0;
  QuotaColour colour = QuotaColour::kGreen;
  bool exceeded = false;  // more used than allowed
};

// A negative `used` is unknown: 0, green. Above `max`: full, red, exceeded. Otherwise the share in
// whole percent, halves to the even number, at most 100, red above 90.
QuotaBar ComputeQuotaBar(double used, double max);

}  // namespace status
