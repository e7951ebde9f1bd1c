// What a new user gets at the first start: lists of exclusions, a schedule and a default backup
// set.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/platform.h"
#include "schedule/schedule_form.h"
#include "shared/agent_state.h"

namespace schedule {

class ScheduleCreateFiles {
 public:
  ScheduleCreateFiles(platform::Platform& machine, shared::AgentState& state);

  // Reads the user afresh, and does all of it when `FirstUser` of the profile is "TRUE" or empty;
  // anything else, and a profile that cannot be read, leaves every file as it is. The user's
  // profile is made anew: of what it held only the proxy's name, port, user and password are kept,
  // and `FirstUser` becomes "FALSE", so that a user passes once. A file that cannot be written ends
  // the work, with those made so far left in place; the next call begins anew. Leaves the table of
  // the state with the one new record.
  void Form_Load();

  // Sets the start to a random hour of the coming night.
  void PickRecommendedTime();

  // Writes the first schedule to ScheduleFilePath: the default backup set, every day, at the start
  // (the moment of construction until one is picked). False, with the file as it was, when it
  // cannot be read or written.
  bool CreateDefaultSchedule();

  // The same by the hour, to scheduleData.txt of CommonFolder.
  bool CreateHourlySchedule();

 private:
  // Keys and values of the proxy as they stand in the profile, shifted.
  using ProxyValues = std::vector<std::pair<std::string, std::string>>;

  bool IsNewUser();
  ProxyValues ReadProxy();
  bool WriteFileSelection();
  void RemakeProfile(const ProxyValues& proxy);
  bool WriteRecord(std::string_view frequency, std::string_view week_days);

  platform::Platform& machine_;
  shared::AgentState& state_;
  ScheduleForm form_;
};

}  // namespace schedule
