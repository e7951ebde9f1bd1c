#include "schedule/schedule_texts.h"

#include <gtest/gtest.h>

#include "schedule/record_store.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using testing::kSchedule;
using testing::Line;
using testing::Lines;

class ScheduleTextsTest : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  status::NextRun Next() { return texts_.GetScheduleDate(); }
  std::string Difference(std::string_view scheduled, std::string_view last_run = "") {
    return texts_.GetTimeDifference(scheduled, last_run).text;
  }

  ScheduleTexts texts_{ports(), state};
};

TEST_F(ScheduleTextsTest, TheRecordWithTheSmallestKeyRunsNext) {
  const std::string sql = Line("2", "SQLSERVERBACKUP", "202403021000", "03-02-2024 10:00:00");
  PutSchedule({"0", Line("1", "tventbkupjob", "202403032000"), sql,
               Line("3", "EXCHANGEBACKUP", "202403021001")});
  EXPECT_EQ(Next().line, sql);
  EXPECT_EQ(Next().job_name, "SQL Server");
  EXPECT_EQ(status::StartTimeField(Next().line), "03-02-2024 10:00:00");
}

TEST_F(ScheduleTextsTest, TheTableOfAnotherUserWhoseJobIsEditedStays) {
  machine.files().Put("C:\\Sorvane\\SorvaneEbob\\scheduleData.txt",
                      Lines({"2", Line("7", "EXCHANGEBACKUP", "202403052000")}));
  PutSchedule({"0", Line("1", "tventbkupjob", "1"), Line("2", "SQLSERVERBACKUP", "2")});
  RecordStore store(ports(), state);
  state.CurrentUser = "bob";
  store.ReadScheduleTable();
  state.CurrentUser = "ann";
  EXPECT_EQ(Next().line, Line("1", "tventbkupjob", "1"));
  EXPECT_TRUE(store.DB_WriteAllRecord("C:\\Sorvane\\SorvaneEbob\\scheduleData.txt", kSaveOfWizard));
  EXPECT_EQ(machine.files().Content("C:\\Sorvane\\SorvaneEbob\\scheduleData.txt"),
            Lines({"2", Line("7", "EXCHANGEBACKUP", "202403052000")}));
}

TEST_F(ScheduleTextsTest, EachKindHasItsNameAndTheDefaultSetNone) {
  const std::pair<std::string, std::string> rows[] = {
      {"tventbkupjob", ""},
      {"SQLSERVERBACKUP", "SQL Server"},
      {"SYSTEMSTATEBACKUP", "System State"},
      {"EXCHANGEBACKUP", "Exchange Server"},
      {"EXCHANGEBRICKBACKUP", "Exchange Brick Level"},
  };
  for (const auto& [keyword, name] : rows) {
    PutSchedule({"0", Line("1", keyword, "1")});
    EXPECT_EQ(Next().job_name, name);
    EXPECT_EQ(Next().line, Line("1", keyword, "1"));
  }
}

TEST_F(ScheduleTextsTest, ARecordWithAnEmptyKeyRunsNext) {
  PutSchedule({"0", Line("1", "tventbkupjob", "000000000000"), Line("2", "EXCHANGEBACKUP", "")});
  EXPECT_EQ(Next().job_name, "Exchange Server");
}

TEST_F(ScheduleTextsTest, AnUnknownKindIsNotTold) {
  PutSchedule({"0", Line("1", "SomethingElse", "1")});
  EXPECT_EQ(Next().line, "");
  PutSchedule({"0", Line("2", "EXCHANGEBACKUP", "2"), Line("1", "SomethingElse", "1")});
  EXPECT_EQ(Next().job_name, "Exchange Server");
}

TEST_F(ScheduleTextsTest, WithoutAScheduleThereIsNothingToTell) {
  EXPECT_EQ(Next().line, "");
  PutSchedule({"0"});
  EXPECT_EQ(Next().line, "");
  PutSchedule({"0", Line("1", "tventbkupjob", "1")});
  machine.LockFile(kSchedule);
  EXPECT_EQ(Next().line, "");
  EXPECT_EQ(Next().job_name, "");
}

