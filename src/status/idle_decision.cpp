// Which of its faces and texts the status window shows at a slow tick and at the load.
#include "status/idle_view.h"
#include "status/next_line.h"
#include "status/progress_keys.h"
#include "status/transfer_view.h"

namespace status {
namespace {

constexpr std::int32_t kTicksOfOneRefresh = 6;

}  // namespace

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
  view_.status_points = OrdinaryPoints();
  if (desktop_notification == "1") view_.notification_checked = true;
  if (desktop_notification == "0") view_.notification_checked = false;
  Decide(transfer);
  const bool at_home = !Now().user.empty() && !effects_.GivesWay();
  if (at_home && !Now().has_schedule) SetStatusLine(context_.texts.no_schedule);
  if (at_home) view_.notification_shown = HasNotificationBox(transfer);
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
  if (memory_.idle_user != Now().user) ChangeUser();
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
  if (!Now().schedule_read) return;
  const NextRun next = ReadNextRun();
  if (JobIsRunning()) {
    TraceOnLoad("   [INFORMATION] Form-Load: Schedule backup in progress.");
    return ShowScheduledJob();
  }
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

void IdleView::ShowTransfer(const TransferSnapshot& transfer) {
  if (transfer.IsShownHere()) {
    EnterTransferView(view_, transfer, context_);
  } else {
    ShowUnseenTransfer(transfer);
  }
}

void IdleView::ShowQuotaExceeded() {
  TraceOnLoad("   [INFORMATION] Form-Load Quota is exceeded");
  if (Now().indicator == kIndicatorQuota && Now().outcome != "") {
    SetOutcome(OrdinaryPoints());
  } else {
    effects_.WriteOutcome(context_.texts.quota_exceeded);
    effects_.WriteIndicator("2");
    SetStatusLine(kQuotaExceededTwoLines, kSmallestPoints);
  }
  if (JobIsRunning()) {
    view_.next_line.clear();
    view_.next_line_shown = false;
  } else if (Now().schedule_read) {
    NextLine(Now().has_schedule ? ReadNextRun() : NextRun{});
  }
  QuotaRow();
}

void IdleView::ShowScheduledJob() {
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
    SetOutcome(OrdinaryPoints());
    return QuotaRow();
  }
  // 11.
  if (Now().status_window == 1) return RefreshOutcome(next);
  // 12. A value above 1 stops all handling of outcomes for as long as it stays.
  if (Now().status_window > 1) return;
  if (memory_.refresh_tick_count < kTicksOfOneRefresh && !memory_.force_refresh) return;
  if (Now().indicator == kIndicatorQuota) {
    SetOutcome(OrdinaryPoints());
    QuotaRow();
  } else {
    RefreshOutcome(next);
  }
  memory_.refresh_tick_count = 0;
}

bool IdleView::ShowsAtOnce() {
  if (occasion_ == Occasion::kLoad) return Now().indicator == kIndicatorQuota;
  return Now().status_window == 1 && MessageIsForTheUser();
}

void IdleView::RefreshOutcome(const NextRun& next) {
  TellTime(next);
  QuotaRow();
  if (memory_.recent_backup || memory_.force_refresh) {
    if (!Now().outcome) return;  // the flags stay until it can be read
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

void IdleView::TraceOnLoad(std::string_view line) {
  if (occasion_ == Occasion::kLoad) effects_.Trace(line);
}

}  // namespace status
