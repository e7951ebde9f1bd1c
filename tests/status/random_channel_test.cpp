// Ten thousand random states of the channel: no text is blank where one is promised, and the timers
// never stop.
#include <gtest/gtest.h>

#include <random>

#include "tests/status/controller_fixture.h"

namespace status {
namespace {

class RandomChannel {
 public:
  explicit RandomChannel(std::uint32_t seed) : chance_(seed) {}

  void Change(StatusMachine& m) {
    switch (Below(6)) {
      case 0:
        m.LogIn(Pick({"anna", "anna", "anna", "bert", ""}));
        break;
      case 1:
        m.SetQuota(Pick({"", "0", "1024", "4096", "5000", "x"}), Pick({"", "0", "1", "4096", "x"}));
        m.SetScheduleDisable(Pick({"", "TRUE", "FALSE"}));
        break;
      case 2:
        ChangeStatus(m);
        break;
      case 3:
        ChangeFiles(m);
        break;
      case 4:
        ChangeWindow(m);
        break;
      default:
        ChangeProgress(m);
        break;
    }
  }

 private:
  std::size_t Below(std::size_t end) { return chance_() % end; }
  std::string_view Pick(std::initializer_list<std::string_view> texts) {
    return texts.begin()[Below(texts.size())];
  }

  void ChangeStatus(StatusMachine& m) {
    m.Set("StatusMessageIndicaton", Pick({"", "0", "2", "4", "junk"}));
    m.Set("StatusWindow", Pick({"", "0", "1", "2", "-1"}));
    m.Set("RetValue", Pick({"", "402", "-432", "-403"}));
    m.Set("Paused", Pick({"", "0", "1", "\" 1\""}));
    m.Set("DLLStatus", Pick({"", "0", "1", "2", "3", "4", "7"}));
    m.SetRtBackup(Pick({"", "0", "1", "6", "12"}));
  }

  void ChangeFiles(StatusMachine& m) {
    const std::string user = m.state.CurrentUser;
    const std::string schedule = m.Path("scheduleData.txt", user);
    m.machine.files().Delete(schedule);
    const std::string record = Below(3) == 0 ? std::string() : std::string(kRecord) + "\r\n";
    if (Below(3) != 0) {
      m.machine.files().Put(schedule,
                            std::string(Pick({"", "0", "1", "5", "x"})) + "\r\n" + record);
    }
    for (const std::string_view file : {"SchStatus.txt", "SchStatusError.txt"}) {
      m.machine.files().Delete(m.Path(file, user));
      if (Below(2) == 0) m.machine.files().Put(m.Path(file, user), Pick({"", "Done.\r\n", "Done"}));
    }
  }

  void ChangeWindow(StatusMachine& m) {
    m.SetProgress("ProgWnd", "VALUE", Pick({"", "0", "66304", "-3", "junk"}));
    m.SetProgress("ProgWnd", "Status", Pick({"", "0", "0", "1"}));
    m.SetProgress("ProgWnd", "Job", Pick({"", "0", "1", "2", "3"}));
    m.SetProgress("BackupProgressInfo", "BackupInProgress", Pick({"", "0", "1"}));
    m.SetProgress("RestoreProgressInfo", "RestoreInProgress", Pick({"", "0", "1"}));
  }

  void ChangeProgress(StatusMachine& m) {
    for (const std::string_view section : {"BackupProgressInfo", "RestoreProgressInfo"}) {
      m.SetProgress(section, "Percentage", Pick({"", "0%", "57%", "100%", "900%", "%", "junk"}));
      m.SetProgress(section, "FileName", Pick({"", "C:\\a", "C:\\\x01\xff", "\"\""}));
      m.SetProgress(section, "Total Progress", Pick({"", "12 of 40 MB"}));
    }
    m.SetShared("BackupIdle", Pick({"", "0", "1", "x"}));
    m.SetShared("BackupIdleState", Pick({"", "0", "1"}));
    m.SetShared("Bandwidth", Pick({"", "0", "40", "900", "-1", "x"}));
    m.SetShared("BandwidthIdleState", Pick({"", "0", "10", "x"}));
  }

