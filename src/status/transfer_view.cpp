#include "status/transfer_view.h"

#include <cstddef>

#include "shared/convert.h"
#include "status/bandwidth.h"
#include "status/percentage.h"
#include "status/progress_keys.h"

namespace status {
namespace {

constexpr std::size_t kLineLength = 70;
constexpr std::size_t kLineLengthLargeFonts = 62;

// What differs between the panels of a backup and of a restore.
constexpr std::string_view kBackupFileCount = "Backedup files: ";
constexpr std::string_view kRestoreFileCount = "Restored files: ";

bool IsRunning(std::string_view in_progress) {
  return shared::Trim(in_progress) == "1";
}

std::string_view PausedText(const TransferSnapshot& transfer, bool backup) {
  if (!backup) return kRestorePaused;
  // A backup section that is marked during a restore has a text of its own.
  return transfer.job == kJobRestore ? kRestoreOperationPaused : kBackupPaused;
}

void ShowCounters(TransferPanel& panel, const ProgressTexts& progress,
                  std::string_view file_count_label) {
  panel.transfer_rate = "Transfer Rate: " + progress.rate;
  panel.time_estimated = "Time Estimated: " + progress.estimate;
  panel.time_elapsed = "Time Elapsed: " + progress.elapsed;
  panel.file_count = std::string(file_count_label) + progress.file_count;
}

void RefreshPanel(StatusView& view, const TransferSnapshot& transfer, const StatusContext& context,
                  bool backup) {
  TransferPanel& panel = view.transfer;
  // 1.
  view.space_label_shown = false;
  view.quota_text_shown = false;
  view.quota_bar_shown = false;
  view.pause_shown = true;
  panel.controls_shown = true;
  // 2.
  if (!transfer.paused) {
    panel.says_resume = false;
    panel.overall_red = false;
  }
  if (!panel.says_resume) panel.rate_shown = true;
  // 3.
  panel.counters_shown = true;
  // 4. The layout gives the line all the width there is.
  if (transfer.paused) {
    panel.says_resume = true;
    panel.overall = PausedText(transfer, backup);
    panel.overall_red = true;
    panel.rate_shown = false;
  }
  // 5., 6. The bar's colour never changes.
  panel.file_path = WrapFilePath(transfer.progress.file_name, context.large_fonts);
  // 7.
  if (!transfer.paused) panel.overall = transfer.progress.total;
  // 8.
  ShowCounters(panel, transfer.progress, backup ? kBackupFileCount : kRestoreFileCount);
  // 9.
  if (auto position = BarPosition(transfer.progress.percentage, kTransferBarMaximum)) {
    panel.bar = *position;
  }
}

}  // namespace

std::string WrapFilePath(std::string_view path, bool large_fonts) {
  const std::size_t length = large_fonts ? kLineLengthLargeFonts : kLineLength;
  if (path.size() <= length) return std::string(path);
  return std::string(path.substr(0, length)) + "\r\n" + std::string(path.substr(length));
}

void EnterTransferView(StatusView& view, const TransferSnapshot& transfer,
                       const StatusContext& context) {
  // 1.
  const bool scheduled = transfer.job == kJobScheduled || transfer.job.empty();
  view.title =
      scheduled ? ScheduledTitle(context.display_name) : TransferTitle(context.display_name);
  // 2. The button follows the pause here, so that the panel finds it as it is.
  view.transfer.says_resume = transfer.paused;
  // 3.
  RefreshProgressView(view, transfer, context);
  ShowBandwidthSlider(view.transfer.bandwidth, transfer);
  // 4.
  view.transfer_shown = true;
  view.space_label_shown = false;
  view.quota_text_shown = false;
  view.quota_bar_shown = false;
  view.status_line.clear();
}

void RefreshProgressView(StatusView& view, const TransferSnapshot& transfer,
                         const StatusContext& context) {
  // 1. The reader of `transfer` has seen to the process's priority.
  // 2., 3.
  BandwidthPanel& bandwidth = view.transfer.bandwidth;
  bandwidth.shown = transfer.restore != "1";
  if (bandwidth.shown && (transfer.backup_idle.empty() || transfer.backup_idle == "0")) {
    bandwidth.value = 100;
    bandwidth.enabled = true;
    bandwidth.auto_pause = false;
  }
  // 4.
  if (IsRunning(transfer.backup)) {
    RefreshPanel(view, transfer, context, true);
  } else if (IsRunning(transfer.restore)) {
    RefreshPanel(view, transfer, context, false);
  }
}

void SetTitleOfTick(StatusView& view, const TransferSnapshot& transfer,
                    const StatusContext& context) {
  if (!transfer.in_progress) {
    view.title = ScheduledTitle(context.display_name);
  } else if (transfer.job == kJobInteractive || transfer.job == kJobRestore) {
    view.title = TransferTitle(context.display_name);
  }
}

bool HasNotificationBox(const TransferSnapshot& transfer) {
  return !transfer.in_progress || transfer.job == kJobScheduled;
}

}  // namespace status
