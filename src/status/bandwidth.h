// The bandwidth slider and auto-pause: pure rules. Values are percent.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "status/status_snapshot.h"
#include "status/status_view.h"

namespace status {

// The stored text with auto-pause off: 100 when it is empty, "0" or no number.
std::int16_t BandwidthValue(std::string_view stored);
// The stored text with auto-pause on: 25 when it is empty, "0" or no number.
std::int16_t IdleBandwidthValue(std::string_view stored);

// The on state when BackupIdle and BackupIdleState are both "1", otherwise the off state.
void ShowBandwidthSlider(BandwidthPanel& panel, const TransferSnapshot& transfer);

// The box and the knob that picture the slider; lengths in the same unit.
struct SliderBox {
  int left = 0;
  int width = 0;
  int knob_width = 0;
};

// Where the knob's left edge stands for a value.
int KnobLeft(const SliderBox& box, std::int16_t value);

// The value of a knob at `left`, rounded to a whole number within 0 to 100.
std::int16_t KnobValue(const SliderBox& box, int left);

// True when the knob may stand at `left`: inside the box, its right edge past the box's end by at
// most `overhang`.
bool KnobMayStand(const SliderBox& box, int left, int overhang);

}  // namespace status