  std::mt19937 chance_;
};

// What holds after any tick of a window that stays.
void CheckPromises(const StatusView& view, StatusMachine& m) {
  EXPECT_TRUE(view.slow_timer && view.fast_timer);
  EXPECT_FALSE(view.title.empty());
  EXPECT_GE(view.quota_bar, 0);
  EXPECT_LE(view.quota_bar, kQuotaBarMaximum);
  EXPECT_GE(view.transfer.bar, 0);
  EXPECT_LE(view.transfer.bar, kTransferBarMaximum);
  EXPECT_GE(view.transfer.bandwidth.value, 0);
  EXPECT_LE(view.transfer.bandwidth.value, 100);
  if (m.state.CurrentUser.empty()) {
    EXPECT_EQ(view.status_line, EnglishTexts().log_in);
    return;
  }
  EXPECT_FALSE(view.user_name.empty());
  EXPECT_FALSE(view.quota_text_shown && view.quota_bar_shown && view.quota_text.empty());
  if (view.transfer_shown) {
    EXPECT_EQ(view.status_line, "");
    EXPECT_FALSE(view.transfer.file_count.empty() || view.transfer.time_elapsed.empty() ||
                 view.transfer.time_estimated.empty() || view.transfer.transfer_rate.empty());
    EXPECT_FALSE(view.transfer.says_resume && view.transfer.overall.empty());
  }
}

// At rest a line is blank only where the outcome that it shows is.
bool OutcomeIsBlank(StatusMachine& m) {
  shared::ProfileStore(m.machine.platform(), m.state).RefreshCurrentUser();
  return ProgressChannel(m.machine.platform(), m.state).ReadOutcome() == "";
}

// The slow tick names the state of the schedule whenever no outcome is in its place.
void CheckSlowTick(const StatusView& view, StatusMachine& m) {
  ProgressChannel channel(m.machine.platform(), m.state);
  if (m.state.CurrentUser.empty() || channel.IsTransferInProgress()) return;
  const std::string kind = channel.ReadJobKindCode();
  if (!channel.HasSchedule() || (!kind.empty() && kind != "0")) {
    EXPECT_FALSE(view.status_line.empty());
  }
  const shared::QuotaStatus quota = channel.ReadQuotaStatus();
  EXPECT_FALSE(quota.used > quota.max && view.status_line.empty());
}

TEST(RandomChannelStates, NeverLeaveAPromisedTextBlankNorStopTheTimers) {
  ControllerFixture f;
  RandomChannel channel(20110215);
  int gave_way = 0;
  bool may_be_blank = false;
  for (int round = 0; round < 10000; ++round) {
    SCOPED_TRACE(testing::Message() << "round " << round);
    channel.Change(f);
    const bool slow = round % 5 == 4;
    f.screen.events.clear();
    if (slow && OutcomeIsBlank(f)) may_be_blank = true;
    slow ? f.window.SlowTick() : f.window.FastTick();
    if (!f.screen.events.empty()) {
      // The window is gone; the menu opens it again later.
      ++gave_way;
      f.SetProgress("ProgWnd", "Status", "0");
      if (OutcomeIsBlank(f)) may_be_blank = true;
      f.window.Load();
      f.window.FastTick();
    }
    CheckPromises(f.View(), f);
    const bool in_transfer = ProgressChannel(f.machine.platform(), f.state).IsTransferInProgress();
    EXPECT_TRUE(in_transfer || may_be_blank || !f.View().status_line.empty());
    if (!f.View().status_line.empty()) may_be_blank = false;
    if (slow && f.screen.events.empty()) CheckSlowTick(f.View(), f);
    f.machine.journal().Clear();
    f.schedule.difference.recent = round % 7 == 0;
    if (testing::Test::HasFailure()) return;
  }
  EXPECT_GT(gave_way, 0);
}

}  // namespace
}  // namespace status
