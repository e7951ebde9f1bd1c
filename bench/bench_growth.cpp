// What the agent keeps after many ticks, and after its status window was opened and closed many
// times: handles, GDI and USER objects by the count of their owners.
//
// At each `checkpoint NAME` that it prints, it waits for a line of input: private_memory.py reads
// the host's accounting of this process meanwhile.
#include <cstdint>
#include <cstdio>
#include <functional>
#include <string>

#include "bench/measure.h"
#include "bench/real_agent.h"
#include "platform/win32/handle_balance.h"

namespace {

using platform::win32::ObjectKind;

constexpr int kTicks = 2'000;
constexpr int kOpenings = 1'000;
constexpr int kWarmUps = 100;

struct CountedKind {
  ObjectKind kind;
  const char* name;
};
constexpr CountedKind kKinds[] = {
    {ObjectKind::kHandle, "handles"}, {ObjectKind::kGdi, "gdi"}, {ObjectKind::kUser, "user"}};

std::uint64_t Outstanding(ObjectKind kind) {
  return platform::win32::CountOf(kind).Outstanding();
}

void Checkpoint(const std::string& name) {
  std::printf("checkpoint %s\n", name.c_str());
  std::fflush(stdout);
  while (const int character = std::getchar()) {
    if (character == '\n' || character == EOF) return;
  }
}

void Repeat(int times, const std::function<void()>& work) {
  for (int time = 0; time < times; ++time) work();
}

void MeasureGrowth(const std::string& name, int times, const std::function<void()>& work) {
  Repeat(kWarmUps, work);
  std::uint64_t before[platform::win32::kObjectKinds] = {};
  for (const CountedKind& kind : kKinds) {
    before[static_cast<std::size_t>(kind.kind)] = Outstanding(kind.kind);
  }
  Checkpoint(name + " before");
  Repeat(times, work);
  Checkpoint(name + " after");
  for (const CountedKind& kind : kKinds) {
    const std::uint64_t created = platform::win32::CountOf(kind.kind).created;
    const auto growth = static_cast<std::int64_t>(Outstanding(kind.kind) -
                                                  before[static_cast<std::size_t>(kind.kind)]);
    std::printf("%s, %d times: %llu %s outstanding, %llu made since the start\n", name.c_str(),
                times, static_cast<unsigned long long>(Outstanding(kind.kind)), kind.name,
                static_cast<unsigned long long>(created));
    bench::PrintMeasure((name + "_growth_" + kind.name).c_str(), static_cast<double>(growth), 0);
  }
}

}  // namespace

int main() {
  bench::RealAgent real;
  if (!real.Start()) return 1;
  agent::frmTVWinService& form = real.agent().form();
  MeasureGrowth("ticks", kTicks, [&] { form.tick().TrayTick(); });
  MeasureGrowth("status_window", kOpenings, [&] {
    form.commands().OpenStatusWindow();
    real.platform().events.Pump();
    form.commands().CloseStatusWindow();
    real.platform().events.Pump();
  });
}
