#include "agent/daily_step.h"

#include <string>

#include "shared/calendar_day.h"
#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/profile_store.h"
#include "shared/texts.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

constexpr std::int16_t kDefaultThreshold = 7;  // days without a backup before they are told

constexpr shared::TextEntry kNotTakenPlace{
    956, "The scheduled backup has not taken place for the past "};
constexpr shared::TextEntry kDoYouWantTo{1708, "Do you want to"};

}  // namespace

DailyStep::DailyStep(platform::Platform& machine, shared::AgentState& state,
                     shared::AgentCommands& tray)
    : machine_(machine), state_(state), tray_(tray) {}

bool DailyStep::IsDailyDue() {
  shared::ProfileStore profile(machine_, state_);
  const shared::Day today = shared::DayOf(machine_.clock.Now());
  const auto part = [&](std::string_view key, int todays) -> int {
    return shared::ToInt16(profile.ReadUserNameProfile(key))
        .value_or(static_cast<std::int16_t>(todays));
  };
  const shared::Day stored{part(shared::keys::kTrayIconYear, today.year),
                           part(shared::keys::kTrayIconMonth, today.month),
                           part(shared::keys::kTrayIconDay, today.day)};
  return stored <= today;
}

void DailyStep::Run() {
  ReportMissingBackups();
  StoreNextDate();
}

// True, with the counter back at zero, when that many days are to be told.
bool DailyStep::CountsAsMissing(int days) {
  if (days <= 0) return false;
  status::ProgressChannel channel(machine_, state_);
  const int threshold =
      shared::ToInt16(channel.ReadBackupStatus(status::kUserDays)).value_or(kDefaultThreshold);
  if (days < threshold) return false;
  channel.WriteBackupStatus(status::kBackupFailureDays, "0");
  return true;
}

void DailyStep::ReportMissingBackups() {
  status::ProgressChannel channel(machine_, state_);
  // 1. The counter starts anew whatever the user then does, and also when the notice is switched
  // off.
  const int days =
      shared::ToInt16(channel.ReadBackupStatus(status::kBackupFailureDays)).value_or(0);
  if (!CountsAsMissing(days)) return;
  // 2. The notice.
  if (channel.ReadBackupStatus(status::kUserDaysEnabled) == "0") return;
  channel.WriteBackupStatus(status::kBackupFailureDays, "0");
  shared::Texts texts(machine_, state_);
  tray_.ShowFailureNotification(texts.Get(kNotTakenPlace) + std::to_string(days) + " day(s). " +
                                texts.Get(kDoYouWantTo));
}

void DailyStep::StoreNextDate() {
  shared::ProfileStore profile(machine_, state_);
  const platform::LocalTime now = machine_.clock.Now();
  const shared::Day tomorrow = shared::Tomorrow(shared::DayOf(now));
  profile.WriteUserNameProfile(shared::keys::kTrayIconDay, std::to_string(tomorrow.day));
  profile.WriteUserNameProfile(shared::keys::kTrayIconMonth, std::to_string(tomorrow.month));
  profile.WriteUserNameProfile(shared::keys::kTrayIconYear, std::to_string(tomorrow.year));
  profile.WriteUserNameProfile(shared::keys::kTrayIconHour, std::to_string(now.hour));
  profile.WriteUserNameProfile(shared::keys::kTrayIconMinute, std::to_string(now.minute));
}

}  // namespace agent
