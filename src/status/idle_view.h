// The idle face of the status window: account, quota, outcome and next run, and which face is
// shown.
//
// Rules only: they change a view and a memory and list what is to be written, in order. What stays
// unmentioned stays as it is shown.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "status/schedule_texts.h"
#include "status/status_effects.h"
#include "status/status_snapshot.h"
#include "status/status_view.h"

namespace status {

// Sizes of the status line's type.
inline constexpr int kOrdinaryPoints = 10;
inline constexpr int kSmallPoints = 9;  // and the ordinary one in large fonts
inline constexpr int kSmallestPoints = 8;

using ReadIdle = std::function<IdleSnapshot()>;

class IdleView {
 public:
  // `read` gives the files as they stand; it is called once, when a rule first needs them. All
  // references must outlive the rules.
  IdleView(StatusView& view, StatusMemory& memory, StatusEffects& effects, ReadIdle read,
           const StatusContext& context, ScheduleTexts& schedule);

  // Everything the window shows of a user at rest: status line, next-run line and quota row. Leaves
  // them alone without scheduleData.txt, unless the status line would stay blank.
  void GetNextTransferTime();

  // Another user: nothing of the former one's stays.
  void ChangeUser();

  // Shows "used out of allowed" and the bar, or hides the row while the quota is unknown.
  void QuotaRow();

  // Nobody is logged in.
  void LoggedOut();

  // `user` is logged in, perhaps again.
  void LoggedIn(std::string_view user);

  // The slow tick's decision, see the steps inside.
  void Periodic(const TransferSnapshot& transfer);

  // The same when the window is loaded: with its own trace lines, and with the settings that are
  // read once. `desktop_notification` is that value of BackupStatus.
  void Load(const TransferSnapshot& transfer, std::string_view desktop_notification);

  // No transfer runs: away from its view, which had emptied the status line and hidden the quota,
  // and from the text of a run that has ended.
  void LeaveTransfer();

  // A transfer that is shown neither here nor by the engine's own window.
  void ShowUnseenTransfer(const TransferSnapshot& transfer);

  // The engine's own window is up: this one gives way to it.
  void GiveWay();

  // Sets the status line in the ordinary size, or in `points`.
  void SetStatusLine(std::string_view text);
  void SetStatusLine(std::string_view text, int points);

 private:
  enum class Occasion { kTick, kLoad };

  void Decide(const TransferSnapshot& transfer);
  void ShowTransfer(const TransferSnapshot& transfer);
  void ShowQuotaExceeded();
  void ShowScheduledJob();
  bool TellsOfAnEndedRun();
  void FillBlankStatusLine();
  void ShowLastJob(const NextRun& next);
  void RefreshOutcome(const NextRun& next);
  void NoScheduleText();
  const std::string& NoScheduleLine();
  void SetOutcome(int points);
  void ShowOutcome(const NextRun& next);
  void NextLine(const NextRun& next);
  void ShowQuotaBar();
  std::string TellTime(const NextRun& next);
  NextRun ReadNextRun();
  bool JobIsRunning();
  bool MessageIsForTheUser();
  int OrdinaryPoints() const;
  bool ShowsAtOnce();
  void TraceOnLoad(std::string_view line);
  const IdleSnapshot& Now();

  StatusView& view_;
  StatusMemory& memory_;
  StatusEffects& effects_;
  ReadIdle read_;
  std::optional<IdleSnapshot> now_;
  const StatusContext& context_;
  ScheduleTexts& schedule_;
  Occasion occasion_ = Occasion::kTick;
};

}  // namespace status
