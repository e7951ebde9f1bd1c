#include <gtest/gtest.h>

#include "schedule/record_store.h"
#include "schedule/scheduler.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using testing::kSchedule;
using testing::kUserNameIni;
using testing::Line;
using testing::Lines;

class SchedulerSave : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  SchedulerSave() {
    PutSchedule({"0", Line("1", "tventbkupjob", "202403022000"), Line("2", "Other", "1")});
    RecordStore(ports(), state).ReadScheduleTable();
    state.ScheduleDraft = state.ScheduleTable[0];
    state.ScheduleJobType = 1;
    form_.edited_user = "ann";
    // A Monday.
    form_.TVcalendar = {.year = 2011, .month = 1, .day = 31, .hour = 0, .minute = 0, .second = 0};
    form_.DTPicker = {.year = 2000, .month = 1, .day = 1, .hour = 9, .minute = 5, .second = 0};
  }

  const shared::ScheduleRecord& Save() {
    EXPECT_TRUE(clsscheduler1(ports(), state).Sch_SaveScheduleJob(form_));
    RecordStore(ports(), state).ReadScheduleTable();
    return state.ScheduleTable[0];
  }

  std::string Setting(std::string_view key) {
    return machine.files().IniValue(kUserNameIni, "Registry", key);
  }

  ScheduleForm form_;
};

TEST_F(SchedulerSave, StoresStartKeyAndTheMomentOfTheSave) {
  state.ScheduleDraft.FrequencyCode = "5";
  const auto& record = Save();
  EXPECT_EQ(record.StartDateTime, "01-31-2011 09:05:00");
  EXPECT_EQ(record.SortKey, "201101310905");
  EXPECT_EQ(record.CreatedDateTime, "03-01-2024 10:00:00");
}

TEST_F(SchedulerSave, MonthFirstAWeekDayJobStartsOnTheFirstTickedDayAndIsOrderedByTheOther) {
  state.ScheduleDraft.FrequencyCode = "6";
  state.ScheduleDraft.WeekDayMask = "0000001";
  const auto& record = Save();
  EXPECT_EQ(record.StartDateTime, "2/5/2011 9:05:00 AM");
  EXPECT_EQ(record.SortKey, "201101310905");
}

TEST_F(SchedulerSave, DayFirstTheStartIsStoredUnadvanced) {
  for (const std::string_view format : {"dd/MM/yyyy", "d.M.yyyy", "dd-MM-yy"}) {
    SetFormats(format, "HH:mm:ss", ",");
    state.ScheduleDraft.FrequencyCode = "6";
    state.ScheduleDraft.WeekDayMask = "0000001";
    const auto& record = Save();
    EXPECT_EQ(record.StartDateTime, "01-31-2011 09:05:00");
    EXPECT_EQ(record.SortKey, "201101310905");
  }
}

TEST_F(SchedulerSave, OtherFrequenciesStartAsChosen) {
  for (const std::string code : {"1", "2", "3", "4", "5", "7", "8", ""}) {
    state.ScheduleDraft.FrequencyCode = code;
    state.ScheduleDraft.WeekDayMask = "0000001";
    EXPECT_EQ(Save().StartDateTime, "01-31-2011 09:05:00") << code;
  }
}

TEST_F(SchedulerSave, TheJobTypeGivesKeywordAndANumberWhereThereIsNone) {
  const std::tuple<int, std::string, std::string> rows[] = {{1, "tventbkupjob", "1"},
                                                            {4, "tventbkupjob", "1"},
                                                            {2, "SQLSERVERBACKUP", "2"},
                                                            {5, "SYSTEMSTATEBACKUP", "3"},
                                                            {6, "EXCHANGEBACKUP", "4"}};
  for (const auto& [type, keyword, number] : rows) {
    state.ScheduleJobType = static_cast<std::int16_t>(type);
    state.ScheduleDraft.RecordNo.clear();
    EXPECT_EQ(Save().BackupSetName, keyword);
    EXPECT_EQ(state.ScheduleTable[0].RecordNo, number);
    state.ScheduleDraft.RecordNo = "99";
    EXPECT_EQ(Save().RecordNo, "99");
  }
}

TEST_F(SchedulerSave, EachAddressIsClosedByASemicolon) {
  form_.listMailAdd = {"a@b.c", "d@e.f"};
  EXPECT_EQ(Save().MailIds, "a@b.c;d@e.f;");
  form_.listMailAdd.clear();
  EXPECT_EQ(Save().MailIds, "");
}

TEST_F(SchedulerSave, ACutOffIsHandedToTheEngine) {
  form_.ChkEndTime = true;
  form_.DTPicker1 = {.year = 2000, .month = 1, .day = 1, .hour = 11, .minute = 0, .second = 0};
  Save();
  EXPECT_EQ(Setting("StopSchedule"), "1");
  EXPECT_EQ(Setting("StopScheduleTime"), "01-31-2011 11:00:00");
  form_.ChkEndTime = false;
  Save();
  EXPECT_EQ(Setting("StopSchedule"), "0");
  EXPECT_EQ(Setting("StopScheduleTime"), "");
}

TEST_F(SchedulerSave, OtherRecordsAndTheEnginesCodeStay) {
  PutSchedule({"2", Line("1", "tventbkupjob", "202403022000"), Line("2", "Other", "1")});
  Save();
  EXPECT_EQ(Schedule().substr(0, 3), "2\r\n");
  EXPECT_NE(Schedule().find(Line("2", "Other", "1") + "\r\n"), std::string::npos);
}

TEST_F(SchedulerSave, GoesToTheFileOfTheEditedUser) {
  machine.files().PutFolder("C:\\Sorvane\\SorvaneEbob");
  form_.edited_user = "bob";
  const std::string before = Schedule();
  EXPECT_TRUE(clsscheduler1(ports(), state).Sch_SaveScheduleJob(form_));
  EXPECT_EQ(Schedule(), before);
  EXPECT_TRUE(machine.files().Has("C:\\Sorvane\\SorvaneEbob\\scheduleData.txt"));
}

TEST_F(SchedulerSave, AnElementThatTheTableDoesNotHaveIsNotSaved) {
  state.CurrentRecordIndex = 7;
  const std::string before = Schedule();
  EXPECT_FALSE(clsscheduler1(ports(), state).Sch_SaveScheduleJob(form_));
  EXPECT_EQ(Schedule(), before);
}

}  // namespace
}  // namespace schedule
