// The rules of the idle view with everything at hand: plain values in, a view and effects out.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "status/idle_view.h"
#include "status/schedule_texts.h"
#include "status/status_effects.h"
#include "status/status_snapshot.h"
#include "status/status_view.h"

namespace status {

// A schedule that answers as it is told.
class ToldSchedule : public ScheduleTexts {
 public:
  NextRun GetScheduleDate() override { return next; }
  TimeDifference GetTimeDifference(std::string_view when, std::string_view last_run) override {
    asked_for = when;
    asked_since = last_run;
    ++questions;
    return difference;
  }
  std::string ValidateSorvaneDateFormat(std::string_view text) override {
    return std::string(text);
  }

  NextRun next;
  TimeDifference difference{"Backup will start in next 2 hour(s).", false};
  std::string asked_for;
  std::string asked_since;
  int questions = 0;
};

inline constexpr std::string_view kRecord = "1\b\btventbkupjob\b\b02-15-2011 10:30:00\b\b";

inline StatusTexts EnglishTexts() {
  StatusTexts texts;
  texts.no_schedule = "No backup has been scheduled.";
  texts.job_in_progress = "The scheduled backup job is in progress.";
  texts.schedule_disabled = "You have disabled the scheduled backup from the Sorvane tray menu.";
  texts.next_backup_at = "Your next backup will occur on ";
  texts.next_backup = "Your next backup";
  texts.will_occur_on = "will occur on";
  texts.out_of = "out of";
  texts.log_in = "Login to the account for which you want to see the status.";
  texts.quota_exceeded =
      "Your data could not be backed up as you have utilized the allocated quota. Upgrade and try "
      "again.";
  texts.job_canceled =
      "All your files/folders could not be backed up as the scheduled job was manually canceled.";
  return texts;
}

// A user with room, a schedule and nothing going on.
struct IdleFixture {
  IdleFixture() {
    context.display_name = "Sorvane";
    context.texts = EnglishTexts();
    now.user = "anna";
    now.quota = {1536, 4096};
    now.has_schedule = true;
    now.job_kind = "0";
    now.second_line = kRecord;
    now.short_date = "M/d/yyyy";
    now.decimal_separator = ".";
    // As after the first tick.
    view.user_name = "anna";
    memory.idle_user = "anna";
    view.status_line = "before";
    view.next_line = "before";
  }

  IdleView Rules() {
    return IdleView(
        view, memory, effects, [this] { return now; }, context, schedule);
  }
  void Tick() { Rules().Periodic(transfer); }
  void Load(std::string_view notification = "") { Rules().Load(transfer, notification); }

  std::vector<std::string> Traces() const {
    std::vector<std::string> lines;
    for (const Effect& effect : effects.InOrder()) {
      if (effect.kind == EffectKind::kTrace) lines.push_back(effect.text);
    }
    return lines;
  }
  std::vector<Effect> Writes() const {
    std::vector<Effect> writes;
    for (const Effect& effect : effects.InOrder()) {
      if (effect.kind != EffectKind::kTrace) writes.push_back(effect);
    }
    return writes;
  }

  StatusView view;
  StatusMemory memory;
  StatusEffects effects;
  IdleSnapshot now;
  TransferSnapshot transfer;
  StatusContext context;
  ToldSchedule schedule;
};

}  // namespace status
