#include "status/bandwidth.h"

#include <algorithm>
#include <cmath>

#include "shared/convert.h"

namespace status {
namespace {

constexpr std::int16_t kFull = 100;
constexpr std::int16_t kIdle = 25;

std::int16_t ValueOr(std::string_view stored, std::int16_t otherwise) {
  const std::int16_t value = shared::ToInt16(stored).value_or(0);
  if (value == 0) return otherwise;
  return std::clamp<std::int16_t>(value, 0, kFull);
}

}  // namespace

std::int16_t BandwidthValue(std::string_view stored) {
  return ValueOr(stored, kFull);
}

std::int16_t IdleBandwidthValue(std::string_view stored) {
  return ValueOr(stored, kIdle);
}

void ShowBandwidthSlider(BandwidthPanel& panel, const TransferSnapshot& transfer) {
  panel.auto_pause = transfer.backup_idle == "1" && transfer.backup_idle_state == "1";
  panel.value = panel.auto_pause ? IdleBandwidthValue(transfer.bandwidth_idle_state)
                                 : BandwidthValue(transfer.bandwidth);
  panel.enabled = true;
}

int KnobLeft(const SliderBox& box, std::int16_t value) {
  return box.left + (box.width - box.knob_width) * value / kFull;
}

std::int16_t KnobValue(const SliderBox& box, int left) {
  const int way = box.width - box.knob_width;
  if (way <= 0) return 0;
  const double value = std::nearbyint((left - box.left) * 100.0 / way);
  return static_cast<std::int16_t>(std::clamp(value, 0.0, 100.0));
}

bool KnobMayStand(const SliderBox& box, int left, int overhang) {
  return left >= box.left && left + box.knob_width <= box.left + box.width + overhang;
}

}  // namespace status
