// What the status windows and the tip show of the schedule. Reads scheduleData.txt, the profile and
// the marks of the engine at every call.
#pragma once

#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"
#include "status/schedule_texts.h"

namespace schedule {

class ScheduleTexts final : public status::ScheduleTexts {
 public:
  ScheduleTexts(platform::Platform& machine, shared::AgentState& state);

  // The record with the smallest SortKey among those of a known kind, and the name of its kind; the
  // sentence that schedules are disabled while they are; nothing without a schedule, or when it
  // cannot be read. The table of the state stays as it is.
  status::NextRun GetScheduleDate() override;

  // See time_difference.h.
  status::TimeDifference GetTimeDifference(std::string_view scheduled,
                                           std::string_view last_run) override;

  // See normal_date.h.
  std::string ValidateSorvaneDateFormat(std::string_view text) override;

 private:
  platform::Platform& machine_;
  shared::AgentState& state_;
};

}  // namespace schedule
