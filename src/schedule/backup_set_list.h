// The list of SQL Server backup sets: a text file of entries, one a line, each a name and behind it
// a value that begins with ";".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace schedule {

// Makes `entries` the lines of the file, none when it is missing. False, with `entries` empty, when
// it cannot be read.
bool ReadBackupSetList(platform::Files& files, std::string_view path,
                       std::vector<std::string>& entries);

// Takes the first entry of that name out of the file, when there is one, and appends `name` and
// `value` at its end. False, with the old file whole, when it cannot be read or written.
bool SaveBackupSet(platform::Files& files, std::string_view path, std::string_view name,
                   std::string_view value);

}  // namespace schedule
