// Work of the agent against the same port calls made bare.
#pragma once

#include <cstddef>
#include <functional>

#include "bench/recorder.h"

namespace bench {

struct Comparison {
  std::size_t calls = 0;  // of the ports, in one run of the work
  double work = 0;        // microseconds, undisturbed
  double bare = 0;

  double Ratio() const { return bare > 0 ? work / bare : 0; }
};

// Notes the calls of one run of `work`, then runs the work and the bare calls in turn.
Comparison Compare(Recorder& recorder, const std::function<void()>& work);

// Prints both times and the number of calls.
void Tell(const char* what, const Comparison& comparison);

}  // namespace bench
