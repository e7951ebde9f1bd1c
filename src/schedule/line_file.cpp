#include "schedule/line_file.h"

#include "shared/text_file.h"

namespace schedule {

std::optional<std::string> ReadIfThere(platform::Files& files, std::string_view path) {
  if (auto text = files.Read(path)) return text;
  if (files.Exists(path)) return std::nullopt;
  return std::string();
}

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) lines.emplace_back(shared::TakeLine(text));
  return lines;
}

bool WriteLines(platform::Files& files, std::string_view path, std::span<const std::string> lines) {
  std::string text;
  for (const std::string& line : lines) text.append(line).append(kLineEnd);
  return files.Replace(path, text);
}

}  // namespace schedule
