#include "status/transfer_view.h"

#include <gtest/gtest.h>

#include "status/bandwidth.h"
#include "tests/status/idle_fixture.h"

namespace status {
namespace {

struct WrapCase {
  std::size_t length;
  bool large_fonts;
  std::size_t first_line;
};

constexpr WrapCase kWraps[] = {
    {0, false, 0},  {1, false, 1},  {70, false, 70}, {71, false, 70}, {255, false, 70},
    {61, true, 61}, {62, true, 62}, {63, true, 62},  {255, true, 62},
};

TEST(WrapFilePath, WrapsOnceBehindSeventyCharactersOrSixtyTwoInLargeFonts) {
  for (const WrapCase& wrap : kWraps) {
    const std::string path(wrap.length, 'p');
    std::string expected = path.substr(0, wrap.first_line);
    if (wrap.length > wrap.first_line) expected += "\r\n" + path.substr(wrap.first_line);
    EXPECT_EQ(WrapFilePath(path, wrap.large_fonts), expected) << wrap.length;
  }
}

class TransferViewTest : public testing::Test, public IdleFixture {
 protected:
  TransferViewTest() { Backup(); }

  void Backup() {
    transfer.in_progress = true;
    transfer.backup = "1";
    transfer.restore = "0";
    transfer.window_status = "0";
    transfer.window_value = 66304;
    transfer.job = "1";
    transfer.progress = {"C:\\a.txt", "12 of 40 MB", "3.2 Mbps", "00:10", "00:05", "7", "57%"};
  }
  void Restore() {
    Backup();
    transfer.backup = "0";
    transfer.restore = "1";
    transfer.job = "3";
  }
  void Enter() { EnterTransferView(view, transfer, context); }
  void Refresh() { RefreshProgressView(view, transfer, context); }
  TransferPanel& Panel() { return view.transfer; }
};

TEST_F(TransferViewTest, ShowsTheBackup) {
  Enter();
  EXPECT_EQ(view.title, "Sorvane - Status");
  EXPECT_TRUE(view.transfer_shown);
  EXPECT_EQ(view.status_line, "");
  EXPECT_FALSE(view.space_label_shown || view.quota_text_shown || view.quota_bar_shown);
  EXPECT_TRUE(Panel().controls_shown && Panel().counters_shown && Panel().rate_shown);
  EXPECT_EQ(Panel().file_path, "C:\\a.txt");
  EXPECT_EQ(Panel().overall, "12 of 40 MB");
  EXPECT_EQ(Panel().transfer_rate, "Transfer Rate: 3.2 Mbps");
  EXPECT_EQ(Panel().time_estimated, "Time Estimated: 00:10");
  EXPECT_EQ(Panel().time_elapsed, "Time Elapsed: 00:05");
  EXPECT_EQ(Panel().file_count, "Backedup files: 7");
  EXPECT_EQ(Panel().bar, 57);
  EXPECT_FALSE(Panel().says_resume);
}

TEST_F(TransferViewTest, ShowsTheRestoreWithItsOwnLabelAndWithoutBandwidth) {
  Restore();
  transfer.backup_idle = "1";
  transfer.backup_idle_state = "1";
  Enter();
  EXPECT_EQ(view.title, "Sorvane - Status");
  EXPECT_EQ(Panel().file_count, "Restored files: 7");
  EXPECT_FALSE(Panel().bandwidth.shown);
}

TEST_F(TransferViewTest, KeepsTheTitleOfScheduledJobs) {
  for (const std::string_view job : {"2", ""}) {
    transfer.job = job;
    Enter();
    EXPECT_EQ(view.title, "Sorvane - Scheduled Backup Status");
  }
  transfer.job = "0";
  Enter();
  EXPECT_EQ(view.title, "Sorvane - Status");
}

TEST_F(TransferViewTest, PrefersTheBackupWhenBothAreMarked) {
  transfer.restore = "1";
  Enter();
  EXPECT_EQ(Panel().file_count, "Backedup files: 7");
  EXPECT_FALSE(Panel().bandwidth.shown);
}

TEST_F(TransferViewTest, RefreshesForABackupThatIsMarkedWithBlanks) {
  transfer.backup = " 1 ";
  Refresh();
  EXPECT_EQ(Panel().overall, "12 of 40 MB");
}

TEST_F(TransferViewTest, ChangesNothingOfThePanelWhenNeitherRuns) {
  Enter();
  const TransferPanel before = Panel();
  transfer.backup = "0";
  transfer.progress = {};
  Refresh();
  EXPECT_EQ(Panel(), before);
}

struct PauseCase {
  bool restore;
  std::string_view job;
  std::string_view text;
};

constexpr PauseCase kPauses[] = {
    {false, "1", "Backup process has been paused. Click 'Resume' to continue."},
    {false, "2", "Backup process has been paused. Click 'Resume' to continue."},
    {false, "3", "Restore operation has been paused. Click 'Resume' to continue."},
    {true, "3", "Restore process has been paused. Click 'Resume' to continue."},
    {true, "1", "Restore process has been paused. Click 'Resume' to continue."},
};

TEST_F(TransferViewTest, SaysInRedThatItIsPaused) {
  for (const PauseCase& pause : kPauses) {
    view = {};
    pause.restore ? Restore() : Backup();
    transfer.job = pause.job;
    transfer.paused = true;
    Enter();
    EXPECT_EQ(Panel().overall, pause.text);
    EXPECT_TRUE(Panel().overall_red && Panel().says_resume);
    EXPECT_FALSE(Panel().rate_shown);
    EXPECT_EQ(Panel().file_count.substr(0, 8), pause.restore ? "Restored" : "Backedup");
  }
}

TEST_F(TransferViewTest, ReturnsFromThePauseAsItWas) {
  Enter();
  const TransferPanel before = Panel();
  transfer.paused = true;
  Enter();
  transfer.paused = false;
  Enter();
  EXPECT_EQ(Panel(), before);
}

TEST_F(TransferViewTest, LeavesTheBarWhereItIsForAPercentageThatIsNone) {
  Enter();
  for (const std::string_view text : {"", "%", "x%", "99999%", "-3%", "230%"}) {
    transfer.progress.percentage = text;
    Enter();
    EXPECT_EQ(Panel().bar, 57) << text;
  }
  transfer.progress.percentage = "100%";
  Enter();
  EXPECT_EQ(Panel().bar, kTransferBarMaximum);
}

TEST_F(TransferViewTest, GivesTheSameViewTwice) {
  Enter();
  const StatusView before = view;
  Enter();
  EXPECT_EQ(view, before);
}

struct BandwidthCase {
  std::string_view idle;
  std::string_view idle_state;
  std::string_view ordinary;
  std::string_view idle_value;
  bool auto_pause;
  std::int16_t value;
};

constexpr BandwidthCase kBandwidths[] = {
    {"", "", "", "", false, 100},        {"0", "0", "40", "10", false, 40},
    {"0", "0", "0", "", false, 100},     {"1", "0", "40", "10", false, 40},
    {"0", "1", "40", "10", false, 40},   {"1", "1", "40", "10", true, 10},
    {"1", "1", "40", "", true, 25},      {"1", "1", "40", "0", true, 25},
    {"1", "1", "", "100", true, 100},    {"0", "0", "x", "", false, 100},
    {"0", "0", "230", "", false, 100},   {"0", "0", "-5", "", false, 0},
    {"yes", "1", "60", "10", false, 60},
};

TEST_F(TransferViewTest, ShowsTheBandwidthOfTheState) {
  for (const BandwidthCase& one : kBandwidths) {
    transfer.backup_idle = one.idle;
    transfer.backup_idle_state = one.idle_state;
    transfer.bandwidth = one.ordinary;
    transfer.bandwidth_idle_state = one.idle_value;
    Enter();
    SCOPED_TRACE(testing::Message() << one.idle << "/" << one.idle_state << " " << one.ordinary);
    EXPECT_EQ(Panel().bandwidth.auto_pause, one.auto_pause);
    EXPECT_EQ(Panel().bandwidth.value, one.value);
    EXPECT_TRUE(Panel().bandwidth.shown && Panel().bandwidth.enabled);
  }
}

TEST(SliderKnob, StandsWhereItsValueSays) {
  const SliderBox box = {100, 220, 20};
  EXPECT_EQ(KnobLeft(box, 0), 100);
  EXPECT_EQ(KnobLeft(box, 50), 200);
  EXPECT_EQ(KnobLeft(box, 100), 300);
  for (std::int16_t value = 0; value <= 100; ++value) {
    EXPECT_EQ(KnobValue(box, KnobLeft(box, value)), value);
  }
}

TEST(SliderKnob, RoundsAndStaysBetweenZeroAndOneHundred) {
  const SliderBox box = {0, 150, 10};
  EXPECT_EQ(KnobValue(box, 1), 1);
  EXPECT_EQ(KnobValue(box, 2), 1);
  EXPECT_EQ(KnobValue(box, 3), 2);
  EXPECT_EQ(KnobValue(box, -40), 0);
  EXPECT_EQ(KnobValue(box, 400), 100);
  EXPECT_EQ(KnobValue({0, 10, 10}, 5), 0);
}

TEST(SliderKnob, MayPassTheEndOfTheBoxByItsOverhangOnly) {
  const SliderBox box = {100, 200, 20};
  EXPECT_FALSE(KnobMayStand(box, 99, 25));
  EXPECT_TRUE(KnobMayStand(box, 100, 25));
  EXPECT_TRUE(KnobMayStand(box, 305, 25));
  EXPECT_FALSE(KnobMayStand(box, 306, 25));
}

}  // namespace
}  // namespace status
