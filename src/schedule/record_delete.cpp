#include <algorithm>
#include <string>
#include <vector>

#include "schedule/job_kinds.h"
#include "schedule/line_file.h"
#include "schedule/record_line.h"
#include "schedule/record_store.h"
#include "shared/trace.h"
#include "status/schedule_texts.h"

namespace schedule {
namespace {

// Whether a line stays when the records with that number go.
bool IsKept(std::string_view line, std::string_view record_no) {
  const std::size_t end = line.find(status::kFieldSeparator);
  return end != std::string_view::npos && line.substr(0, end) != record_no;
}

}  // namespace

bool RecordStore::DeleteFromList(std::string_view row_name) {
  if (!ReadScheduleTable()) return false;
  const auto end = state_.ScheduleTable.begin() + static_cast<std::ptrdiff_t>(state_.ScheduleCount);
  // The row of the default set takes the first record, whatever that holds.
  const auto found =
      std::find_if(state_.ScheduleTable.begin(), end, [&](const shared::ScheduleRecord& record) {
        return record.BackupSetName == row_name || row_name == kDefaultSetTitle;
      });
  if (found == end) return false;
  setRecordIndex(static_cast<std::size_t>(found - state_.ScheduleTable.begin()));
  if (IsDeletableFromList(found->BackupSetName)) found->BackupSetName.clear();
  return DB_WriteAllRecord(state_.ScheduleFilePath, kDeleteOfList);
}

bool RecordStore::DB_DeleteRecord(std::string_view record_no, std::string_view path) {
  shared::Trace trace(machine_, state_);
  trace.WriteStamped(std::string(shared::kInformation) + "Enter DB_DeleteRecord");
  const bool done = RemoveFromFile(record_no, path);
  trace.WriteStamped(std::string(shared::kInformation) + "Exit DB_DeleteRecord");
  return done;
}

bool RecordStore::RemoveFromFile(std::string_view record_no, std::string_view path) {
  if (record_no.empty() || !machine_.files.Exists(path)) return true;
  const auto text = ReadIfThere(machine_.files, path);
  if (!text) return false;
  std::vector<std::string> lines = LinesOf(*text);
  if (!lines.empty()) lines.erase(lines.begin());
  std::erase_if(lines, [&](const std::string& line) { return !IsKept(line, record_no); });
  ResizeTable(lines.size());
  for (std::size_t at = 0; at < lines.size(); ++at)
    SplitRecord(lines[at], state_.ScheduleTable[at]);
  state_.ScheduleCount = lines.size();
  return DB_WriteAllRecord(path, kDeleteOfList);
}

}  // namespace schedule
