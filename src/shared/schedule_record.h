// One scheduled job, as the agent, the wizard and the engine know it: twelve texts.
//
// Any field may be empty. The order here is that of the record in memory; a line of the file has
// MailNotifyMode before MailLogFlag (see schedule/record_line.h, the one place that knows).
#pragma once

#include <string>

namespace shared {

struct ScheduleRecord {
  std::string RecordNo;         // decimal; key of the record
  std::string BackupSetName;    // keyword of the job's kind; empty means deleted
  std::string StartDateTime;    // "mm-dd-yyyy HH:mm:ss": the next run
  std::string CreatedDateTime;  // "mm-dd-yyyy HH:mm:ss": the last save
  std::string MonthDay;         // "1" to "31"
  std::string CarriedValue;     // opaque here: written back as it was read
  std::string MailIds;          // addresses, each closed by ";"
  std::string MailLogFlag;      // "1": the log goes with the mail, else "0"
  std::string MailNotifyMode;   // "1" never, "2" on failure, "3" always
  std::string SortKey;          // twelve digits yyyymmddHHMM; jobs are ordered by this text
  std::string FrequencyCode;    // "1" to "8", see schedule/frequency.h
  std::string WeekDayMask;      // seven "0" or "1", Sunday first; empty where it is not used

  bool operator==(const ScheduleRecord&) const = default;
};

}  // namespace shared
