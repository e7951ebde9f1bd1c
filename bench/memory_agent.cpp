#include "bench/memory_agent.h"

#include <cstdio>

#include "shared/file_names.h"

namespace bench {
namespace {

constexpr char kSchedule[] =
    "0\r\n1\b\btventbkupjob\b\b03-02-2024 20:00:00\b\b03-01-2024 09:00:00\b\b3\b\b1\b\b"
    "someone@example.com;\b\b1\b\b0\b\b202403022000\b\b6\b\b1111111\r\n";

}  // namespace

bool StartIdle(agent::testing::InstalledAgent& agent) {
  agent.PutUserFile(shared::files::kScheduleData, kSchedule);
  if (agent.Start()) return true;
  std::fputs("the agent in memory does not start\n", stderr);
  return false;
}

}  // namespace bench
