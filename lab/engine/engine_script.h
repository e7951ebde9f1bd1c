// How the engine of the lab plays: a profile file LabEngine.ini in the installation folder, that
// tests and the demo write. Every value has a default, so the file may be missing.
//
//   [Job]       Files=8          files of a transfer
//               Interval=2000    milliseconds from one file to the next
//               Ending=success   success, or what happens half way: failure, quota, crash, or
//                                freeze (stays, hears nothing and never ends)
//   [Commands]  23=-416,slow 5000,402    one answer for each attempt, the last one repeated
//   [Attempts]  23=2             attempts so far; the engine counts
//
// An answer is a number for RetValue, alone or after one of these words and a blank:
//   slow MS          the answer comes after MS milliseconds
//   redirect PORT ADDRESS   the engine writes its redirection first
// or one of the words `none` (ends without an answer) and `crash` (ends at once, with an error).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "lab/engine/places.h"

namespace lab {

enum class JobEnding { kSuccess, kFailure, kQuotaExceeded, kCrash, kFreeze };

struct JobPlan {
  int files = 8;
  std::uint32_t interval = 2000;  // milliseconds
  JobEnding ending = JobEnding::kSuccess;
};

struct CommandAnswer {
  std::uint32_t delay = 0;  // milliseconds
  bool crash = false;
  std::string redirect_port;  // with the address; both empty without a redirection
  std::string redirect_address;
  std::string return_value;  // empty: nothing is written
};

class EngineScript {
 public:
  EngineScript(const Ports& ports, const Places& places);

  JobPlan Job() const;

  // The answer to this attempt of the command, which is counted.
  CommandAnswer NextAnswer(int command);

 private:
  std::string Read(std::string_view section, std::string_view key) const;

  Ports ports_;
  std::string path_;
};

// One answer in the form told above.
CommandAnswer ParseAnswer(std::string_view text);

}  // namespace lab
