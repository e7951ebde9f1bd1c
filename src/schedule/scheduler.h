// The date and time logic of a schedule: from what the wizard's controls hold to the stored texts
// of a record, and back.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "schedule/date_format.h"
#include "schedule/schedule_form.h"
#include "schedule/sort_key.h"
#include "shared/agent_state.h"

namespace schedule {

// Answers of the checks; shared/validation_messages.h has the sentences.
inline constexpr int kValid = 100;
inline constexpr int kNoAddress = 104;
inline constexpr int kBadAddress = 105;
inline constexpr int kStartIsPast = 108;

class clsscheduler1 {
 public:
  clsscheduler1(platform::Platform& machine, shared::AgentState& state);

  // Enables and disables the controls of addresses and log.
  void Sch_maildisable(ScheduleForm& form) { form.mail_controls = false; }
  void Sch_mailenable(ScheduleForm& form) { form.mail_controls = true; }

  // Adds the addresses of Mailid.txt of the edited user to those that are offered. Without any the
  // button that removes one is disabled.
  void Sch_LoadMailid(ScheduleForm& form);

  // kValid; with a notification wanted kNoAddress without an address and kBadAddress when the first
  // one is none.
  int Sch_Mail_validate(const ScheduleForm& form) const;

  // One item of the user's locale; "" when the system does not give it.
  std::string GetLocaleString(std::uint32_t item);

  // kStartIsPast when the form's start lies more than ten minutes before now, else kValid.
  int Schwiz_validate_Start4(const ScheduleForm& form);

  std::string Sch_Build_Date(const ScheduleForm& form) const {
    return schedule::Sch_Build_Date(form);
  }
  std::string Sch_End_Date(const ScheduleForm& form) const { return schedule::Sch_End_Date(form); }
  std::string Sch_BuildData(const ScheduleForm& form) const {
    return schedule::Sch_BuildData(form);
  }
  std::string Sch_SortBuildDate(std::string_view date_text) const {
    return schedule::Sch_SortBuildDate(date_text);
  }
  std::string Sch_SortBuildDateYear(std::string_view date_text) const {
    return schedule::Sch_SortBuildDateYear(date_text);
  }

  // Empties the draft for the job types 1, 2, 5 and 6; does nothing for others.
  void InitializeScheduleJob(std::int16_t job_type);

  // The list of SQL Server backup sets at `path`, see backup_set_list.h. The first is traced.
  bool DB_ReadBackdata(std::string_view path, std::vector<std::string>& entries);
  bool Sch_SaveSqlServerBackupset(std::string_view path, std::string_view name,
                                  std::string_view value);

  // See date_format.h; the formats are those of the state.
  bool CheckValidDateTime(std::string_view text) const {
    return schedule::CheckValidDateTime(text);
  }
  std::string CheckValidDateFormat(std::string_view text) const {
    return schedule::CheckValidDateFormat(text, state_.ShortDateFormat);
  }
  std::string ConvertToDate(std::string_view text) const {
    return schedule::ConvertToDate(text, state_.ShortDateFormat);
  }
  std::string ConvertToTime(std::string_view text) const {
    return schedule::ConvertToTime(text, state_.TimeFormat);
  }

  // The first day from the date of the text on that the draft's week mask ticks. The text itself
  // when that is its own day, else the system's default text of the day found. A text that is no
  // date, and any text under a mask without a tick, comes back unchanged.
  std::string ValidateAddDay1(std::string_view date_text) const;

  // Fills the draft from the form, writes `StopSchedule` and `StopScheduleTime` of UserName.ini,
  // copies the draft to the element of the table that is edited, and writes the table to
  // scheduleData.txt of the edited user. False, with that file as it was, when the table has no
  // such element or the file cannot be read or written.
  bool Sch_SaveScheduleJob(const ScheduleForm& form);

 private:
  void SetStart(const ScheduleForm& form);
  // A file of the user whose job the form edits.
  std::string InEditedFolder(const ScheduleForm& form, std::string_view name) const;

  platform::Platform& machine_;
  shared::AgentState& state_;
};

}  // namespace schedule
