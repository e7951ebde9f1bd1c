// The kinds of jobs: how the engine, the records and people name each.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace schedule {

struct JobKind {
  std::string_view code;       // first line of scheduleData.txt while such a job runs
  std::string_view keyword;    // BackupSetName of its records
  std::string_view name;       // for people; empty for the default backup set
  std::string_view record_no;  // RecordNo of a record that has none; empty: none is given
};

// First line of scheduleData.txt while no job runs; the only code that this program ever sets.
inline constexpr std::string_view kNoJobCode = "0";

inline constexpr std::string_view kDefaultSet = "tventbkupjob";
// What the list of jobs shows for kDefaultSet.
inline constexpr std::string_view kDefaultSetTitle = "DEFAULT BACKUPSET";

std::span<const JobKind> JobKinds();

// The kind with that keyword, code or type; nothing for another text.
const JobKind* FindJobKind(std::string_view keyword);
const JobKind* FindJobKindByCode(std::string_view code);

// The kind that a ScheduleJobType of the wizard stands for: 1 and 4 the default set, 2 SQL Server,
// 5 system state, 6 Exchange; nothing for another number.
const JobKind* FindJobKindByType(std::int16_t job_type);

// What the list of jobs shows for a keyword: the keyword but for kDefaultSet.
std::string_view TitleOfJob(std::string_view keyword);

// True for the keywords that a delete from the list of jobs takes. The last of them is not the
// keyword of any kind, so a brick-level job stays.
bool IsDeletableFromList(std::string_view keyword);

}  // namespace schedule
