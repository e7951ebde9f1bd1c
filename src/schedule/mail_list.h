// Mailid.txt: the addresses that the wizard offers, one a line, without a header.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace schedule {

// Adds each line of the file that is not blank to `addresses`, as it stands. False, with
// `addresses` as it was, when the file is there and cannot be read.
bool ReadMailList(platform::Files& files, std::vector<std::string>& addresses,
                  std::string_view path);

// Makes the file hold its own addresses and behind them those of `addresses` that it lacks, so that
// addresses gather there. False, with the old file whole, when it cannot be read or written.
bool WriteMailList(platform::Files& files, std::span<const std::string> addresses,
                   std::string_view path);

}  // namespace schedule
