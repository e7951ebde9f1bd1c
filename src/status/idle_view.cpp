#include "status/idle_view.h"

#include <utility>

#include "status/next_line.h"
#include "status/progress_keys.h"
#include "status/quota_bar.h"
#include "status/size_text.h"
#include "status/transfer_view.h"

namespace status {
namespace {

constexpr std::int32_t kTicksOfOneRefresh = 6;
constexpr int kOrdinaryPoints = 10;
constexpr int kSmallPoints = 9;
constexpr int kSmallestPoints = 8;

}  // namespace

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
  if (!Now().has_schedule) return;
  const NextRun next = ReadNextRun();
  // 3.
  if (!StartTimeField(next.line).empty()) {
    // 4.
    SetStatusLine(TellTime(next));
    // 5.
    if (Now().schedule_disabled) {
      SetStatusLine(context_.texts.schedule_disabled);
    } else {
      NextLine(next);
    }
  }
  // 6.
  QuotaRow();
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

void IdleView::ShowOutcome(const NextRun& next) {
  SetStatusLine(Now().outcome, kSmallPoints);
  NextLine(next);
}

void IdleView::NoScheduleText() {
  if (Now().schedule_disabled) {
    TraceOnLoad("   [INFORMATION] Form-Load: Scheduler is disabled");
    SetStatusLine(context_.texts.schedule_disabled);
  } else if ((Now().indicator == kIndicatorQuota || Now().indicator == kIndicatorAccount) &&
             !Now().outcome.empty()) {
    SetStatusLine(Now().outcome);
  } else {
    SetStatusLine(context_.texts.no_schedule);
  }
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

void IdleView::Periodic(const TransferSnapshot& transfer) {
  occasion_ = Occasion::kTick;
  Decide(transfer);
}

void IdleView::Load(const TransferSnapshot& transfer, std::string_view desktop_notification) {
  occasion_ = Occasion::kLoad;
  TraceOnLoad("   [INFORMATION] Loaded Status Form");
  memory_.recent_backup = false;
  memory_.user = Now().user;
  view_.title = ScheduledTitle(context_.display_name);
  view_.status_points = context_.large_fonts ? kSmallPoints : kOrdinaryPoints;
  if (desktop_notification == "1") view_.notification_checked = true;
  if (desktop_notification == "0") view_.notification_checked = false;
  Decide(transfer);
  const bool at_home = !Now().user.empty() && !effects_.GivesWay();
  if (at_home && !Now().has_schedule) SetStatusLine(context_.texts.no_schedule);
  view_.slow_timer = true;
}

void IdleView::Decide(const TransferSnapshot& transfer) {
  // 1.
  ++memory_.refresh_tick_count;
  // 2.
  if (Now().user.empty()) return LoggedOut();
  LoggedIn(Now().user);
  // 3.
  if (transfer.IsShownByEngine()) return GiveWay();
  // 4.
  if (transfer.in_progress) return ShowTransfer(transfer);
  // 5.
  LeaveTransfer();
  if (memory_.idle_user != Now().user) {
    SetStatusLine("");
    GetNextTransferTime();
  }
  // 6.
  if (Now().quota.used > Now().quota.max && context_.product_number != 1)
    return ShowQuotaExceeded();
  // 7.
  if (!Now().has_schedule) {
    TraceOnLoad("   [INFORMATION] Form-Load: No schedule Data File");
    view_.next_line_shown = false;
    QuotaRow();
    return NoScheduleText();
  }
  // 8.
  const NextRun next = ReadNextRun();
  if (JobIsRunning()) return ShowScheduledJob();
  // 9.
  if (next.line.empty()) {
    TraceOnLoad("   [INFORMATION] Form-Load: schedule Data Exists but no schedule Time");
    view_.next_line.clear();
    QuotaRow();
    return NoScheduleText();
  }
  // 10., 11., 12.
  ShowLastJob(next);
}

void IdleView::GiveWay() {
  SetStatusLine("");
  effects_.Trace("Backup or restore progress is shown so unload status window");
  effects_.GiveWay();
}

void IdleView::ShowTransfer(const TransferSnapshot& transfer) {
  if (transfer.IsShownHere()) {
    EnterTransferView(view_, transfer, context_);
  } else {
    ShowUnseenTransfer(transfer);
  }
}

void IdleView::LeaveTransfer() {
  const bool was_shown = std::exchange(view_.transfer_shown, false);
  if (was_shown && view_.status_line.empty()) GetNextTransferTime();
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
    view_.space_label_shown = true;
  }
}

void IdleView::ShowQuotaExceeded() {
  TraceOnLoad("   [INFORMATION] Form-Load Quota is exceeded");
  if (Now().indicator == kIndicatorQuota && !Now().outcome.empty()) {
    SetStatusLine(Now().outcome);
  } else {
    effects_.WriteOutcome(context_.texts.quota_exceeded);
    effects_.WriteIndicator("2");
    SetStatusLine(kQuotaExceededTwoLines, kSmallestPoints);
  }
  const NextRun next = Now().has_schedule ? ReadNextRun() : NextRun{};
  if (JobIsRunning()) {
    view_.next_line.clear();
    view_.next_line_shown = false;
  } else {
    NextLine(next);
  }
  QuotaRow();
}

void IdleView::ShowScheduledJob() {
  TraceOnLoad("   [INFORMATION] Form-Load: Schedule backup in progress.");
  // The stop is added to the text whatever the text ends in.
  SetStatusLine(Now().paused ? std::string(kJobPaused) : context_.texts.job_in_progress + ".");
  view_.space_label_shown = false;
  view_.quota_text_shown = false;
  view_.quota_bar_shown = false;
  view_.quota_text.clear();
  view_.next_line_shown = false;
  view_.next_line.clear();
}

// Steps 10 to 12: what the last job came to.
void IdleView::ShowLastJob(const NextRun& next) {
  // 10.
  if (ShowsAtOnce()) {
    TraceOnLoad("   [INFORMATION] Form-Load: Quota Exceeded");
    SetStatusLine(Now().outcome);
    return QuotaRow();
  }
  // 11.
  if (Now().status_window == 1) return RefreshOutcome(next);
  // 12. A value above 1 stops all handling of outcomes for as long as it stays.
  if (Now().status_window > 1) return;
  if (memory_.refresh_tick_count < kTicksOfOneRefresh && !memory_.force_refresh) return;
  if (Now().indicator == kIndicatorQuota) {
    SetStatusLine(Now().outcome);
    QuotaRow();
  } else {
    RefreshOutcome(next);
  }
  memory_.refresh_tick_count = 0;
}

bool IdleView::ShowsAtOnce() {
  if (occasion_ == Occasion::kLoad) return Now().indicator == kIndicatorQuota;
  return Now().status_window == 1 &&
         (Now().indicator == kIndicatorQuota || Now().indicator == kIndicatorAccount);
}

void IdleView::RefreshOutcome(const NextRun& next) {
  TellTime(next);
  QuotaRow();
  if (memory_.recent_backup || memory_.force_refresh) {
    TraceOnLoad("   [INFORMATION] Form-Load: Backup completed just before 30min ");
    memory_.recent_backup = false;
    memory_.force_refresh = false;
    ShowOutcome(next);
  } else {
    TraceOnLoad("   [INFORMATION] Form-Load: Backup completed 30min ago");
    effects_.WriteOutcome("");
    effects_.WriteIndicator("0");
    GetNextTransferTime();
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

void IdleView::TraceOnLoad(std::string_view line) {
  if (occasion_ == Occasion::kLoad) effects_.Trace(line);
}

void IdleView::SetStatusLine(std::string_view text) {
  SetStatusLine(text, context_.large_fonts ? kSmallPoints : kOrdinaryPoints);
}

void IdleView::SetStatusLine(std::string_view text, int points) {
  view_.status_line = text;
  view_.status_points = points;
}

}  // namespace status
