// What the idle agent asks of its machine in ten minutes, by port.
#include <cstdint>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>

#include "bench/measure.h"
#include "bench/memory_agent.h"

namespace {

constexpr int kMinutes = 10;
constexpr std::uint64_t kMinute = 60'000;  // milliseconds
constexpr double kMostPerMinute = 650;

// All that the two ticks of an idle agent have to ask for: it looks, and changes nothing.
constexpr std::string_view kExpected[] = {
    "clock.Now",
    "events.Pump",
    "files.Exists",
    "processes.Version",
    "processes.WalkModuleNames",
    "processes.WalkModulePaths",
    "profile_files.ReadInt",
    "profile_files.ReadText",
    "registry.Read",
    "services.State",
};

bool IsExpected(std::string_view name) {
  for (const std::string_view expected : kExpected) {
    if (name == expected) return true;
  }
  return false;
}

}  // namespace

int main() {
  agent::testing::InstalledAgent agent;
  if (!bench::StartIdle(agent)) return 1;
  platform::memory::Gate& gate = agent.machine.gate();
  // The first minute has the steps of the day in it.
  agent.machine.Run(kMinute);
  gate.Start();
  agent.machine.Run(kMinutes * kMinute);

  std::map<std::string, double> ports;
  double unexpected = 0;
  for (const auto& [name, count] : gate.counts()) {
    const double per_minute = static_cast<double>(count) / kMinutes;
    std::printf("idle calls, %s: %.1f a minute\n", name.c_str(), per_minute);
    ports[name.substr(0, name.find('.'))] += per_minute;
    if (!IsExpected(name)) unexpected += per_minute;
  }
  for (const auto& [port, per_minute] : ports) {
    std::printf("idle calls, port %s: %.1f a minute\n", port.c_str(), per_minute);
  }
  bench::PrintMeasure("idle_calls_per_minute", static_cast<double>(gate.total()) / kMinutes,
                      kMostPerMinute);
  bench::PrintMeasure("idle_calls_not_expected_per_minute", unexpected, 0);
}
