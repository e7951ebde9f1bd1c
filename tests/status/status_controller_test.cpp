#include "status/status_controller.h"

#include <gtest/gtest.h>

#include "tests/status/controller_fixture.h"

namespace status {
namespace {

using Lines = std::vector<std::string>;

class StatusControllerTest : public testing::Test, public ControllerFixture {};

TEST_F(StatusControllerTest, ShowsTheUserAtRest) {
  EXPECT_EQ(View().user_name, "anna");
  EXPECT_EQ(View().quota_text, "1.5 KB out of 4.0 KB");
  EXPECT_EQ(View().status_line, "Backup will start in next 2 hour(s).");
  EXPECT_EQ(View().next_line, "Your next backup will occur on  02-15-2011 10:30:00");
  EXPECT_NE(TraceText().find("   [INFORMATION] Loaded Status Form"), std::string::npos);
}

TEST_F(StatusControllerTest, ShowsTheSameAtEveryTickOfAnUnchangedChannel) {
  window.FastTick();
  const StatusView before = View();
  for (int tick = 0; tick < 5; ++tick) {
    window.FastTick();
    EXPECT_EQ(View(), before);
  }
  window.SlowTick();
  EXPECT_EQ(View(), before);
  EXPECT_TRUE(Writes().empty());
}

TEST_F(StatusControllerTest, WritesTheQuotaMessageAndThenItsIndicator) {
  SetQuota("5000", "4096");
  window.SlowTick();
  EXPECT_EQ(machine.files().Content(Path("SchStatus.txt")), EnglishTexts().quota_exceeded + "\r\n");
  EXPECT_EQ(Read("StatusMessageIndicaton"), "2");
  const Lines writes = Writes();
  ASSERT_EQ(writes.size(), 2u);
  EXPECT_TRUE(writes[0].starts_with("file replace " + Path("SchStatus.txt")));
  EXPECT_EQ(writes[1], "profile " + Profile() + " [BackupStatus] StatusMessageIndicaton=2");
  window.SlowTick();
  EXPECT_EQ(Writes().size(), 2u);
}

TEST_F(StatusControllerTest, ConsumesAnOutcomeThatIsOld) {
  machine.files().Put(Path("SchStatus.txt"), "4 files backed up.\r\n");
  Set("StatusMessageIndicaton", "4");
  Set("StatusWindow", "0");
  for (int tick = 0; tick < 6; ++tick) window.SlowTick();
  EXPECT_EQ(machine.files().Content(Path("SchStatus.txt")), "\r\n");
  EXPECT_EQ(Read("StatusMessageIndicaton"), "0");
}

TEST_F(StatusControllerTest, ShowsTheOutcomeWhenTheTickForcesIt) {
  machine.files().Put(Path("SchStatus.txt"), "4 files backed up.\r\n");
  state.ForceStatusRefresh = true;
  window.SlowTick();
  EXPECT_EQ(View().status_line, "4 files backed up.");
  EXPECT_FALSE(state.ForceStatusRefresh);
}

TEST_F(StatusControllerTest, StartsTheEngineForNewQuotaFigures) {
  machine.processes().Install("SorvaneEClsClient.exe", [](const platform::memory::Launch&) {});
  machine.files().Put("C:\\Sorvane\\SorvaneEClsClient.exe", "MZ");
  machine.files().Delete(Path("scheduleData.txt"));
  Set("RetValue", "-432");
  window.SlowTick();
  EXPECT_EQ(machine.journal().Count("process", " 7< >"), 1u);
}

TEST_F(StatusControllerTest, GivesWayToTheEnginesWindow) {
  StartTransfer("1", "1");
  window.FastTick();
  EXPECT_EQ(commands.calls, Lines{"disable status"});
  EXPECT_EQ(screen.events, Lines{"unload"});
}

TEST_F(StatusControllerTest, ReturnsToTheNormalPriorityWithATransfer) {
  machine.processes().LowerPriority();
  window.FastTick();
  EXPECT_FALSE(machine.processes().normal_priority());
  StartTransfer("1");
  window.FastTick();
  EXPECT_TRUE(machine.processes().normal_priority());
}

TEST_F(StatusControllerTest, FollowsAnotherUserWithinOneFastTick) {
  StartTransfer("1");
  window.FastTick();
  LogIn("bert");
  window.FastTick();
  EXPECT_FALSE(View().transfer_shown);
  EXPECT_EQ(View().user_name, "bert");
  LogIn("");
  window.FastTick();
  EXPECT_EQ(View().status_line, "Login to the account for which you want to see the status.");
}

TEST_F(StatusControllerTest, TakesItsSentencesFromTheLibrary) {
  machine.libraries().PutString("C:\\Sorvane\\TVToolTips.dll", 988, "Nichts geplant.");
  machine.libraries().PutString("C:\\Sorvane\\TVToolTips.dll", 814, "Voll. Please upgrade.");
  machine.files().Delete(Path("scheduleData.txt"));
  window.SlowTick();
  EXPECT_EQ(View().status_line, "Nichts geplant.");
  SetQuota("2", "1.5");
  window.SlowTick();
  EXPECT_EQ(machine.files().Content(Path("SchStatus.txt")), "Voll. Upgrade.\r\n");
}

TEST_F(StatusControllerTest, StoresTheBoxAtEachClick) {
  window.NotificationClick(true);
  EXPECT_EQ(Read("DesktopNotification"), "1");
  window.NotificationClick(false);
  EXPECT_EQ(Read("DesktopNotification"), "0");
}

TEST_F(StatusControllerTest, TakesTheOutcomeAsReadOnceTheLogWasSeen) {
  machine.files().Put(Path("SchStatus.txt"), "4 files backed up.\r\n");
  Set("StatusMessageIndicaton", "0");
  Set("DLLStatus", "3");
  window.ViewLogClick();
  EXPECT_EQ(screen.events, (Lines{"hide", "show"}));
  EXPECT_EQ(commands.calls, Lines{"log"});
  EXPECT_EQ(Read("DLLStatus"), "0");
  EXPECT_EQ(machine.files().Content(Path("SchStatus.txt")), "\r\n");
  std::size_t at = 0;
  for (const std::string_view line :
       {"   [INFORMATION] Entered into View-Log Click Event",
        "   [INFORMATION] Completed View-Log functionality",
        "   [INFORMATION] Viewed the Log.So, Change Status Message"}) {
    at = TraceText().find(line, at);
    ASSERT_NE(at, std::string::npos) << line;
  }
}

TEST_F(StatusControllerTest, KeepsSayingAfterTheLogThatTheBackupFailed) {
  machine.files().Put(Path("SchStatusError.txt"), "");
  window.ViewLogClick();
  EXPECT_EQ(View().status_line, "Backup has failed");
}

TEST_F(StatusControllerTest, KeepsTheQuotaMessageAfterTheLog) {
  machine.files().Put(Path("SchStatus.txt"), "Quota is used up\r\n");
  Set("StatusMessageIndicaton", "2");
  window.ViewLogClick();
  EXPECT_EQ(machine.files().Content(Path("SchStatus.txt")), "Quota is used up\r\n");
}

TEST_F(StatusControllerTest, ConsumesNothingAfterTheLogWhilePaused) {
  machine.files().Put(Path("SchStatus.txt"), "4 files backed up.\r\n");
  Set("Paused", "1");
  window.ViewLogClick();
  EXPECT_EQ(machine.files().Content(Path("SchStatus.txt")), "4 files backed up.\r\n");
}

TEST_F(StatusControllerTest, ChangesNothingInTheChannelWhenItCloses) {
  StartTransfer("1");
  const std::string before = machine.files().Content(Progress());
  window.CloseClick();
  EXPECT_EQ(machine.files().Content(Progress()), before);
  EXPECT_EQ(screen.events, Lines{"unload"});
  EXPECT_FALSE(View().fast_timer);
  EXPECT_NE(TraceText().find("Exiting without reset"), std::string::npos);
}

TEST_F(StatusControllerTest, KeepsTheEarlierTextsWhenEveryReadFails) {
  const StatusView before = View();
  machine.gate().FailAll("files.Read");
  state.ForceStatusRefresh = true;
  window.FastTick();
  window.SlowTick();
  EXPECT_EQ(View(), before);
  EXPECT_TRUE(View().slow_timer && View().fast_timer);
}

TEST_F(StatusControllerTest, KeepsTheEarlierTextsWhileTheEngineWritesItsFiles) {
  machine.LockFile(Path("scheduleData.txt"));
  window.SlowTick();
  EXPECT_EQ(View().status_line, "Backup will start in next 2 hour(s).");
  machine.UnlockFile(Path("scheduleData.txt"));
  machine.files().Put(Path("SchStatus.txt"), "4 files backed up.\r\n");
  machine.LockFile(Path("SchStatus.txt"));
  state.ForceStatusRefresh = true;
  window.SlowTick();
  EXPECT_EQ(View().status_line, "Backup will start in next 2 hour(s).");
  machine.UnlockFile(Path("SchStatus.txt"));
  window.SlowTick();
  EXPECT_EQ(View().status_line, "4 files backed up.");
}

TEST_F(StatusControllerTest, LosesNoRefreshThatIsForcedWhileItReads) {
  machine.WhenPumped([this] { state.ForceStatusRefresh = true; });
  window.SlowTick();
  EXPECT_TRUE(state.ForceStatusRefresh);
}

}  // namespace
}  // namespace status
