// Work of the agent against the same port calls made bare.
#pragma once

#include <cstddef>
#include <functional>

#include "bench/recorder.h"

namespace bench {

// Microseconds of one run, undisturbed.
struct Pair {
  double work = 0;
  double bare = 0;
};

// Runs both in turn, so that what disturbs one disturbs the other.
Pair TimeInTurn(int runs, const std::function<void()>& work, const std::function<void()>& bare);

struct Comparison {
  std::size_t calls = 0;  // of the ports, in one run of the work
  Pair times;

  double Ratio() const { return times.work / times.bare; }
};

// Notes the calls of one run of `work`, then runs the work and the bare calls in turn.
Comparison Compare(Recorder& recorder, const std::function<void()>& work);

// Prints both times and the number of calls.
void Tell(const char* what, const Comparison& comparison);

}  // namespace bench
