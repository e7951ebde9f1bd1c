#include "schedule/record_store.h"

#include <algorithm>
#include <string>
#include <vector>

#include "schedule/job_kinds.h"
#include "schedule/record_line.h"
#include "schedule/record_reader.h"
#include "shared/file_names.h"
#include "shared/paths.h"

namespace schedule {

RecordStore::RecordStore(platform::Platform& machine, shared::AgentState& state)
    : machine_(machine), state_(state) {}

std::optional<std::size_t> RecordStore::ReadScheduleTable(std::string_view record_no) {
  // 1.
  state_.ScheduleFilePath = shared::InUserFolder(state_, shared::files::kScheduleData);
  const std::string& path = state_.ScheduleFilePath;
  // 2.
  std::string_view earliest = kLatestSortKey;
  std::size_t result = 0;
  // 3.
  std::optional<std::size_t> count = 1;
  if (record_no.empty()) {
    count = CountScheduleRecords(machine_.files, path);
    state_.ScheduleCount = count.value_or(0);
  }
  std::vector<std::string> lines(count.value_or(0) + 1);
  ResizeTable(count.value_or(0));
  // 4.
  if (!count) return std::nullopt;
  const auto found = ReadScheduleLines(machine_.files, state_, record_no, path, lines);
  if (!found) {
    // The empty records that stand for the lines must never reach the file.
    state_.ScheduleCount = 0;
    return std::nullopt;
  }
  if (!*found) return 0;
  const std::size_t stored = record_no.empty() ? lines.size() : 1;
  const std::size_t records = std::min(state_.ScheduleCount, stored);
  for (std::size_t at = 0; at < records; ++at) {
    // 5.
    shared::ScheduleRecord& record = state_.ScheduleTable[at];
    SplitRecord(lines[at], record);
    // 6.
    if (record.SortKey < earliest) {
      earliest = record.SortKey;
      result = at;
    }
  }
  return result;
}

std::size_t RecordStore::GetIndexFromRecordNo(std::int32_t record_no) const {
  const std::string number = std::to_string(record_no);
  const std::size_t records = std::min(state_.ScheduleCount, state_.ScheduleTable.size());
  for (std::size_t at = 0; at < records; ++at) {
    if (state_.ScheduleTable[at].RecordNo == number) return at + 1;
  }
  return 0;
}

void RecordStore::ResizeTable(std::size_t records) {
  state_.ScheduleTable.resize(records + 1);
  for (shared::ScheduleRecord& record : state_.ScheduleTable) SplitRecord({}, record);
}

}  // namespace schedule
