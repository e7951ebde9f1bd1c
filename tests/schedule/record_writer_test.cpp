#include "schedule/record_writer.h"

#include <gtest/gtest.h>

#include "schedule/record_store.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using testing::kSchedule;
using testing::Line;
using testing::Lines;

class RecordWriterTest : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  bool Write(const WriterPolicy& policy) { return store_.DB_WriteAllRecord(kSchedule, policy); }

  RecordStore store_{ports(), state};
  const std::string a_ = Line("1", "tventbkupjob", "202403022000");
  const std::string b_ = Line("2", "SQLSERVERBACKUP", "202403032000");
};

TEST_F(RecordWriterTest, WhatIsReadAndWrittenBackIsTheSameByteForByte) {
  PutSchedule({"0", a_, b_, Line("9", "AnyOther", "key\b\b and more")});
  const std::string before = Schedule();
  store_.ReadScheduleTable();
  EXPECT_TRUE(Write(kSaveOfWizard));
  EXPECT_EQ(Schedule(), before);
}

TEST_F(RecordWriterTest, ASaveKeepsTheFirstLineThatTheEngineHasPutMeanwhile) {
  PutSchedule({"0", a_});
  store_.ReadScheduleTable();
  PutSchedule({"2", a_});
  EXPECT_TRUE(Write(kSaveOfWizard));
  EXPECT_EQ(Schedule(), Lines({"2", a_}));
}

TEST_F(RecordWriterTest, ASaveWritesAnyFirstLineBackAsItStands) {
  for (const std::string first : {"0", "", "77", " odd "}) {
    PutSchedule({first, a_});
    store_.ReadScheduleTable();
    EXPECT_TRUE(Write(kSaveOfWizard));
    EXPECT_EQ(Schedule(), Lines({first, a_}));
  }
}

TEST_F(RecordWriterTest, ASaveOfANewFileLeavesItsFirstLineEmpty) {
  state.ScheduleTable.resize(2);
  state.ScheduleTable[0].BackupSetName = "X";
  state.ScheduleCount = 1;
  EXPECT_TRUE(Write(kSaveOfWizard));
  EXPECT_EQ(Schedule(), "\r\n\b\bX" + std::string(20, '\b') + "\r\n");
}

TEST_F(RecordWriterTest, ADeleteResetsTheFirstLine) {
  PutSchedule({"2", a_});
  store_.ReadScheduleTable();
  EXPECT_TRUE(Write(kDeleteOfList));
  EXPECT_EQ(Schedule(), Lines({"0", a_}));
}

TEST_F(RecordWriterTest, ARecordWithoutANameIsDropped) {
  PutSchedule({"0", a_, Line("5", "", "1"), "", b_});
  store_.ReadScheduleTable();
  EXPECT_TRUE(Write(kSaveOfWizard));
  EXPECT_EQ(Schedule(), Lines({"0", a_, b_}));
}

TEST_F(RecordWriterTest, AScheduleWithNothingLeftHasNoFile) {
  for (const WriterPolicy& policy : {kSaveOfWizard, kDeleteOfList}) {
    PutSchedule({"0", a_});
    store_.ReadScheduleTable();
    state.ScheduleTable[0].BackupSetName.clear();
    EXPECT_TRUE(Write(policy));
    EXPECT_FALSE(HasSchedule());
  }
}

TEST_F(RecordWriterTest, AnEmptyTableWithoutAFileLeavesNone) {
  EXPECT_TRUE(Write(kSaveOfWizard));
  EXPECT_FALSE(HasSchedule());
}

TEST_F(RecordWriterTest, TheDefaultScheduleOverThreeRecordsLeavesOne) {
  PutSchedule({"0", a_, b_, b_});
  store_.ReadScheduleTable();
  EXPECT_TRUE(Write(kDefaultSchedule));
  EXPECT_EQ(Schedule(), Lines({"0", a_}));
  EXPECT_EQ(state.ScheduleCount, 1u);
}

TEST_F(RecordWriterTest, TheDefaultScheduleKeepsAFirstLineThatIsNotEmpty) {
  PutSchedule({"3", a_});
  store_.ReadScheduleTable();
  EXPECT_TRUE(Write(kDefaultSchedule));
  EXPECT_EQ(Schedule(), Lines({"3", a_}));
  PutSchedule({"", a_});
  EXPECT_TRUE(Write(kDefaultSchedule));
  EXPECT_EQ(Schedule(), Lines({"0", a_}));
}

TEST_F(RecordWriterTest, TheDefaultScheduleOfANewFileBeginsWithZero) {
  PutSchedule({"3", a_});
  store_.ReadScheduleTable();
  machine.files().Delete(kSchedule);
  EXPECT_TRUE(Write(kDefaultSchedule));
  EXPECT_EQ(Schedule(), Lines({"0", a_}));
}

TEST_F(RecordWriterTest, AFileOfAnotherUserLosesItsFirstLineInASave) {
  PutSchedule({"2", a_});
  store_.ReadScheduleTable();
  state.ScheduleFilePath = "C:\\Sorvane\\SorvaneEbob\\scheduleData.txt";
  EXPECT_TRUE(Write(kSaveOfWizard));
  EXPECT_EQ(Schedule(), Lines({"", a_}));
}

}  // namespace
}  // namespace schedule
