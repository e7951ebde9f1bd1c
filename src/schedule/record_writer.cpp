#include "schedule/record_writer.h"

#include <algorithm>
#include <optional>
#include <string>

#include "schedule/job_kinds.h"
#include "schedule/line_file.h"
#include "schedule/record_line.h"
#include "schedule/record_reader.h"
#include "schedule/record_store.h"
#include "shared/text_file.h"

namespace schedule {
namespace {

using FirstLine = WriterPolicy::FirstLine;
using Records = WriterPolicy::Records;

// The first line to write; nothing when the old one cannot be read.
std::optional<std::string> NewFirstLine(platform::Files& files, const shared::AgentState& state,
                                        std::string_view path, FirstLine rule) {
  if (rule == FirstLine::kReset) return std::string(kNoJobCode);
  if (rule == FirstLine::kKeep) return Readfirstline(files, state, path);
  const auto text = ReadIfThere(files, path);
  if (!text) return std::nullopt;
  const std::string_view first = shared::LineOf(*text, 0);
  return std::string(first.empty() ? kNoJobCode : first);
}

}  // namespace

bool RecordStore::DB_WriteAllRecord(std::string_view path, const WriterPolicy& policy) {
  // 1. and 2. A missing file is made by the write itself, so that a write that fails leaves none.
  const auto first = NewFirstLine(machine_.files, state_, path, policy.first_line);
  if (!first) return false;
  // 3.
  std::string text = *first;
  text += kLineEnd;
  // 4.
  const bool first_only = policy.records == Records::kFirstOnly;
  if (first_only) state_.ScheduleCount = 1;
  const std::size_t records = std::min(state_.ScheduleCount, state_.ScheduleTable.size());
  bool any = false;
  for (std::size_t at = 0; at < records; ++at) {
    const shared::ScheduleRecord& record = state_.ScheduleTable[at];
    if (!first_only && record.BackupSetName.empty()) continue;
    text.append(JoinRecord(record)).append(kLineEnd);
    any = true;
  }
  // 5. A schedule with nothing left has no file at all, not one with only a first line.
  if (!any) return machine_.files.Remove(path) || !machine_.files.Exists(path);
  return machine_.files.Replace(path, text);
}

}  // namespace schedule
