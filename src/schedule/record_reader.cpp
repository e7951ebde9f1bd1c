#include "schedule/record_reader.h"

#include <algorithm>
#include <array>

#include "schedule/line_file.h"
#include "shared/text_file.h"
#include "status/schedule_texts.h"

namespace schedule {
namespace {

using shared::TakeLine;

// First lines under which single records are looked for. "5" is not among them.
constexpr std::array<std::string_view, 5> kSearchedCodes = {"0", "1", "2", "3", "4"};

bool FindLine(std::string_view rest, std::string_view record_no, std::vector<std::string>& lines) {
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    const std::size_t end = line.find(status::kFieldSeparator);
    if (end == std::string_view::npos || line.substr(0, end) != record_no) continue;
    if (!lines.empty()) lines.front() = line;
    return true;
  }
  return false;
}

bool StoreLines(std::string_view rest, std::vector<std::string>& lines) {
  const bool any = !rest.empty() && !lines.empty();
  for (std::size_t at = 0; at < lines.size() && !rest.empty(); ++at) lines[at] = TakeLine(rest);
  return any;
}

}  // namespace

std::optional<std::size_t> CountScheduleRecords(platform::Files& files, std::string_view path) {
  const auto text = ReadIfThere(files, path);
  if (!text) return std::nullopt;
  std::string_view rest = *text;
  TakeLine(rest);
  std::size_t count = 0;
  for (; !rest.empty(); ++count) TakeLine(rest);
  return count;
}

std::optional<bool> ReadScheduleLines(platform::Files& files, const shared::AgentState& state,
                                      std::string_view record_no, std::string_view path,
                                      std::vector<std::string>& lines) {
  // 1.
  const auto text = ReadIfThere(files, path);
  if (!text) return std::nullopt;
  std::string_view rest = *text;
  const std::string_view first =
      path == state.ScheduleFilePath ? TakeLine(rest) : std::string_view();
  // 2.
  if (!record_no.empty()) {
    const bool searched = std::ranges::find(kSearchedCodes, first) != kSearchedCodes.end();
    return searched && FindLine(rest, record_no, lines);
  }
  // 3.
  return StoreLines(rest, lines);
}

std::optional<std::string> Readfirstline(platform::Files& files, const shared::AgentState& state,
                                         std::string_view path) {
  const auto text = ReadIfThere(files, path);
  if (!text) return std::nullopt;
  return path == state.ScheduleFilePath ? std::string(shared::LineOf(*text, 0)) : std::string();
}

}  // namespace schedule
