#include "status/status_texts.h"

#include <array>

#include "shared/convert.h"

namespace status {
namespace {

using shared::TextEntry;

struct TextSlot {
  std::string StatusTexts::*target;
  TextEntry entry;
};

constexpr std::array kSlots = {
    TextSlot{&StatusTexts::no_schedule, {988, "No backup has been scheduled."}},
    TextSlot{&StatusTexts::job_in_progress, {1594, "The scheduled backup job is in progress."}},
    TextSlot{&StatusTexts::next_backup_at, {984, "Your next backup will occur on "}},
    TextSlot{&StatusTexts::next_backup, {1698, "Your next backup"}},
    TextSlot{&StatusTexts::will_occur_on, {1699, "will occur on"}},
    TextSlot{&StatusTexts::out_of, {986, "out of"}},
    TextSlot{&StatusTexts::log_in,
             {989, "Login to the account for which you want to see the status."}},
    TextSlot{
        &StatusTexts::quota_exceeded,
        {814,
         "Your data could not be backed up as you have utilized the allocated quota. Upgrade and "
         "try again."}},
    TextSlot{&StatusTexts::job_canceled,
             {1486,
              "All your files/folders could not be backed up as the scheduled job was manually "
              "canceled."}},
};

constexpr std::uint32_t kScheduleDisabled = 987;

}  // namespace

StatusTexts ReadStatusTexts(shared::Texts& texts, const shared::AgentState& state) {
  StatusTexts result;
  for (const TextSlot& slot : kSlots) result.*slot.target = texts.Get(slot.entry);
  result.quota_exceeded = shared::ReplaceAll(result.quota_exceeded, "Please upgrade", "Upgrade");
  result.schedule_disabled = texts.GetText(kScheduleDisabled);
  if (result.schedule_disabled.empty()) {
    result.schedule_disabled =
        "You have disabled the scheduled backup from the " + state.DisplayName + " tray menu.";
  }
  return result;
}

std::string ScheduledTitle(std::string_view display_name) {
  return std::string(display_name) + " - Scheduled Backup Status";
}

std::string TransferTitle(std::string_view display_name) {
  return std::string(display_name) + " - Status";
}

}  // namespace status
