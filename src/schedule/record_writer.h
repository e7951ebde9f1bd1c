// The three ways in which scheduleData.txt is rewritten, as one body and what differs.
#pragma once

#include <string_view>

namespace schedule {

struct WriterPolicy {
  // What becomes of the first line, the engine's code of the running job.
  enum class FirstLine {
    kKeep,         // as it stands, also when it is empty
    kReset,        // no job runs
    kKeepOrReset,  // as it stands; no job runs when it is empty or there is no file yet
  };
  // Which records go to the file.
  enum class Records {
    kNamed,      // those of the table that are not deleted; without any the file is removed
    kFirstOnly,  // the first of the table and no other
  };
  FirstLine first_line;
  Records records;
};

// The wizard: the engine may run a job while the user saves.
inline constexpr WriterPolicy kSaveOfWizard{WriterPolicy::FirstLine::kKeep,
                                            WriterPolicy::Records::kNamed};
// The list of jobs deletes: it refuses to while a job runs.
inline constexpr WriterPolicy kDeleteOfList{WriterPolicy::FirstLine::kReset,
                                            WriterPolicy::Records::kNamed};
// The default schedule of a new user replaces whatever was there.
inline constexpr WriterPolicy kDefaultSchedule{WriterPolicy::FirstLine::kKeepOrReset,
                                               WriterPolicy::Records::kFirstOnly};

}  // namespace schedule
