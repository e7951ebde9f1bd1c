#include "schedule/mail_list.h"

#include <set>

#include "schedule/line_file.h"
#include "shared/convert.h"

namespace schedule {

bool ReadMailList(platform::Files& files, std::vector<std::string>& addresses,
                  std::string_view path) {
  const auto text = ReadIfThere(files, path);
  if (!text) return false;
  for (std::string& line : LinesOf(*text)) {
    if (!shared::Trim(line).empty()) addresses.push_back(std::move(line));
  }
  return true;
}

bool WriteMailList(platform::Files& files, std::span<const std::string> addresses,
                   std::string_view path) {
  std::vector<std::string> all;
  if (!ReadMailList(files, all, path)) return false;
  std::set<std::string> known(all.begin(), all.end());
  for (const std::string& address : addresses) {
    if (known.insert(address).second) all.push_back(address);
  }
  return WriteLines(files, path, all);
}

}  // namespace schedule
