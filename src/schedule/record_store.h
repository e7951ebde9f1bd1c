// The table of scheduled jobs: loading it, choosing the earliest, writing it back, deleting from
// it.
//
// The table in AgentState is a copy of the file at the last load; whoever shows or changes jobs
// loads it first. Every write keeps the old file whole when it fails. The file is shared with the
// engine without a lock.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/platform.h"
#include "schedule/record_writer.h"
#include "shared/agent_state.h"

namespace schedule {

// Later than any real SortKey: 12 December 3000, 15:03.
inline constexpr std::string_view kLatestSortKey = "300012121503";

class RecordStore {
 public:
  RecordStore(platform::Platform& machine, shared::AgentState& state);

  // Loads scheduleData.txt of UserFolder into ScheduleTable and sets ScheduleFilePath and
  // ScheduleCount. Returns the index of the first record with the smallest SortKey, and 0 when none
  // is smaller than kLatestSortKey. With a record number only that record is loaded, to index 0,
  // and ScheduleCount stays (while that is 0 the table stays empty). A missing file gives an empty
  // table. Nothing, and an empty table, when the file is there and cannot be read.
  std::optional<std::size_t> ReadScheduleTable(std::string_view record_no = {});

  // Writes the table, see record_writer.h.
  bool DB_WriteAllRecord(std::string_view path, const WriterPolicy& policy);

  // Deletes the job of a row of the list: loads the table, empties BackupSetName of the first
  // record of that name (of the first of all when the row reads "DEFAULT BACKUPSET"), and writes
  // the table, which drops it. A kind that the list does not delete stays. False when no record
  // matches, or the file cannot be read or written; it is as it was then.
  bool DeleteFromList(std::string_view row_name);

  // Removes every record with that number, and lines without a separator, from the file at `path`.
  // Nothing without a file or with an empty number. False when it cannot be read or written.
  // Traced.
  bool DB_DeleteRecord(std::string_view record_no, std::string_view path);

  // 1 for the first record of the table with that number, 2 for the second; 0 when there is none.
  std::size_t GetIndexFromRecordNo(std::int32_t record_no) const;

  // Remembers the element of the table that is edited.
  void setRecordIndex(std::size_t index) { state_.CurrentRecordIndex = index; }

 private:
  // Makes the table empty with room for `records` and the spare one.
  void ResizeTable(std::size_t records);
  bool RemoveFromFile(std::string_view record_no, std::string_view path);

  platform::Platform& machine_;
  shared::AgentState& state_;
};

}  // namespace schedule
