// What the controls of the wizard hold, as far as the logic of a schedule needs it.
#pragma once

#include <string>
#include <vector>

#include "platform/local_time.h"

namespace schedule {

struct ScheduleForm {
  platform::LocalTime TVcalendar;  // the start; its date counts
  platform::LocalTime DTPicker;    // the start; its time counts
  platform::LocalTime DTPicker1;   // the cut-off; its time counts
  bool ChkEndTime = false;         // a cut-off is set

  std::string Sch_Cmb_transset;              // name of the backup set
  std::vector<std::string> sch_lbBackupSet;  // its files and folders; a folder ends in a backslash

  int rdMailNotify = 0;                  // 0 never, 1 on failure, 2 always
  std::vector<std::string> cmbMailTo;    // addresses that are offered
  std::vector<std::string> listMailAdd;  // addresses that are chosen
  bool btnRemove = false;                // enabled
  bool mail_controls = false;            // the controls of addresses and log are enabled

  std::string edited_user;  // whose job is edited; need not be the current user
};

// The calendar's date as "mm-dd-yyyy", a blank, the time of the start or of the cut-off as
// "HH:mm:ss".
std::string Sch_Build_Date(const ScheduleForm& form);
std::string Sch_End_Date(const ScheduleForm& form);

// The name of the backup set, ";" and its entries with ";" between. An entry that begins with an
// earlier folder of the list is left out: the folder covers it.
std::string Sch_BuildData(const ScheduleForm& form);

}  // namespace schedule
