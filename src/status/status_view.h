// What the status window shows, as plain values. Rules change a view; the window draws what
// differs.
#pragma once

#include <cstdint>
#include <string>

namespace status {

enum class QuotaColour { kGreen, kRed };

// Bandwidth and auto-pause of the transfer.
struct BandwidthPanel {
  bool shown = true;
  bool enabled = true;
  bool auto_pause = false;   // picture "chkautopause", the note is shown
  std::int16_t value = 100;  // percent
  friend bool operator==(const BandwidthPanel&, const BandwidthPanel&) = default;
};

// The transfer view, inside progressFrame.
struct TransferPanel {
  bool controls_shown = false;  // bar, file, overall line, pause button
  bool counters_shown = false;  // files, estimate, elapsed
  bool rate_shown = false;
  bool says_resume = false;  // caption and picture of the pause button
  std::string file_path;     // one line, or two
  std::string overall;
  bool overall_red = false;
  std::string transfer_rate;
  std::string time_estimated;
  std::string time_elapsed;
  std::string file_count;
  std::int16_t bar = 0;  // 0 to kTransferBarMaximum
  BandwidthPanel bandwidth;
  friend bool operator==(const TransferPanel&, const TransferPanel&) = default;
};

inline constexpr std::int16_t kTransferBarMaximum = 100;
inline constexpr std::int16_t kQuotaBarMaximum = 100;

struct StatusView {
  std::string title;
  bool user_label_shown = true;
  std::string user_name;
  bool space_label_shown = true;
  bool quota_text_shown = true;
  std::string quota_text;
  bool quota_bar_shown = true;
  std::int16_t quota_bar = 0;  // 0 to kQuotaBarMaximum
  QuotaColour quota_colour = QuotaColour::kGreen;
  std::string status_line;
  int status_points = 10;
  bool next_line_shown = true;
  std::string next_line;
  bool notification_shown = true;
  bool notification_checked = false;
  bool log_enabled = true;
  bool transfer_shown = false;  // progressFrame; the corner button says "hide" instead of "close"
  bool pause_shown = true;      // the pause button's picture
  TransferPanel transfer;
  bool slow_timer = false;  // frmStatusTimer runs
  bool fast_timer = true;   // TmrCheckPause runs
  friend bool operator==(const StatusView&, const StatusView&) = default;
};

// What the window remembers between ticks and does not show.
struct StatusMemory {
  std::int32_t refresh_tick_count = 0;  // slow ticks since the last periodic refresh
  bool recent_backup = false;  // RecentBackupFlag: the last backup ended less than 30 minutes ago
  bool force_refresh = false;  // ForceStatusRefresh of the state
  std::string user;            // who was logged in at the last fast tick
  std::string idle_user;       // whose idle view was made last; empty while none was
  friend bool operator==(const StatusMemory&, const StatusMemory&) = default;
};

}  // namespace status
