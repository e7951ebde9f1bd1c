// scheduleData.txt as anybody may have written it. Reading changes nothing, and a file that this
// system could have written comes back byte for byte.
#include <string>

#include "fuzz/check.h"
#include "fuzz/lines.h"
#include "platform/memory/machine.h"
#include "schedule/line_file.h"
#include "schedule/record_line.h"
#include "schedule/record_store.h"
#include "schedule/schedule_texts.h"

namespace {

constexpr std::string_view kPath = "C:\\Sorvane\\SorvaneEann\\scheduleData.txt";

// Twelve fields, the second not empty.
bool IsWholeRecord(std::string_view line) {
  std::size_t separators = 0;
  std::string_view rest = line;
  for (std::size_t end = rest.find("\b\b"); end != std::string_view::npos;
       end = rest.find("\b\b")) {
    rest.remove_prefix(end + 2);
    ++separators;
  }
  shared::ScheduleRecord record;
  schedule::SplitRecord(line, record);
  return separators >= 11 && !record.BackupSetName.empty();
}

bool ComesBackWhole(std::string_view text) {
  if (!fuzz::IsWellFormed(text)) return false;
  const auto lines = schedule::LinesOf(text);
  bool whole = lines.size() > 1;
  for (std::size_t at = 1; at < lines.size(); ++at) whole = whole && IsWholeRecord(lines[at]);
  return whole;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::Text(data, size);
  platform::memory::Machine machine;
  machine.journal().Keep(false);
  machine.files().Put(kPath, text);
  shared::AgentState state;
  state.InstallFolder = "C:\\Sorvane";
  state.ProductFolder = "SorvaneE";
  state.CurrentUser = "ann";
  schedule::RecordStore store(machine.platform(), state);

  store.ReadScheduleTable("1");
  schedule::ScheduleTexts(machine.platform(), state).GetScheduleDate();
  const auto earliest = store.ReadScheduleTable();
  fuzz::Check(earliest && *earliest < state.ScheduleTable.size());
  fuzz::Check(state.ScheduleTable.size() == state.ScheduleCount + 1);
  for (std::size_t at = 0; at < state.ScheduleCount; ++at) {
    const shared::ScheduleRecord& record = state.ScheduleTable[at];
    fuzz::Check(record.SortKey >= schedule::kLatestSortKey ||
                record.SortKey >= state.ScheduleTable[*earliest].SortKey);
  }
  fuzz::Check(machine.files().Content(kPath) == text);

  fuzz::Check(store.DB_WriteAllRecord(kPath, schedule::kSaveOfWizard));
  if (ComesBackWhole(text)) fuzz::Check(machine.files().Content(kPath) == text);

  machine.files().Put(kPath, text);
  fuzz::Check(store.DB_DeleteRecord("1", kPath));
  store.DeleteFromList("DEFAULT BACKUPSET");
  return 0;
}
