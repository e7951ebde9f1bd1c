// Reading scheduleData.txt: a first line of the engine's and one line a job.
//
// The file is shared without a lock, so it is read whole and at once. A missing file is an empty
// one; where a result is optional, nothing means that the file is there and cannot be read.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "shared/agent_state.h"

namespace schedule {

// Number of lines behind the first, empty ones too.
std::optional<std::size_t> CountScheduleRecords(platform::Files& files, std::string_view path);

// Fills `lines` from its start on and says whether a line was stored. Lines that do not fit into
// `lines` are dropped: the file has grown since it was counted.
//
// Without a record number: every line behind the first. With one: the one line whose first field is
// that number, and it is looked for only while the first line is a job code from "0" to "4"; lines
// without a separator are passed over. The first line counts as such only when `path` is the path
// of the schedule that was loaded last.
std::optional<bool> ReadScheduleLines(platform::Files& files, const shared::AgentState& state,
                                      std::string_view record_no, std::string_view path,
                                      std::vector<std::string>& lines);

// The first line; "" when the file is empty or `path` is not that of the schedule loaded last.
std::optional<std::string> Readfirstline(platform::Files& files, const shared::AgentState& state,
                                         std::string_view path);

}  // namespace schedule
