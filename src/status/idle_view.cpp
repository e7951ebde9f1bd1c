#include "status/idle_view.h"

#include <utility>

#include "status/next_line.h"
#include "status/progress_keys.h"
#include "status/quota_bar.h"
#include "status/size_text.h"
#include "status/transfer_view.h"

namespace status {

IdleView::IdleView(StatusView& view, StatusMemory& memory, StatusEffects& effects, ReadIdle read,
                   const StatusContext& context, ScheduleTexts& schedule)
    : view_(view),
      memory_(memory),
      effects_(effects),
      read_(std::move(read)),
      context_(context),
      schedule_(schedule) {}

void IdleView::GetNextTransferTime() {
  // 1.
  view_.user_name = Now().user;
  memory_.idle_user = Now().user;
  // 2.
  if (!Now().has_schedule) return FillBlankStatusLine();
  if (!Now().schedule_read) {
    // The earlier text stays; where there is none, the next slow tick tries again.
    if (view_.status_line.empty()) memory_.idle_user.clear();
    return;
  }
  const NextRun next = ReadNextRun();
  // 3.
  if (StartTimeField(next.line).empty()) {
    // 6.
    QuotaRow();
    return FillBlankStatusLine();
  }
  // 4.
  SetStatusLine(TellTime(next));
  // 5.
  if (Now().schedule_disabled) {
    SetStatusLine(context_.texts.schedule_disabled);
  } else {
    NextLine(next);
  }
  // 6.
  QuotaRow();
}

void IdleView::ChangeUser() {
  SetStatusLine("");
  view_.next_line.clear();
  GetNextTransferTime();
}

// Without a next run there is no time to tell: what the slow tick would say is said at once.
void IdleView::FillBlankStatusLine() {
  if (!view_.status_line.empty() || Now().user.empty()) return;
  if (JobIsRunning()) return ShowScheduledJob();
  view_.next_line.clear();
  view_.next_line_shown = Now().has_schedule;
  QuotaRow();
  if (view_.status_line.empty()) SetStatusLine(NoScheduleLine());
}

void IdleView::QuotaRow() {
  // 1. The snapshot holds the second reading where the first gave nothing.
  // 2., 3.
  const bool known = Now().quota.used >= 0;
  view_.quota_text_shown = known;
  view_.space_label_shown = known;
  view_.quota_bar_shown = known;
  if (!known) return;
  view_.quota_text = FormatSizeText(Now().quota.used, Now().decimal_separator) + " " +
                     context_.texts.out_of + " " +
                     FormatSizeText(Now().quota.max, Now().decimal_separator);
  // 4.
  ShowQuotaBar();
}

void IdleView::ShowQuotaBar() {
  const QuotaBar bar = ComputeQuotaBar(Now().quota.used, Now().quota.max);
  view_.quota_bar = bar.position;
  view_.quota_colour = bar.colour;
  if (bar.exceeded) {
    SetStatusLine(kQuotaExceededTwoLines, kSmallPoints);
  } else if (Now().ret_value == "-432" && Now().quota.used < Now().quota.max) {
    // The engine said "exceeded", the figures say otherwise: they are stale.
    effects_.RefreshQuota();
    SetStatusLine(context_.texts.quota_exceeded);
  }
}

void IdleView::NextLine(const NextRun& next) {
  view_.next_line = NextLineText(next, Now().short_date, context_.texts);
  view_.next_line_shown = true;
}

// An outcome that cannot be read leaves the earlier text.
void IdleView::SetOutcome(int points) {
  if (Now().outcome) SetStatusLine(*Now().outcome, points);
}

void IdleView::ShowOutcome(const NextRun& next) {
  SetOutcome(kSmallPoints);
  NextLine(next);
}

void IdleView::NoScheduleText() {
  if (Now().schedule_disabled) TraceOnLoad("   [INFORMATION] Form-Load: Scheduler is disabled");
  SetStatusLine(NoScheduleLine());
}

const std::string& IdleView::NoScheduleLine() {
  if (Now().schedule_disabled) return context_.texts.schedule_disabled;
  const std::optional<std::string>& outcome = Now().outcome;
  if (MessageIsForTheUser() && outcome && !outcome->empty()) return *outcome;
  return context_.texts.no_schedule;
}

bool IdleView::MessageIsForTheUser() {
  return Now().indicator == kIndicatorQuota || Now().indicator == kIndicatorAccount;
}

void IdleView::LoggedOut() {
  SetStatusLine(context_.texts.log_in, kSmallPoints);
  view_.notification_shown = false;
  view_.user_label_shown = false;
  view_.space_label_shown = false;
  view_.quota_bar_shown = false;
  view_.user_name.clear();
  memory_.user.clear();
  memory_.idle_user.clear();
  view_.quota_text.clear();
  view_.next_line.clear();
  view_.log_enabled = false;
  view_.transfer_shown = false;
  // Both timers stay on, so that a later login is noticed.
  view_.slow_timer = true;
  view_.fast_timer = true;
}

void IdleView::LoggedIn(std::string_view user) {
  view_.user_name = user;
  if (view_.user_label_shown) return;
  view_.user_label_shown = true;
  view_.notification_shown = true;
  view_.log_enabled = true;
}

void IdleView::GiveWay() {
  SetStatusLine("");
  effects_.Trace("Backup or restore progress is shown so unload status window");
  effects_.GiveWay();
}

void IdleView::LeaveTransfer() {
  const bool was_shown = std::exchange(view_.transfer_shown, false);
  const bool left_blank = was_shown && view_.status_line.empty();
  if (!left_blank && !TellsOfAnEndedRun()) return;
  if (view_.status_line == context_.texts.job_in_progress) view_.log_enabled = true;
  SetStatusLine("");
  GetNextTransferTime();
}

bool IdleView::TellsOfAnEndedRun() {
  const std::string& line = view_.status_line;
  const std::string& in_progress = context_.texts.job_in_progress;
  if (line == in_progress || line == kContinuousBackup) return true;
  const bool of_a_job = line == in_progress + "." || line == kJobPaused;
  return of_a_job && Now().schedule_read && !JobIsRunning();
}

void IdleView::ShowUnseenTransfer(const TransferSnapshot& transfer) {
  view_.transfer_shown = false;
  if (transfer.rt_backup == 1) {
    view_.title = TransferTitle(context_.display_name);
    SetStatusLine(kContinuousBackup);
    if (view_.quota_text_shown) view_.space_label_shown = true;
  } else if (transfer.backup == "1") {
    SetStatusLine(context_.texts.job_in_progress);
    view_.space_label_shown = false;
  } else {
    GetNextTransferTime();
    // Without a figure beside it the label says nothing.
    view_.space_label_shown = view_.quota_text_shown;
  }
}

std::string IdleView::TellTime(const NextRun& next) {
  const std::string date = schedule_.ValidateSorvaneDateFormat(StartTimeField(next.line));
  TimeDifference difference = schedule_.GetTimeDifference(date, Now().last_run);
  if (difference.recent) memory_.recent_backup = true;
  return std::move(difference.text);
}

NextRun IdleView::ReadNextRun() {
  if (context_.product_number == 2) return {Now().second_line, {}};
  return schedule_.GetScheduleDate();
}

bool IdleView::JobIsRunning() {
  return Now().has_schedule && !Now().job_kind.empty() && Now().job_kind != "0";
}

const IdleSnapshot& IdleView::Now() {
  if (!now_) now_ = read_();
  return *now_;
}

int IdleView::OrdinaryPoints() const {
  return context_.large_fonts ? kSmallPoints : kOrdinaryPoints;
}

void IdleView::SetStatusLine(std::string_view text) {
  SetStatusLine(text, OrdinaryPoints());
}

void IdleView::SetStatusLine(std::string_view text, int points) {
  view_.status_line = text;
  view_.status_points = points;
}

}  // namespace status
