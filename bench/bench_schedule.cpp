// Loading a schedule and choosing the earliest job, by the number of records: it must stay linear.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <iterator>
#include <map>
#include <string>

#include "bench/measure.h"
#include "platform/memory/machine.h"
#include "schedule/record_store.h"
#include "shared/agent_state.h"

namespace {

constexpr char kSecondsPerRecord[] = "s/record";
constexpr const char* kSizes[] = {"10", "1000", "100000"};  // as the framework tells them

// A file of that many records, the earliest in the middle.
std::string MakeSchedule(int records) {
  std::string text = "0\r\n";
  for (int number = 0; number < records; ++number) {
    const int distance = number > records / 2 ? number - records / 2 : records / 2 - number;
    const std::string key = std::to_string(202403010000 + distance);
    text += std::to_string(number) +
            "\b\btventbkupjob\b\b03-02-2024 20:00:00\b\b03-01-2024 09:00:00\b\b3\b\b1\b\b"
            "someone@example.com;\b\b1\b\b0\b\b" +
            key + "\b\b6\b\b1111111\r\n";
  }
  return text;
}

void LoadAndChoose(benchmark::State& run) {
  const int records = static_cast<int>(run.range(0));
  platform::memory::Machine machine;
  shared::AgentState state;
  state.InstallFolder = "C:\\Sorvane";
  state.ProductFolder = "SorvaneE";
  state.CurrentUser = "ann";
  machine.files().Put("C:\\Sorvane\\SorvaneEann\\scheduleData.txt", MakeSchedule(records));
  schedule::RecordStore store(machine.platform(), state);
  for (auto _ : run) {
    const auto earliest = store.ReadScheduleTable();
    if (earliest != static_cast<std::size_t>(records / 2)) {
      run.SkipWithError("another record than the earliest was chosen");
      return;
    }
  }
  run.counters[kSecondsPerRecord] = benchmark::Counter(
      records, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(LoadAndChoose)->Arg(10)->Arg(1000)->Arg(100000);

// Keeps the time for one record at each size beside the usual report.
class Measures : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      const auto found = run.counters.find(kSecondsPerRecord);
      if (found == run.counters.end()) continue;
      times_[run.run_name.args] = found->second.value;
    }
    ConsoleReporter::ReportRuns(runs);
  }

  void Print() const {
    for (const char* const size : kSizes) {
      std::printf("schedule load and choice, %s records: %.1f ns a record\n", size, Time(size));
    }
    constexpr double kBar = 1.5;
    const double growth = Time("1000") > 0 ? Time("100000") / Time("1000") : 0;
    bench::PrintMeasure("schedule_linear", growth, kBar);
  }

  bool Complete() const { return times_.size() == std::size(kSizes); }

 private:
  // Nanoseconds; 0 when it was not measured.
  double Time(const std::string& size) const {
    const auto found = times_.find(size);
    return found == times_.end() ? 0 : found->second * 1e9;
  }

  std::map<std::string, double> times_;
};

}  // namespace

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  Measures measures;
  benchmark::RunSpecifiedBenchmarks(&measures);
  measures.Print();
  // Not measured is a failure; a slow result is not.
  return measures.Complete() ? 0 : 1;
}
