// One transfer as the engine plays it into the shared files: progress, pause, cancel, outcome.
//
// A job goes on in steps. Between two steps its process sleeps; on the memory machine the same
// steps are events of the virtual time line.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "lab/engine/engine_script.h"
#include "lab/engine/places.h"
#include "lab/engine/schedule_file.h"
#include "platform/clock.h"

namespace lab {

enum class JobKind { kInteractiveBackup = 1, kScheduledBackup = 2, kRestore = 3 };

class TransferJob {
 public:
  // A scheduled job runs the record that is due, or the default set when none is.
  TransferJob(const Ports& ports, const Places& places, platform::Clock& clock, JobKind kind,
              const JobPlan& plan);

  // Does the next piece of work. Returns the milliseconds until the step after it, or nothing when
  // the engine ends.
  std::optional<std::uint32_t> Step();

  // True when the job ended as a process that breaks down.
  bool crashed() const { return phase_ == Phase::kCrashed; }

 private:
  enum class Phase { kStart, kTransfer, kAcknowledge, kFrozen, kOver, kCrashed };
  enum class Outcome { kSuccess, kFailure, kQuotaExceeded, kCancelled };
  struct OutcomeText;

  std::optional<std::uint32_t> Start();
  std::optional<std::uint32_t> Transfer();
  std::optional<std::uint32_t> SecondHalf();
  std::uint32_t Listen();
  std::uint32_t FilePeriod() const;
  std::optional<std::uint32_t> EndWith(Outcome outcome);
  std::optional<std::uint32_t> AwaitAcknowledgement();
  void End(Outcome outcome);

  void MarkScheduleRunning();
  void MoveScheduleOn();
  void WriteProgress();
  void WriteLog(Outcome outcome);
  void WriteOutcome(Outcome outcome);
  void ClearProgress();
  void EndScheduledJob(Outcome outcome);

  bool scheduled() const { return kind_ == JobKind::kScheduledBackup; }
  std::string Status(std::string_view key) const;
  void SetStatus(std::string_view key, std::string_view value);
  void SetProgress(std::string_view key, std::string_view value);
  void SetProgWnd(std::string_view key, std::string_view value);
  void SetStarted(std::string_view value);
  std::string InUserFolder(std::string_view name) const;
  static const OutcomeText& TextOf(Outcome outcome);

  Ports ports_;
  Places places_;
  platform::Clock& clock_;
  JobKind kind_;
  JobPlan plan_;
  std::string user_;
  ScheduleFile schedule_;
  Phase phase_ = Phase::kStart;
  Outcome outcome_ = Outcome::kSuccess;
  std::string record_no_;
  platform::LocalTime started_;
  std::uint64_t started_at_ = 0;
  int files_done_ = 0;
  std::uint32_t until_next_file_ = 0;  // milliseconds
  int waits_left_ = 0;
};

}  // namespace lab