TEST_F(ScheduleTextsTest, ADisabledScheduleSaysSoAndChangesNoRecord) {
  PutSchedule({"0", Line("2", "SQLSERVERBACKUP", "1")});
  const std::string before = Schedule();
  SetProfile(shared::keys::kScheduleDisable, "TRUE");
  EXPECT_EQ(Next().line, "You have disabled your scheduled job.");
  EXPECT_EQ(Next().job_name, "");
  EXPECT_EQ(Schedule(), before);
  machine.libraries().PutString("C:\\Sorvane\\TVToolTips.dll", 1603, "Aus");
  EXPECT_EQ(Next().line, "Aus.");
  SetProfile(shared::keys::kScheduleDisable, "FALSE");
  EXPECT_EQ(Next().job_name, "SQL Server");
}

TEST_F(ScheduleTextsTest, AStartThatBeginsWithTheLetterDIsBroughtToTheUsualForm) {
  for (const std::string_view format : {"M/d/yyyy", "dd/MM/yyyy"}) {
    SetFormats(format, "HH:mm:ss");
    PutSchedule({"0", Line("1", "tventbkupjob", "1", "Dec 5 2024 20:00:00")});
    EXPECT_EQ(status::StartTimeField(Next().line), "12-05-2024 20:00:00");
    PutSchedule({"0", Line("1", "tventbkupjob", "1", "d-day")});
    EXPECT_EQ(status::StartTimeField(Next().line), "d-day");
  }
}

TEST_F(ScheduleTextsTest, CountsForwardToTheNextRun) {
  EXPECT_EQ(Difference("03-01-2024 13:00:00"), "Backup will start in next 3 hour(s).");
  EXPECT_EQ(Difference("03-01-2024 09:59:00"), "");
  EXPECT_EQ(Difference(""), "");
}

TEST_F(ScheduleTextsTest, CountsBackToTheEndOfTheLastRun) {
  SetStatus("SchEndTime", "03-01-2024 09:31:00");
  const auto recent = texts_.GetTimeDifference("03-01-2024 13:00:00", "");
  EXPECT_EQ(recent.text, "Files backed up 29 minute(s) ago.");
  EXPECT_TRUE(recent.recent);
  machine.Jump(60000);
  const auto later = texts_.GetTimeDifference("03-01-2024 13:00:00", "");
  EXPECT_EQ(later.text, "Files backed up 1 hour(s) ago.");
  EXPECT_FALSE(later.recent);
}

TEST_F(ScheduleTextsTest, AWindowThatWaitsLooksBackToo) {
  SetStatus("StatusWindow", "1");
  EXPECT_EQ(Difference("03-01-2024 13:00:00", "03-01-2024 07:00:00"),
            "Files backed up 3 hour(s) ago.");
  EXPECT_EQ(Difference("03-01-2024 13:00:00"), "");
  SetStatus("StatusWindow", "0");
  EXPECT_EQ(Difference("03-01-2024 13:00:00", "03-01-2024 07:00:00"),
            "Backup will start in next 3 hour(s).");
}

TEST_F(ScheduleTextsTest, AFailureSaysSoAndComputesNothing) {
  SetStatus("SchEndTime", "03-01-2024 09:59:00");
  machine.files().Put(std::string(testing::kUser) + "SchStatusError.txt", "");
  const auto failed = texts_.GetTimeDifference("03-01-2024 13:00:00", "");
  EXPECT_EQ(failed.text, "Backup has failed");
  EXPECT_FALSE(failed.recent);
}

TEST_F(ScheduleTextsTest, TheLocaleChangesNoTimeText) {
  SetStatus("SchEndTime", "02-28-2024 10:00:00");
  for (const std::string_view format : {"M/d/yyyy", "dd/MM/yyyy", "d.M.yyyy"}) {
    SetFormats(format, "h:mm:ss tt", ",");
    EXPECT_EQ(Difference(""), "Files backed up 1 day(s) ago.");
  }
}

TEST_F(ScheduleTextsTest, BringsDatesToTheUsualForm) {
  EXPECT_EQ(texts_.ValidateSorvaneDateFormat("3/1/2024 1:00:00 PM"), "03-01-2024 13:00:00");
}

}  // namespace
}  // namespace schedule
