#include "lab/engine/transfer_job.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "lab/engine/moments.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"

namespace lab {

// What the files hold after a job, by its outcome. `DLLStatus` "3" shows as failed, "4" as done.
struct TransferJob::OutcomeText {
  Outcome outcome;
  std::string_view return_value;
  std::string_view end_state;
  std::string_view indicator;  // how the line below is meant
  std::string_view line;       // SchStatus.txt; none is written when empty
  std::string_view log_line;   // in the session log
};

namespace {

using shared::keys::kStarted;

// The agent acknowledges the end within a tick or two; an engine without an agent goes on.
constexpr std::uint32_t kAcknowledgeStep = 500;
constexpr int kAcknowledgeSteps = 40;
// How often a transfer looks for the user's word.
constexpr std::uint32_t kListenStep = 500;
// The engine's own progress window, which exists and stays hidden: the agent's shows the transfer.
constexpr std::string_view kWindowHandle = "131330";
constexpr std::string_view kWindowHidden = "0";
constexpr std::uint32_t kFileBytes = 1500 * 1024;
constexpr std::string_view kSessionFolder = "session";

struct KindNames {
  JobKind kind;
  std::string_view log_head;     // first word of the log's name
  std::string_view count_label;  // in the log
  std::string_view section;      // of the progress file
  std::string_view in_progress;  // its key
};
constexpr KindNames kKinds[] = {
    {JobKind::kInteractiveBackup, "Backup", "Backed up Files", status::kBackupProgressSection,
     status::kBackupInProgress},
    {JobKind::kScheduledBackup, "Scheduled", "Backed up Files", status::kBackupProgressSection,
     status::kBackupInProgress},
    {JobKind::kRestore, "Restore", "Restored Files", status::kRestoreProgressSection,
     status::kRestoreInProgress},
};

const KindNames& NamesOf(JobKind kind) {
  for (const KindNames& names : kKinds) {
    if (names.kind == kind) return names;
  }
  return kKinds[0];
}

std::string ClockText(std::uint64_t milliseconds) {
  char text[32];
  const auto seconds = static_cast<unsigned>(milliseconds / 1000);
  std::snprintf(text, sizeof(text), "%02u:%02u:%02u", seconds / 3600, seconds / 60 % 60,
                seconds % 60);
  return text;
}

std::string CountText(int done, int total) {
  return std::to_string(done) + " of " + std::to_string(total);
}

}  // namespace

const TransferJob::OutcomeText& TransferJob::TextOf(Outcome outcome) {
  static constexpr OutcomeText kTexts[] = {
      {Outcome::kSuccess, "402", "4", "0", "The scheduled backup has been completed.", ""},
      {Outcome::kFailure, "-1", "3", "0", "", "Backup failed"},
      {Outcome::kQuotaExceeded, "-432", "3", "2",
       "Your data could not be backed up as you have utilized the allocated quota. Upgrade and try "
       "again.",
       "Backup failed"},
      {Outcome::kCancelled, "-2", "3", "0", "The scheduled backup has been canceled.",
       "Backup Canceled"},
  };
  for (const OutcomeText& text : kTexts) {
    if (text.outcome == outcome) return text;
  }
  return kTexts[0];
}

TransferJob::TransferJob(const Ports& ports, const Places& places, platform::Clock& clock,
                         JobKind kind, const JobPlan& plan)
    : ports_(ports),
      places_(places),
      clock_(clock),
      kind_(kind),
      plan_(plan),
      user_(kind == JobKind::kScheduledBackup ? DefaultUser(ports, places)
                                              : ActingUser(ports, places)),
      schedule_(ports, places, user_) {}

std::optional<std::uint32_t> TransferJob::Step() {
  switch (phase_) {
    case Phase::kStart:
      return Start();
    case Phase::kTransfer:
      return Transfer();
    case Phase::kAcknowledge:
      return AwaitAcknowledgement();
    case Phase::kFrozen:
      return kListenStep;
    case Phase::kOver:
    case Phase::kCrashed:
      break;
  }
  return std::nullopt;
}

std::optional<std::uint32_t> TransferJob::Start() {
  started_ = clock_.Now();
  started_at_ = clock_.Milliseconds();
  SetStatus(status::kCancel, "0");
  SetProgWnd(status::kProgWndValue, kWindowHandle);
  SetProgWnd(status::kProgWndStatus, kWindowHidden);
  SetProgWnd(status::kProgWndJob, std::to_string(static_cast<int>(kind_)));
  if (scheduled()) {
    SetStatus(status::kRetValue, "");
    MarkScheduleRunning();
    SetStarted("1");
    SetStatus(status::kDllStatus, "1");
  }
  SetProgress(NamesOf(kind_).in_progress, "1");
  phase_ = Phase::kTransfer;
  until_next_file_ = FilePeriod();
  return Listen();
}

void TransferJob::MarkScheduleRunning() {
  const auto due = schedule_.Due(clock_.Now());
  std::string set = "tventbkupjob";
  if (due) {
    record_no_ = (*due)[kRecordNo];
    set = (*due)[kBackupSetName];
  }
  ports_.files.Replace(InUserFolder(shared::files::kScheduleInfo), set + "\r\n");
  schedule_.SetFirstLine(RunningCode(set));
  ports_.files.Remove(InUserFolder(shared::files::kScheduleStatusError));
}

std::optional<std::uint32_t> TransferJob::Transfer() {
  if (Status(status::kCancel) == "1") return EndWith(Outcome::kCancelled);
  if (Status(status::kPaused) == "1") {
    until_next_file_ = 0;
    return kListenStep;
  }
  if (until_next_file_ > 0) return Listen();
  if (files_done_ == plan_.files) return EndWith(Outcome::kSuccess);
  ++files_done_;
  WriteProgress();
  until_next_file_ = FilePeriod();
  return files_done_ * 2 >= plan_.files ? SecondHalf() : Listen();
}

// A job that does not end well does so here.
std::optional<std::uint32_t> TransferJob::SecondHalf() {
  switch (plan_.ending) {
    case JobEnding::kSuccess:
      break;
    case JobEnding::kFailure:
      return EndWith(Outcome::kFailure);
    case JobEnding::kQuotaExceeded:
      return EndWith(Outcome::kQuotaExceeded);
    case JobEnding::kCrash:
      phase_ = Phase::kCrashed;
      return std::nullopt;
    case JobEnding::kFreeze:
      phase_ = Phase::kFrozen;
      return kListenStep;
  }
  return Listen();
}

// The next piece of the wait for the next file.
std::uint32_t TransferJob::Listen() {
  const std::uint32_t step = std::min(until_next_file_, kListenStep);
  until_next_file_ -= step;
  return step;
}

// Milliseconds from one file to the next with the share of the line that the user gives.
std::uint32_t TransferJob::FilePeriod() const {
  const auto setting = [&](std::string_view key) {
    return ports_.profile_files.ReadText(places_.UserNameIni(), shared::sections::kRegistry, key);
  };
  const bool gives_way = setting(shared::keys::kBackupIdle) == "1";
  const std::string text =
      setting(gives_way ? shared::keys::kBandwidthIdleState : shared::keys::kBandwidth);
  const int share = std::clamp(text.empty() ? 100 : std::atoi(text.c_str()), 1, 100);
  return plan_.interval * 100 / static_cast<std::uint32_t>(share);
}

void TransferJob::WriteProgress() {
  const std::uint64_t elapsed = clock_.Milliseconds() - started_at_;
  const auto left = static_cast<std::uint64_t>(plan_.files - files_done_) * plan_.interval;
  SetProgress(status::kFileName,
              "C:\\Data\\Documents\\file " + std::to_string(files_done_) + ".dat");
  SetProgress(status::kFileCount, std::to_string(files_done_));
  SetProgress(status::kPercentage, std::to_string(files_done_ * 100 / plan_.files) + "%");
  SetProgress(status::kTotalProgress, CountText(files_done_, plan_.files) + " files");
  SetProgress(status::kTimeElapsed, ClockText(elapsed));
  SetProgress(status::kEstimatedTime, ClockText(left));
  SetProgress(status::kTransferRate,
              std::to_string(kFileBytes / (plan_.interval + 1)) + " KB/second");
}

std::optional<std::uint32_t> TransferJob::EndWith(Outcome outcome) {
  End(outcome);
  if (phase_ == Phase::kOver) return std::nullopt;
  return kAcknowledgeStep;
}

// The order matters to the agent: when it sees the job ended, everything that it then reads is
// already there.
void TransferJob::End(Outcome outcome) {
  outcome_ = outcome;
  WriteLog(outcome);
  if (scheduled()) {
    MoveScheduleOn();
    WriteOutcome(outcome);
  }
  ClearProgress();
  SetStatus(status::kRetValue, TextOf(outcome).return_value);
  phase_ = Phase::kOver;
  if (scheduled()) EndScheduledJob(outcome);
}

void TransferJob::EndScheduledJob(Outcome outcome) {
  SetStarted("0");
  SetStatus(status::kPaused, "0");
  SetStatus(status::kCancel, "0");
  SetStatus(status::kStatus,
            outcome == Outcome::kCancelled ? status::kStatusStopRequested : status::kStatusIdle);
  SetStatus(status::kStatusWindow, "1");
  // Whoever cancels ends the client soon: there is no time to wait for an answer.
  if (outcome == Outcome::kCancelled)
    return SetStatus(status::kDllStatus, TextOf(outcome).end_state);
  SetStatus(status::kDllStatus, "2");
  phase_ = Phase::kAcknowledge;
  waits_left_ = kAcknowledgeSteps;
}

std::optional<std::uint32_t> TransferJob::AwaitAcknowledgement() {
  if (Status(status::kDllStatus) == "2" && waits_left_-- > 0) return kAcknowledgeStep;
  SetStatus(status::kDllStatus, TextOf(outcome_).end_state);
  phase_ = Phase::kOver;
  return std::nullopt;
}

void TransferJob::MoveScheduleOn() {
  if (schedule_.Exists()) {
    schedule_.MoveOn(record_no_, clock_.Now());
    schedule_.SetFirstLine("0");
  }
  ports_.files.Remove(InUserFolder(shared::files::kScheduleInfo));
}

void TransferJob::WriteOutcome(Outcome outcome) {
  const OutcomeText& text = TextOf(outcome);
  SetStatus(status::kScheduleEndTime, DateTimeText(clock_.Now()));
  SetStatus(status::kMessageIndicator, text.indicator);
  if (text.line.empty()) {
    ports_.files.Remove(InUserFolder(shared::files::kScheduleStatus));
    ports_.files.Replace(InUserFolder(shared::files::kScheduleStatusError), "");
  } else {
    ports_.files.Replace(InUserFolder(shared::files::kScheduleStatus),
                         std::string(text.line) + "\r\n");
  }
}

void TransferJob::WriteLog(Outcome outcome) {
  const KindNames& names = NamesOf(kind_);
  ports_.files.MakeFolder(InUserFolder(kSessionFolder));
  const std::string path = InUserFolder(kSessionFolder) + "\\" + std::string(names.log_head) + " " +
                           LogNameText(started_) + ".txt";
  ports_.files.AppendUtf16Line(path, "Start Time : " + DateTimeText(started_));
  ports_.files.AppendUtf16Line(path, "[" + std::string(names.count_label) + ": " +
                                         CountText(files_done_, plan_.files) + "]");
  if (!TextOf(outcome).log_line.empty()) {
    ports_.files.AppendUtf16Line(path, TextOf(outcome).log_line);
  }
  ports_.files.AppendUtf16Line(path, "End Time : " + DateTimeText(clock_.Now()));
}

void TransferJob::ClearProgress() {
  SetProgress(NamesOf(kind_).in_progress, "0");
  SetProgWnd(status::kProgWndJob, "0");
  SetProgWnd(status::kProgWndValue, "0");
}

std::string TransferJob::Status(std::string_view key) const {
  return ports_.profile_files.ReadText(places_.Profile(user_), status::kBackupStatusSection, key);
}

void TransferJob::SetStatus(std::string_view key, std::string_view value) {
  ports_.profile_files.WriteText(places_.Profile(user_), status::kBackupStatusSection, key, value);
}

void TransferJob::SetProgress(std::string_view key, std::string_view value) {
  ports_.profile_files.WriteText(InUserFolder(status::kProgressFile), NamesOf(kind_).section, key,
                                 value);
}

void TransferJob::SetProgWnd(std::string_view key, std::string_view value) {
  ports_.profile_files.WriteText(InUserFolder(status::kProgressFile), status::kProgWndSection, key,
                                 value);
}

void TransferJob::SetStarted(std::string_view value) {
  ports_.profile_files.WriteText(places_.UserNameIni(), shared::sections::kTolvex, kStarted, value);
}

std::string TransferJob::InUserFolder(std::string_view name) const {
  return places_.InUserFolder(user_, name);
}

}  // namespace lab
