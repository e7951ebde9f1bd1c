#include "status/status_effects.h"

#include <algorithm>

namespace status {

void StatusEffects::RefreshQuota() {
  const bool asked = std::ranges::any_of(
      effects_, [](const Effect& effect) { return effect.kind == EffectKind::kRefreshQuota; });
  if (!asked) Add(EffectKind::kRefreshQuota, {});
}

}  // namespace status
