#include "schedule/schedule_form.h"

#include <gtest/gtest.h>

namespace schedule {
namespace {

TEST(ScheduleForm, JoinsTheDateOfTheCalendarAndTheTimesOfThePickers) {
  ScheduleForm form;
  form.TVcalendar = {.year = 2011, .month = 1, .day = 31, .hour = 1, .minute = 1, .second = 1};
  form.DTPicker = {.year = 1999, .month = 9, .day = 9, .hour = 9, .minute = 5, .second = 0};
  form.DTPicker1 = {.year = 1999, .month = 9, .day = 9, .hour = 23, .minute = 0, .second = 59};
  EXPECT_EQ(Sch_Build_Date(form), "01-31-2011 09:05:00");
  EXPECT_EQ(Sch_End_Date(form), "01-31-2011 23:00:59");
}

TEST(ScheduleForm, AnEntryBelowAnEarlierFolderIsLeftOut) {
  ScheduleForm form;
  form.Sch_Cmb_transset = "My set";
  form.sch_lbBackupSet = {"C:\\a\\", "C:\\a\\b.txt", "C:\\ab.txt", "D:\\x.txt", "D:\\x.txt.old"};
  EXPECT_EQ(Sch_BuildData(form), "My set;C:\\a\\;C:\\ab.txt;D:\\x.txt;D:\\x.txt.old");
}

TEST(ScheduleForm, AFolderCoversOnlyWhatFollowsIt) {
  ScheduleForm form;
  form.sch_lbBackupSet = {"C:\\a\\b.txt", "C:\\a\\"};
  EXPECT_EQ(Sch_BuildData(form), ";C:\\a\\b.txt;C:\\a\\");
}

TEST(ScheduleForm, AnEmptySetIsItsName) {
  ScheduleForm form;
  form.Sch_Cmb_transset = "x";
  EXPECT_EQ(Sch_BuildData(form), "x;");
}

}  // namespace
}  // namespace schedule
