// One job as a line of scheduleData.txt: twelve fields, two backspace characters between each pair
// of neighbours, nothing behind the last.
#pragma once

#include <string>
#include <string_view>

#include "shared/schedule_record.h"

namespace schedule {

// The fields in file order, joined; always eleven separators.
std::string JoinRecord(const shared::ScheduleRecord& record);

// Cuts a line into the fields of `record`. Fields that the line lacks become empty; the twelfth is
// the whole rest of the line, whatever stands in it.
void SplitRecord(std::string_view line, shared::ScheduleRecord& record);

}  // namespace schedule
