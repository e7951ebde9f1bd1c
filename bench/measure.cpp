#include "bench/measure.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace bench {
namespace {

double Rounded(double value) {
  return std::round(value * 1000) / 1000;
}

}  // namespace

void PrintMeasure(const char* name, double value, double bar, Bar kind) {
  const bool holds = kind == Bar::kAtMost ? value <= bar : value >= bar;
  std::printf("measure %s %.15g %.15g %s\n", name, Rounded(value), bar, holds ? "ok" : "missed");
  std::fflush(stdout);
}

double Undisturbed(std::vector<double> samples) {
  if (samples.empty()) return 0;
  const auto tenth = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 10);
  std::nth_element(samples.begin(), tenth, samples.end());
  return *tenth;
}

}  // namespace bench
