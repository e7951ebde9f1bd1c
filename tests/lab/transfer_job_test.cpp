#include <gtest/gtest.h>

#include "tests/lab/lab_machine.h"

namespace {

constexpr std::uint64_t kWholeJob = 60'000;  // milliseconds; more than a job of the lab takes

TEST(TransferJob, AnnouncesAScheduledBackupInEveryFileOfTheContract) {
  LabMachine lab;
  lab.StartEngine();
  EXPECT_EQ("1", lab.Status(status::kDllStatus));
  EXPECT_EQ("", lab.Status(status::kRetValue));
  EXPECT_EQ("1", lab.FirstLine());
  EXPECT_TRUE(lab.machine.files().Has(lab.InUserFolder(shared::files::kScheduleInfo)));
  EXPECT_EQ("1", lab.Progress(status::kBackupInProgress));
  EXPECT_EQ("2", lab.Progress(status::kProgWndJob, status::kProgWndSection));
}

TEST(TransferJob, CountsFilesAndPercentAsItGoesOn) {
  LabMachine lab;
  lab.Script("Job", "Files", "4");
  lab.StartEngine();
  lab.machine.Run(2000);
  EXPECT_EQ("1", lab.Progress(status::kFileCount));
  EXPECT_EQ("25%", lab.Progress(status::kPercentage));
  lab.machine.Run(2000);
  EXPECT_EQ("50%", lab.Progress(status::kPercentage));
  EXPECT_EQ("00:00:04", lab.Progress(status::kTimeElapsed));
  EXPECT_EQ("00:00:04", lab.Progress(status::kEstimatedTime));
}

TEST(TransferJob, WaitsForTheAcknowledgementBeforeItSaysHowItEnded) {
  LabMachine lab;
  lab.Script("Job", "Files", "1");
  lab.StartEngine();
  lab.machine.Run(5000);
  EXPECT_EQ("2", lab.Status(status::kDllStatus));
  EXPECT_TRUE(lab.EngineRuns());
  lab.SetStatus(status::kDllStatus, "0");
  lab.machine.Run(1000);
  EXPECT_EQ("4", lab.Status(status::kDllStatus));
  EXPECT_FALSE(lab.EngineRuns());
}

TEST(TransferJob, EndsWithoutAnAgentToo) {
  LabMachine lab;
  lab.StartEngine();
  lab.machine.Run(kWholeJob);
  EXPECT_FALSE(lab.EngineRuns());
  EXPECT_EQ("4", lab.Status(status::kDllStatus));
}

TEST(TransferJob, LeavesResultScheduleAndLogOfASuccess) {
  LabMachine lab;
  lab.StartEngine();
  lab.machine.Run(kWholeJob);
  EXPECT_EQ("402", lab.Status(status::kRetValue));
  EXPECT_EQ("1", lab.Status(status::kStatusWindow));
  EXPECT_EQ("0", lab.FirstLine());
  EXPECT_FALSE(lab.machine.files().Has(lab.InUserFolder(shared::files::kScheduleInfo)));
  EXPECT_EQ("The scheduled backup has been completed.\r\n",
            lab.machine.files().Content(lab.InUserFolder(shared::files::kScheduleStatus)));
  const std::string log = lab.machine.files().Utf16Content(
      lab.InUserFolder("session\\Scheduled 03-01-2024 10-00-00.txt"));
  EXPECT_NE(std::string::npos, log.find("[Backed up Files: 8 of 8]")) << log;
}

TEST(TransferJob, PutsADailyRecordOffToTheNextDay) {
  LabMachine lab;
  lab.StartEngine();
  lab.machine.Run(kWholeJob);
  const std::string text =
      lab.machine.files().Content(lab.InUserFolder(shared::files::kScheduleData));
  EXPECT_NE(std::string::npos, text.find("\b\b03-02-2024 10:00:00\b\b")) << text;
  EXPECT_NE(std::string::npos, text.find("\b\b202403021000\b\b")) << text;
}

TEST(TransferJob, StandsStillWhilePausedIsOne) {
  LabMachine lab;
  lab.StartEngine();
  lab.machine.Run(2000);
  lab.SetStatus(status::kPaused, "1");
  lab.machine.Run(20'000);
  EXPECT_EQ("1", lab.Progress(status::kFileCount));
  lab.SetStatus(status::kPaused, "0");
  lab.machine.Run(1000);
  EXPECT_EQ("2", lab.Progress(status::kFileCount));
}

TEST(TransferJob, TakesLongerWithASmallerShareOfTheLine) {
  LabMachine lab;
  lab.machine.files().PutIni(lab.places.UserNameIni(), "Registry", "Bandwidth", "50");
  lab.StartEngine();
  lab.machine.Run(8000);
  EXPECT_EQ("2", lab.Progress(status::kFileCount));
}

TEST(TransferJob, TellsOfItsHiddenWindowWhileItRuns) {
  LabMachine lab;
  lab.StartEngine();
  EXPECT_EQ("0", lab.Progress(status::kProgWndStatus, status::kProgWndSection));
  EXPECT_EQ("131330", lab.Progress(status::kProgWndValue, status::kProgWndSection));
  lab.machine.Run(kWholeJob);
  EXPECT_EQ("0", lab.Progress(status::kProgWndValue, status::kProgWndSection));
}

TEST(TransferJob, AFrozenEngineHearsNothing) {
  LabMachine lab;
  lab.Script("Job", "Ending", "freeze");
  lab.StartEngine();
  lab.machine.Run(kWholeJob);
  lab.SetStatus(status::kCancel, "1");
  lab.machine.Run(kWholeJob);
  EXPECT_TRUE(lab.EngineRuns());
  EXPECT_EQ("1", lab.Status(status::kCancel));
}

TEST(TransferJob, HonoursCancelWithinHalfASecond) {
  LabMachine lab;
  lab.StartEngine();
  lab.machine.Run(3000);
  lab.SetStatus(status::kCancel, "1");
  lab.machine.Run(500);
  EXPECT_EQ("0", lab.Status(status::kCancel));
  EXPECT_EQ("5", lab.Status(status::kStatus));
  EXPECT_EQ("0", lab.Progress(status::kBackupInProgress));
  lab.machine.Run(kWholeJob);
  EXPECT_EQ("3", lab.Status(status::kDllStatus));
  EXPECT_EQ("The scheduled backup has been canceled.\r\n",
            lab.machine.files().Content(lab.InUserFolder(shared::files::kScheduleStatus)));
}

TEST(TransferJob, AFailureLeavesTheErrorMarkAndNoOutcomeLine) {
  LabMachine lab;
  lab.Script("Job", "Ending", "failure");
  lab.StartEngine();
  lab.machine.Run(kWholeJob);
  EXPECT_EQ("3", lab.Status(status::kDllStatus));
  EXPECT_TRUE(lab.machine.files().Has(lab.InUserFolder(shared::files::kScheduleStatusError)));
  EXPECT_FALSE(lab.machine.files().Has(lab.InUserFolder(shared::files::kScheduleStatus)));
}

TEST(TransferJob, AnExceededQuotaIsToldByResultAndIndicator) {
  LabMachine lab;
  lab.Script("Job", "Ending", "quota");
  lab.StartEngine();
  lab.machine.Run(kWholeJob);
  EXPECT_EQ("-432", lab.Status(status::kRetValue));
  EXPECT_EQ("2", lab.Status(status::kMessageIndicator));
}

TEST(TransferJob, ACrashLeavesTheJobAsItStood) {
  LabMachine lab;
  lab.Script("Job", "Ending", "crash");
  lab.StartEngine();
  lab.machine.Run(kWholeJob);
  EXPECT_FALSE(lab.EngineRuns());
  EXPECT_EQ("1", lab.FirstLine());
  EXPECT_EQ("1", lab.Progress(status::kBackupInProgress));
  EXPECT_EQ("", lab.Status(status::kRetValue));
}

TEST(TransferJob, ARestoreUsesItsOwnSectionAndNoSchedule) {
  LabMachine lab;
  lab.StartEngine("restore");
  EXPECT_EQ("1", lab.Progress(status::kRestoreInProgress, status::kRestoreProgressSection));
  EXPECT_EQ("3", lab.Progress(status::kProgWndJob, status::kProgWndSection));
  EXPECT_EQ("0", lab.FirstLine());
  EXPECT_EQ("", lab.Status(status::kDllStatus));
  lab.machine.Run(kWholeJob);
  EXPECT_EQ("0", lab.Progress(status::kRestoreInProgress, status::kRestoreProgressSection));
}

TEST(BackgroundModel, StartsTheEngineWhenTheJobIsDueAndOnlyOnce) {
  LabMachine lab;
  lab::PutDailySchedule(lab.ports(), lab.places, LabMachine::kUser,
                        {.year = 2024, .month = 3, .day = 1, .hour = 10, .minute = 1});
  lab.machine.processes().Start(lab.places.InInstallFolder(lab::kBackgroundProcess));
  lab.machine.Run(59'000);
  EXPECT_FALSE(lab.EngineRuns());
  lab.machine.Run(2000);
  EXPECT_TRUE(lab.EngineRuns());
  lab.machine.Run(kWholeJob);
  EXPECT_EQ(1u, lab.machine.journal().Count("process", "start " + lab.EnginePath()));
}

TEST(BackgroundModel, HonoursADisabledSchedule) {
  LabMachine lab;
  lab.machine.files().PutIni(lab.places.Profile(LabMachine::kUser), "Tolvex",
                             lab::Stored("ScheduleDisable"), lab::Stored("TRUE"));
  lab.machine.processes().Start(lab.places.InInstallFolder(lab::kBackgroundProcess));
  lab.machine.Run(kWholeJob);
  EXPECT_FALSE(lab.EngineRuns());
}

}  // namespace
