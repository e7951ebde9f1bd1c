#include "schedule/backup_set_list.h"

#include <algorithm>

#include "schedule/line_file.h"

namespace schedule {

bool ReadBackupSetList(platform::Files& files, std::string_view path,
                       std::vector<std::string>& entries) {
  entries.clear();
  const auto text = ReadIfThere(files, path);
  if (!text) return false;
  entries = LinesOf(*text);
  return true;
}

bool SaveBackupSet(platform::Files& files, std::string_view path, std::string_view name,
                   std::string_view value) {
  std::vector<std::string> entries;
  if (!ReadBackupSetList(files, path, entries)) return false;
  const auto old = std::ranges::find_if(
      entries, [&](std::string_view entry) { return entry.substr(0, entry.find(';')) == name; });
  if (old != entries.end()) entries.erase(old);
  entries.push_back(std::string(name).append(value));
  return WriteLines(files, path, entries);
}

}  // namespace schedule
