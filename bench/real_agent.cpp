#include "bench/real_agent.h"

#include <cstdio>

namespace bench {

bool RealAgent::Start() {
  if (agent_.Main() && !agent_.state().CurrentUser.empty()) return true;
  std::fputs("the agent does not start: is this folder an installation, and somebody logged in?\n",
             stderr);
  return false;
}

}  // namespace bench
