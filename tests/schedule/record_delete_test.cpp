#include <gtest/gtest.h>

#include "schedule/record_store.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using testing::kSchedule;
using testing::Line;
using testing::Lines;

class RecordDelete : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  RecordStore store_{ports(), state};
  const std::string default_ = Line("1", "tventbkupjob", "202403022000");
  const std::string sql_ = Line("2", "SQLSERVERBACKUP", "202403032000");
  const std::string brick_ = Line("5", "EXCHANGEBRICKBACKUP", "202403042000");
};

TEST_F(RecordDelete, DropsTheFirstRecordOfTheRowsName) {
  PutSchedule({"0", default_, sql_, sql_});
  EXPECT_TRUE(store_.DeleteFromList("SQLSERVERBACKUP"));
  EXPECT_EQ(Schedule(), Lines({"0", default_, sql_}));
  EXPECT_EQ(state.CurrentRecordIndex, 1u);
}

TEST_F(RecordDelete, DeletingTheOnlyRecordRemovesTheFile) {
  PutSchedule({"0", sql_});
  EXPECT_TRUE(store_.DeleteFromList("SQLSERVERBACKUP"));
  EXPECT_FALSE(HasSchedule());
}

TEST_F(RecordDelete, TheRowOfTheDefaultSetTakesTheFirstRecordWhateverItHolds) {
  PutSchedule({"0", sql_, default_});
  EXPECT_TRUE(store_.DeleteFromList("DEFAULT BACKUPSET"));
  EXPECT_EQ(Schedule(), Lines({"0", default_}));
}

TEST_F(RecordDelete, DeletesEachKindThatTheListDeletes) {
  for (const std::string name : {"tventbkupjob", "SQLSERVERBACKUP", "SYSTEMSTATEBACKUP",
                                 "EXCHANGEBACKUP", "TVEXCHANGEBRICKBACKUP"}) {
    PutSchedule({"0", Line("1", name, "1"), brick_});
    EXPECT_TRUE(store_.DeleteFromList(name));
    EXPECT_EQ(Schedule(), Lines({"0", brick_})) << name;
  }
}

TEST_F(RecordDelete, ABrickLevelJobIsNotDeletedThoughTheFirstLineIsReset) {
  PutSchedule({"2", default_, brick_});
  EXPECT_TRUE(store_.DeleteFromList("EXCHANGEBRICKBACKUP"));
  EXPECT_EQ(Schedule(), Lines({"0", default_, brick_}));
}

TEST_F(RecordDelete, ARowThatNoRecordMatchesRewritesNothing) {
  PutSchedule({"2", default_});
  const std::string before = Schedule();
  EXPECT_FALSE(store_.DeleteFromList("SQLSERVERBACKUP"));
  EXPECT_EQ(Schedule(), before);
  machine.files().Delete(kSchedule);
  EXPECT_FALSE(store_.DeleteFromList("DEFAULT BACKUPSET"));
  EXPECT_FALSE(HasSchedule());
}

TEST_F(RecordDelete, ALockedFileIsLeftAlone) {
  PutSchedule({"0", default_});
  machine.LockFile(kSchedule);
  EXPECT_FALSE(store_.DeleteFromList("DEFAULT BACKUPSET"));
  EXPECT_FALSE(store_.DB_DeleteRecord("1", kSchedule));
  EXPECT_EQ(Schedule(), Lines({"0", default_}));
}

TEST_F(RecordDelete, RemovesEveryRecordOfANumber) {
  PutSchedule({"2", default_, sql_, Line("1", "X", "1")});
  EXPECT_TRUE(store_.DB_DeleteRecord("1", kSchedule));
  EXPECT_EQ(Schedule(), Lines({"0", sql_}));
  EXPECT_EQ(state.ScheduleCount, 1u);
}

TEST_F(RecordDelete, ANumberMatchesAsAText) {
  PutSchedule({"0", Line("01", "A", "1"), Line("1", "B", "1"), Line("10", "C", "1")});
  EXPECT_TRUE(store_.DB_DeleteRecord("1", kSchedule));
  EXPECT_EQ(Schedule(), Lines({"0", Line("01", "A", "1"), Line("10", "C", "1")}));
}

TEST_F(RecordDelete, LinesWithoutASeparatorGoWithTheDeletedRecord) {
  PutSchedule({"0", sql_, "odd", "", default_});
  EXPECT_TRUE(store_.DB_DeleteRecord("1", kSchedule));
  EXPECT_EQ(Schedule(), Lines({"0", sql_}));
}

TEST_F(RecordDelete, RemovingTheLastRecordRemovesTheFile) {
  PutSchedule({"0", default_});
  EXPECT_TRUE(store_.DB_DeleteRecord("1", kSchedule));
  EXPECT_FALSE(HasSchedule());
}

TEST_F(RecordDelete, WithoutANumberOrAFileNothingIsDone) {
  PutSchedule({"2", default_});
  EXPECT_TRUE(store_.DB_DeleteRecord("", kSchedule));
  EXPECT_EQ(Schedule(), Lines({"2", default_}));
  machine.files().Delete(kSchedule);
  EXPECT_TRUE(store_.DB_DeleteRecord("1", kSchedule));
  EXPECT_FALSE(HasSchedule());
}

TEST_F(RecordDelete, IsTracedAroundItsWork) {
  store_.DB_DeleteRecord("", kSchedule);
  const std::string trace =
      machine.files().Utf16Content(std::string(testing::kUser) + "TrayTraceFile.txt");
  EXPECT_NE(trace.find("03-01-2024 10:00:00  [INFORMATION] Enter DB_DeleteRecord\r\n"
                       "03-01-2024 10:00:00  [INFORMATION] Exit DB_DeleteRecord\r\n"),
            std::string::npos)
      << trace;
}

}  // namespace
}  // namespace schedule
