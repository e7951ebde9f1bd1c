#include "status/progress_channel.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/status/status_machine.h"

namespace status {
namespace {

using Lines = std::vector<std::string>;

class ProgressChannelTest : public ::testing::Test, public StatusMachine {
 protected:
  ProgressChannel channel{machine.platform(), state};
};

TEST_F(ProgressChannelTest, ReadsEveryKeyOfItsOwnSection) {
  SetProgress("BackupProgressInfo", "Tans Rate", "3.2 Mbps");
  SetProgress("RestoreProgressInfo", "Tans Rate", "1.0 Mbps");
  EXPECT_EQ(channel.ReadProgressValue(kBackupProgressSection, kTransferRate), "3.2 Mbps");
  EXPECT_EQ(channel.ReadProgressValue(kRestoreProgressSection, kTransferRate), "1.0 Mbps");
  EXPECT_EQ(channel.ReadProgressValue(kRestoreProgressSection, kFileName), "");
}

TEST_F(ProgressChannelTest, CutsALongPathAt255Characters) {
  SetProgress("BackupProgressInfo", "FileName", std::string(300, 'p'));
  EXPECT_EQ(channel.ReadProgressValue(kBackupProgressSection, kFileName), std::string(255, 'p'));
}

TEST_F(ProgressChannelTest, CutsTheWindowsValuesAtTheFirstNul) {
  SetProgress("ProgWnd", "Job", std::string("2\0x", 3));
  EXPECT_EQ(channel.ReadProgWnd(kProgWndJob), "2");
}

TEST_F(ProgressChannelTest, TakesTheWindowAsGoneForAValueThatIsNoNumber) {
  EXPECT_EQ(channel.ReadProgWndValue(), 0);
  for (const std::string_view value : {"abc", "-", "99999999999", " "}) {
    SetProgress("ProgWnd", "VALUE", value);
    EXPECT_EQ(channel.ReadProgWndValue(), 0) << value;
  }
  SetProgress("ProgWnd", "VALUE", "66304");
  EXPECT_EQ(channel.ReadProgWndValue(), 66304);
}

TEST_F(ProgressChannelTest, IsInProgressForABackupOrARestoreMarkedWithExactlyOne) {
  EXPECT_FALSE(channel.IsTransferInProgress());
  SetProgress("BackupProgressInfo", "BackupInProgress", "1");
  EXPECT_TRUE(channel.IsTransferInProgress());
  SetProgress("BackupProgressInfo", "BackupInProgress", "0");
  SetProgress("RestoreProgressInfo", "RestoreInProgress", "1");
  EXPECT_TRUE(channel.IsTransferInProgress());
  SetProgress("RestoreProgressInfo", "RestoreInProgress", "11");
  EXPECT_FALSE(channel.IsTransferInProgress());
}

TEST_F(ProgressChannelTest, IsNotInProgressWithABlankBeforeTheOneThoughPausedIsPaused) {
  // Only quotes keep the blank: the reader removes bare ones.
  SetProgress("BackupProgressInfo", "BackupInProgress", "\" 1\"");
  Set("Paused", "\" 1\"");
  EXPECT_FALSE(channel.IsTransferInProgress());
  EXPECT_TRUE(channel.SyncPaused());
}

TEST_F(ProgressChannelTest, ReadsThePauseAnewAtEachCall) {
  EXPECT_FALSE(channel.SyncPaused());
  Set("Paused", "1");
  EXPECT_TRUE(channel.SyncPaused());
  Set("Paused", "0");
  EXPECT_FALSE(channel.SyncPaused());
}

TEST_F(ProgressChannelTest, ResetsInTheOrderThatOtherProgramsKnow) {
  machine.journal().Clear();
  channel.ResetProgressFile();
  const std::string progress = Progress();
  const std::string wnd = progress + " [ProgWnd] ";
  const std::string backup = progress + " [BackupProgressInfo] ";
  const std::string restore = progress + " [RestoreProgressInfo] ";
  EXPECT_EQ(machine.journal().Excerpt("profile"), (Lines{Profile() + " [BackupStatus] Paused=0",
                                                         wnd + "VALUE=0",
                                                         wnd + "Job=",
                                                         backup + "BackupInProgress=0",
                                                         backup + "Percentage=",
                                                         backup + "FileName=",
                                                         backup + "Backedup Files=",
                                                         backup + "Total Progress=",
                                                         backup + "Time Elapsed=",
                                                         backup + "Est Time=",
                                                         backup + "Tans Rate=",
                                                         backup + "FilePath=",
                                                         backup + "FilePer=",
                                                         backup + "FilePath Dual=",
                                                         backup + "FilePer Dual=",
                                                         restore + "RestoreInProgress =0",
                                                         restore + "Percentage =",
                                                         restore + "FileName =",
                                                         restore + "Backedup Files =",
                                                         restore + "Total Progress =",
                                                         restore + "Time Elapsed =",
                                                         restore + "Est Time =",
                                                         restore + "Tans Rate =",
                                                         restore + "FilePer =",
                                                         restore + "FilePath Dual=",
                                                         restore + "FilePer Dual="}));
}

TEST_F(ProgressChannelTest, ResetClearsTheRestoreThatTheEngineWrote) {
  StartTransfer("3");
  SetProgress("RestoreProgressInfo", "Total Progress", "40% done");
  SetProgress("RestoreProgressInfo", "FilePath", "C:\\a.txt");
  channel.ResetProgressFile();
  EXPECT_FALSE(channel.IsTransferInProgress());
  EXPECT_EQ(channel.ReadProgressValue(kRestoreProgressSection, kTotalProgress), "");
  EXPECT_EQ(channel.ReadProgressValue(kRestoreProgressSection, kFilePath), "C:\\a.txt");
}

TEST_F(ProgressChannelTest, ResetLeavesTheStatusOfTheWindow) {
  StartTransfer("1", "1");
  channel.ResetProgressFile();
  EXPECT_EQ(channel.ReadProgWnd(kProgWndStatus), "1");
  EXPECT_EQ(channel.ReadProgWndValue(), 0);
  EXPECT_EQ(channel.ReadProgWnd(kProgWndJob), "");
}

TEST_F(ProgressChannelTest, TakesTheFirstLineAsTheOutcome) {
  EXPECT_EQ(channel.ReadOutcome(), "");
  machine.files().Put(Path("SchStatus.txt"), "12 files backed up.\r\nmore\r\n");
  EXPECT_EQ(channel.ReadOutcome(), "12 files backed up.");
  channel.WriteOutcome("");
  EXPECT_EQ(channel.ReadOutcome(), "");
}

TEST_F(ProgressChannelTest, TakesTheErrorFileAsTheOutcomeOnlyWithoutTheOtherFile) {
  machine.files().Put(Path("SchStatusError.txt"), "");
  EXPECT_EQ(channel.ReadOutcome(), "Backup has failed");
  machine.files().Put(Path("SchStatus.txt"), "");
  EXPECT_EQ(channel.ReadOutcome(), "");
}

TEST_F(ProgressChannelTest, MakesAndRemovesTheQuotaMarkerOnce) {
  machine.journal().Clear();
  channel.MarkQuota();
  channel.MarkQuota();
  EXPECT_TRUE(channel.IsQuotaMarked());
  EXPECT_EQ(machine.journal().Excerpt("file").size(), 1u);
  channel.UnmarkQuota();
  EXPECT_FALSE(channel.IsQuotaMarked());
}

TEST_F(ProgressChannelTest, GivesAnUnlimitedAccountOneGibibyteMoreThanItUses) {
  SetQuota("2147483648", "1");
  EXPECT_EQ(channel.ReadQuotaStatus().used, 2147483648.0);
  EXPECT_EQ(channel.ReadQuotaStatus().max, 3221225472.0);
}

TEST_F(ProgressChannelTest, TakesUnsetQuotaAsUnknown) {
  EXPECT_LT(channel.ReadQuotaStatus().used, 0);
  EXPECT_EQ(channel.ReadQuotaStatus().max, 0);
}

TEST_F(ProgressChannelTest, ReadsTheKindOfTheRunningJob) {
  EXPECT_FALSE(channel.HasSchedule());
  EXPECT_EQ(channel.ReadJobKindCode(), "");
  machine.files().Put(Path("scheduleData.txt"), "1\r\n1\b\btventbkupjob");
  EXPECT_TRUE(channel.HasSchedule());
  EXPECT_EQ(channel.ReadJobKindCode(), "1");
}

}  // namespace
}  // namespace status
