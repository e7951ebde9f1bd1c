#include "schedule/locale_formats.h"

namespace schedule {

void LoadLocaleFormats(platform::Locale& locale, shared::AgentState& state) {
  state.ShortDateFormat = locale.Item(platform::kLocaleShortDate);
  state.TimeFormat = locale.Item(platform::kLocaleTimeFormat);
}

bool IsDayFirst(const shared::AgentState& state) {
  return state.ShortDateFormat.starts_with('D') || state.ShortDateFormat.starts_with('d');
}

}  // namespace schedule
