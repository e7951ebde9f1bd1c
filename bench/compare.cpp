#include "bench/compare.h"

#include <windows.h>

#include <cstdio>
#include <vector>

#include "bench/measure.h"

namespace bench {
namespace {

constexpr int kWarmUps = 20;
constexpr int kRuns = 400;

double MicrosecondsOf(const std::function<void()>& work) {
  LARGE_INTEGER frequency, start, end;
  QueryPerformanceFrequency(&frequency);
  QueryPerformanceCounter(&start);
  work();
  QueryPerformanceCounter(&end);
  return 1e6 * static_cast<double>(end.QuadPart - start.QuadPart) /
         static_cast<double>(frequency.QuadPart);
}

}  // namespace

Pair TimeInTurn(int runs, const std::function<void()>& work, const std::function<void()>& bare) {
  std::vector<double> work_times, bare_times;
  for (int run = 0; run < runs; ++run) {
    // Neither is always the one that comes after the other.
    if (run % 2 == 0) work_times.push_back(MicrosecondsOf(work));
    bare_times.push_back(MicrosecondsOf(bare));
    if (run % 2 != 0) work_times.push_back(MicrosecondsOf(work));
  }
  return {Undisturbed(work_times), Undisturbed(bare_times)};
}

Comparison Compare(Recorder& recorder, const std::function<void()>& work) {
  for (int run = 0; run < kWarmUps; ++run) work();
  recorder.Start();
  work();
  recorder.Stop();
  return {recorder.Count(), TimeInTurn(kRuns, work, [&recorder] { recorder.Replay(); })};
}

void Tell(const char* what, const Comparison& comparison) {
  std::printf("%s: %.1f us, its %zu port calls bare %.1f us\n", what, comparison.times.work,
              comparison.calls, comparison.times.bare);
}

}  // namespace bench
