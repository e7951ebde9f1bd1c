// The heartbeat on the machine in memory: how many ticks a simulation gets through in a second, and
// how often a tick goes to the heap. The ports' own work in memory is part of both.
#include <chrono>
#include <cstdio>

#include "bench/allocations.h"
#include "bench/measure.h"
#include "bench/memory_agent.h"
#include "status/progress_keys.h"

namespace {

constexpr int kTicks = 20'000;
constexpr int kRounds = 5;

struct TickCost {
  double per_second = 0;
  double allocations = 0;  // of one tick
  double bytes = 0;
};

TickCost MeasureTicks(agent::testing::InstalledAgent& agent) {
  agent.Tick();
  TickCost best;
  for (int round = 0; round < kRounds; ++round) {
    const bench::Allocations before = bench::AllocationsSoFar();
    const auto start = std::chrono::steady_clock::now();
    for (int tick = 0; tick < kTicks; ++tick) agent.Tick();
    const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - start;
    const bench::Allocations made = bench::AllocationsSoFar() - before;
    // Other programs can only make a round slower.
    if (kTicks / seconds.count() > best.per_second) best.per_second = kTicks / seconds.count();
    best.allocations = static_cast<double>(made.count) / kTicks;
    best.bytes = static_cast<double>(made.bytes) / kTicks;
  }
  return best;
}

void Tell(const char* what, const TickCost& cost) {
  std::printf("tick in memory, %s: %.0f a second, %.1f allocations of %.0f bytes in all\n", what,
              cost.per_second, cost.allocations, cost.bytes);
}

}  // namespace

int main() {
  agent::testing::InstalledAgent agent;
  if (!bench::StartIdle(agent)) return 1;
  agent.StopTimers();
  const TickCost idle = MeasureTicks(agent);
  Tell("idle", idle);
  agent.PutUserFile(status::kScheduleInfoFile);
  agent.SetStatus(status::kStatus, "1");
  Tell("a running job", MeasureTicks(agent));

  bench::PrintMeasure("memory_ticks_per_second", idle.per_second, 50'000, bench::Bar::kAtLeast);
  bench::PrintMeasure("memory_allocations_per_tick", idle.allocations, 50);
}
