#include "lab/engine/schedule_file.h"

#include "lab/engine/moments.h"
#include "shared/file_names.h"

namespace lab {
namespace {

constexpr std::string_view kSeparator = "\b\b";
constexpr std::string_view kLineEnd = "\r\n";

struct SetCode {
  std::string_view set;
  std::string_view code;
};
constexpr SetCode kCodes[] = {
    {"tventbkupjob", "1"},   {"SQLSERVERBACKUP", "2"},     {"SYSTEMSTATEBACKUP", "3"},
    {"EXCHANGEBACKUP", "4"}, {"EXCHANGEBRICKBACKUP", "5"},
};

// Minutes from one run to the next by frequency; a frequency that is not here runs once.
struct Frequency {
  std::string_view code;
  std::int64_t minutes;
};
constexpr std::int64_t kHour = 60;
constexpr std::int64_t kDay = 24 * kHour;
constexpr Frequency kFrequencies[] = {
    {"2", kHour}, {"3", kDay}, {"5", 30 * kDay}, {"6", kDay}, {"7", 7 * kDay},
};

std::int64_t MinutesBetweenRuns(std::string_view code) {
  for (const Frequency& frequency : kFrequencies) {
    if (frequency.code == code) return frequency.minutes;
  }
  return 0;
}

void PutOff(ScheduleLine& record, const platform::LocalTime& now, std::int64_t minutes) {
  auto next = ParseDateTime(record[kStartDateTime]);
  if (!next) return;
  while (*next <= now) *next = AddMinutes(*next, minutes);
  record[kStartDateTime] = DateTimeText(*next);
  record[kSortKey] = SortKeyText(*next);
}

}  // namespace

ScheduleLine SplitScheduleLine(std::string_view line) {
  ScheduleLine fields;
  for (std::size_t end; (end = line.find(kSeparator)) != std::string_view::npos;) {
    fields.emplace_back(line.substr(0, end));
    line.remove_prefix(end + kSeparator.size());
  }
  fields.emplace_back(line);
  fields.resize(kScheduleFields);
  return fields;
}

std::string JoinScheduleLine(const ScheduleLine& fields) {
  std::string line = fields.front();
  for (std::size_t i = 1; i < fields.size(); ++i) {
    line += kSeparator;
    line += fields[i];
  }
  return line;
}

std::string_view RunningCode(std::string_view backup_set) {
  for (const SetCode& entry : kCodes) {
    if (entry.set == backup_set) return entry.code;
  }
  return kCodes[0].code;
}

ScheduleFile::ScheduleFile(const Ports& ports, const Places& places, std::string_view user)
    : ports_(ports), path_(places.InUserFolder(user, shared::files::kScheduleData)) {}

bool ScheduleFile::Exists() const {
  return ports_.files.Exists(path_);
}

std::vector<std::string> ScheduleFile::Lines() const {
  std::vector<std::string> lines;
  const std::string text = ports_.files.Read(path_).value_or("");
  std::string_view rest = text;
  while (!rest.empty()) {
    const std::size_t end = rest.find('\n');
    std::string_view line = rest.substr(0, end);
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.emplace_back(line);
  }
  return lines;
}

void ScheduleFile::Write(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) {
    text += line;
    text += kLineEnd;
  }
  ports_.files.Replace(path_, text);
}

std::string ScheduleFile::FirstLine() const {
  const auto lines = Lines();
  return lines.empty() ? "" : lines.front();
}

void ScheduleFile::SetFirstLine(std::string_view code) {
  auto lines = Lines();
  if (lines.empty()) return;
  lines.front() = code;
  Write(lines);
}

std::optional<ScheduleLine> ScheduleFile::Due(const platform::LocalTime& now) const {
  const auto lines = Lines();
  if (lines.size() < 2 || !(lines.front() == "0" || lines.front().empty())) return std::nullopt;
  std::optional<ScheduleLine> earliest;
  for (std::size_t i = 1; i < lines.size(); ++i) {
    ScheduleLine record = SplitScheduleLine(lines[i]);
    if (!earliest || record[kSortKey] < (*earliest)[kSortKey]) earliest = std::move(record);
  }
  if ((*earliest)[kSortKey] > SortKeyText(now)) return std::nullopt;
  return earliest;
}

void ScheduleFile::MoveOn(std::string_view record_no, const platform::LocalTime& now) {
  const auto lines = Lines();
  std::vector<std::string> kept;
  for (const std::string& line : lines) {
    ScheduleLine record = SplitScheduleLine(line);
    if (kept.empty() || record[kRecordNo] != record_no) {
      kept.push_back(line);
      continue;
    }
    const std::int64_t minutes = MinutesBetweenRuns(record[kFrequencyCode]);
    if (minutes == 0) continue;
    PutOff(record, now, minutes);
    kept.push_back(JoinScheduleLine(record));
  }
  Write(kept);
}

}  // namespace lab
