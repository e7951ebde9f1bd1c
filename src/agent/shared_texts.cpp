#include "agent/shared_texts.h"

#include "shared/convert.h"

namespace agent {
namespace {

struct SharedText {
  std::string SharedTexts::*field;
  shared::TextEntry entry;
};

// The library has no string 0: such a text is always its literal.
constexpr std::uint32_t kNoNumber = 0;

constexpr SharedText kSharedTexts[] = {
    {&SharedTexts::status, {1440, "Status"}},
    {&SharedTexts::help, {kNoNumber, "Help"}},
    {&SharedTexts::disable_automatic_backup, {kNoNumber, "Disable Automatic Backup"}},
    {&SharedTexts::login, {577, "Login"}},
    {&SharedTexts::quota_exceeded, {463, "Quota Exceeded. Upgrade Now!"}},
    {&SharedTexts::scheduled_in_progress, {1594, "The scheduled backup job is in progress."}},
    {&SharedTexts::no_schedule, {988, "No backup has been scheduled."}},
    {&SharedTexts::continuous_running, {1620, "Continuous Backup is in progress"}},
    {&SharedTexts::continuous_failed, {1621, "Continuous Backup has failed"}},
    {&SharedTexts::continuous_cancelled, {1622, "CDP Backup canceled by user"}},
    {&SharedTexts::continuous_enabling, {969, "Enabling the Continuous Data Backup operation."}},
    {&SharedTexts::continuous_disabling, {970, "Disabling the Continuous Data Backup operation."}},
    {&SharedTexts::path_too_long,
     {997, "Listed are files that could not be backed up as the file path is too long."}},
};

constexpr std::uint32_t kScheduleDisabled = 987;

}  // namespace

void LoadTexts(shared::Texts& texts, SharedTexts& loaded) {
  for (const SharedText& row : kSharedTexts) {
    const bool numbered = row.entry.id != kNoNumber;
    loaded.*row.field = numbered ? texts.Get(row.entry) : std::string(row.entry.literal);
  }
}

std::string ScheduleDisabledText(shared::Texts& texts, const shared::AgentState& state) {
  const std::string text = texts.GetText(kScheduleDisabled);
  if (!text.empty()) return shared::ReplaceAll(text, "Sorvane", state.ProductName);
  return "You have disabled the scheduled backup from the " + state.DisplayName + " tray menu.";
}

}  // namespace agent
