// The crossed states of the channel, for the order of decisions of the status window.
#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>

#include "tests/status/idle_fixture.h"

namespace status {

inline constexpr std::string_view kOutcome = "4 files backed up.";

enum class User { kSame, kNobody, kAnother };
enum class Quota { kUnknown, kRoom, kFull, kExceeded, kStale };
enum class Schedule { kMissing, kUnread, kNoRun, kRunning, kReady };
enum class Outcome { kNone, kText, kUnread };
enum class Running { kNothing, kHere, kEngine, kBackup, kRestore };

struct Case {
  bool load = false;
  User user = User::kSame;
  Quota quota = Quota::kRoom;
  Schedule schedule = Schedule::kReady;
  std::int16_t status_window = 0;
  std::int16_t indicator = 0;
  Outcome outcome = Outcome::kNone;
  bool disabled = false;
  Running running = Running::kNothing;
  bool continuous = false;  // RTBackup is 1
  std::int16_t edition = 2;
  bool recent = false;
  bool forced = false;
  bool due = false;  // the sixth tick since the last refresh

  bool InTransfer() const { return running != Running::kNothing; }
  bool HasRun() const { return schedule == Schedule::kRunning || schedule == Schedule::kReady; }
  bool MessageIsForMe() const { return indicator == 2 || indicator == 4; }
  bool RefreshesNow() const {
    return status_window == 1 || (status_window <= 0 && (due || forced));
  }
};

inline std::ostream& operator<<(std::ostream& out, const Case& c) {
  return out << "load " << c.load << " user " << int(c.user) << " quota " << int(c.quota)
             << " schedule " << int(c.schedule) << " window " << c.status_window << " indicator "
             << c.indicator << " outcome " << int(c.outcome) << " disabled " << c.disabled
             << " running " << int(c.running) << " continuous " << c.continuous << " edition "
             << c.edition << " recent " << c.recent << " forced " << c.forced << " due " << c.due;
}

inline shared::QuotaStatus FiguresOf(Quota quota) {
  if (quota == Quota::kUnknown) return {};
  if (quota == Quota::kFull) return {4096, 4096};
  if (quota == Quota::kExceeded) return {4097, 4096};
  return {1536, 4096};
}

inline std::optional<std::string> TextOf(Outcome outcome) {
  if (outcome == Outcome::kUnread) return std::nullopt;
  return std::string(outcome == Outcome::kText ? kOutcome : "");
}

inline void Seed(const Case& c, IdleFixture& f) {
  f.now.user = c.user == User::kNobody ? "" : "anna";
  f.view.user_name = f.memory.idle_user = c.user == User::kAnother ? "bert" : f.now.user;
  f.context.product_number = c.edition;
  f.now.quota = FiguresOf(c.quota);
  f.now.ret_value = c.quota == Quota::kStale ? "-432" : "";
  f.now.has_schedule = c.schedule != Schedule::kMissing;
  f.now.schedule_read = c.schedule != Schedule::kUnread;
  const bool has_kind = f.now.has_schedule && f.now.schedule_read;
  f.now.job_kind = !has_kind ? "" : c.schedule == Schedule::kRunning ? "1" : "0";
  f.now.second_line = c.HasRun() ? kRecord : "";
  f.schedule.next = {f.now.second_line, ""};
  f.now.status_window = c.status_window;
  f.now.indicator = c.indicator;
  f.now.outcome = TextOf(c.outcome);
  f.now.schedule_disabled = c.disabled;
  f.schedule.difference.recent = c.recent;
  f.memory.force_refresh = c.forced;
  f.memory.refresh_tick_count = c.due ? 5 : 0;
  f.transfer.in_progress = c.InTransfer();
  f.transfer.backup = c.InTransfer() && c.running != Running::kRestore ? "1" : "0";
  f.transfer.restore = c.running == Running::kRestore ? "1" : "0";
  f.transfer.rt_backup = c.continuous ? 1 : 0;
  f.transfer.window_status = c.running == Running::kEngine ? "1" : "0";
  const bool window = c.running == Running::kHere || c.running == Running::kEngine;
  f.transfer.window_value = window ? 66304 : 0;
}

// Visits every state; what changes nothing in a transfer is crossed at rest only.
template <class Visit>
void ForEachCase(bool in_transfer, const Visit& visit) {
  Case c;
  for (int flags = 0; flags < 64; ++flags) {
    c.load = (flags & 1) != 0;
    c.disabled = (flags & 2) != 0;
    c.edition = (flags & 4) != 0 ? 1 : 2;
    c.recent = (flags & 8) != 0;
    c.forced = (flags & 16) != 0;
    (in_transfer ? c.continuous : c.due) = (flags & 32) != 0;
    if (in_transfer && (c.recent || c.forced)) continue;
    for (int each = 0; each < 3 * 5 * 5 * 4 * 4; ++each) {
      int rest = each;
      const auto next = [&rest](int count) {
        const int value = rest % count;
        rest /= count;
        return value;
      };
      c.user = static_cast<User>(next(3));
      c.quota = static_cast<Quota>(next(5));
      c.schedule = static_cast<Schedule>(next(5));
      c.status_window = static_cast<std::int16_t>(next(4) - 1);
      constexpr std::int16_t kIndicators[] = {0, 2, 3, 4};
      c.indicator = kIndicators[next(4)];
      for (int running = in_transfer ? 1 : 0; running < (in_transfer ? 5 : 1); ++running) {
        c.running = static_cast<Running>(running);
        for (const Outcome outcome : {Outcome::kNone, Outcome::kText, Outcome::kUnread}) {
          c.outcome = outcome;
          if (!visit(c)) return;
        }
      }
    }
  }
}

}  // namespace status
