// The tips of the windows' controls.
#pragma once

#include <string_view>

namespace schedule {

// The tip of a control by its window and name, for instance "SchedulerFrm.Pic_Edit"; "" for one
// that has none.
std::string_view GetToolTipText(std::string_view name);

}  // namespace schedule
