// The engine's side of scheduleData.txt: the code of the running job on the first line, and the
// records that it moves on after a run.
//
// A record is twelve fields with two backspace characters between neighbours.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "lab/engine/places.h"
#include "platform/local_time.h"

namespace lab {

// Places of the fields in a line.
enum ScheduleField : std::size_t {
  kRecordNo = 0,
  kBackupSetName = 1,
  kStartDateTime = 2,
  kCreatedDateTime = 3,
  kMonthDay = 4,
  kCarriedValue = 5,
  kMailIds = 6,
  kMailNotifyMode = 7,
  kMailLogFlag = 8,
  kSortKey = 9,
  kFrequencyCode = 10,
  kWeekDayMask = 11,
  kScheduleFields = 12,
};

using ScheduleLine = std::vector<std::string>;

ScheduleLine SplitScheduleLine(std::string_view line);
std::string JoinScheduleLine(const ScheduleLine& fields);

// The code that the first line holds while a job of this backup set runs; "1" for an unknown set.
std::string_view RunningCode(std::string_view backup_set);

class ScheduleFile {
 public:
  // Of this user; nothing is read yet.
  ScheduleFile(const Ports& ports, const Places& places, std::string_view user);

  bool Exists() const;

  // "" for a missing file.
  std::string FirstLine() const;

  // Leaves the records as they are. Nothing happens to a missing file.
  void SetFirstLine(std::string_view code);

  // The earliest record whose time has come at `now`; nothing while the first line tells of a
  // running job.
  std::optional<ScheduleLine> Due(const platform::LocalTime& now) const;

  // Puts the record with this number off to its next time after `now`; a job that runs once is
  // taken out.
  void MoveOn(std::string_view record_no, const platform::LocalTime& now);

 private:
  std::vector<std::string> Lines() const;
  void Write(const std::vector<std::string>& lines);

  Ports ports_;
  std::string path_;
};

}  // namespace lab
