#include "schedule/scheduler.h"

#include <gtest/gtest.h>

#include "shared/trace.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using platform::LocalTime;

LocalTime Moment(int month, int day, int hour, int minute) {
  return {.year = 2011, .month = month, .day = day, .hour = hour, .minute = minute, .second = 30};
}

class Scheduler : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  // The check of a start on 31 January while it is `now`.
  int Check(int hour, int minute, const LocalTime& now) {
    machine.SetClock(now);
    ScheduleForm form;
    form.TVcalendar = form.DTPicker = Moment(1, 31, hour, minute);
    return scheduler_.Schwiz_validate_Start4(form);
  }

  clsscheduler1 scheduler_{ports(), state};
};

TEST_F(Scheduler, AStartTenMinutesAgoPassesAndElevenDoNot) {
  EXPECT_EQ(Check(12, 30, Moment(1, 31, 12, 40)), 100);
  EXPECT_EQ(Check(12, 30, Moment(1, 31, 12, 41)), 108);
  EXPECT_EQ(Check(12, 30, Moment(1, 31, 12, 0)), 100);
  EXPECT_EQ(Check(12, 30, Moment(2, 1, 0, 0)), 108);
}

TEST_F(Scheduler, TheToleranceCarriesIntoTheHour) {
  EXPECT_EQ(Check(12, 55, Moment(1, 31, 13, 5)), 100);
  EXPECT_EQ(Check(12, 55, Moment(1, 31, 13, 6)), 108);
  EXPECT_EQ(Check(12, 50, Moment(1, 31, 13, 0)), 100);
  EXPECT_EQ(Check(12, 50, Moment(1, 31, 13, 1)), 108);
}

TEST_F(Scheduler, TheToleranceDoesNotCarryIntoTheDay) {
  EXPECT_EQ(Check(23, 55, Moment(1, 31, 23, 59)), 100);
  EXPECT_EQ(Check(23, 55, Moment(2, 1, 0, 0)), 108);
}

TEST_F(Scheduler, ADecimalCommaChangesNoCheck) {
  SetFormats("dd.MM.yyyy", "HH:mm:ss", ",");
  EXPECT_EQ(Check(12, 55, Moment(1, 31, 13, 5)), 100);
  EXPECT_EQ(Check(12, 55, Moment(1, 31, 13, 6)), 108);
}

TEST_F(Scheduler, GivesItemsOfTheLocale) {
  SetFormats("dd/MM/yyyy", "HH:mm:ss");
  EXPECT_EQ(scheduler_.GetLocaleString(platform::kLocaleShortDate), "dd/MM/yyyy");
  EXPECT_EQ(scheduler_.GetLocaleString(12345), "");
  machine.gate().FailAll("locale.Item");
  EXPECT_EQ(scheduler_.GetLocaleString(platform::kLocaleShortDate), "");
}

TEST_F(Scheduler, TheLocaleIsDayFirstByTheFirstLetterOfItsShortDate) {
  const std::pair<std::string_view, bool> rows[] = {
      {"dd/MM/yyyy", true},  {"d.M.yy", true},       {"DD-MM-YYYY", true}, {"M/d/yyyy", false},
      {"yyyy-MM-dd", false}, {"MMM dd yyyy", false}, {"", false},          {" d/M/yyyy", false}};
  for (const auto& [format, day_first] : rows) {
    SetFormats(format, "HH:mm:ss");
    EXPECT_EQ(IsDayFirst(state), day_first) << format;
  }
}

TEST_F(Scheduler, TheDraftIsEmptiedForFourJobTypes) {
  for (const int type : {0, 1, 2, 3, 4, 5, 6, 7}) {
    state.ScheduleDraft = {.RecordNo = "1",
                           .BackupSetName = "x",
                           .StartDateTime = {},
                           .CreatedDateTime = {},
                           .MonthDay = {},
                           .CarriedValue = {},
                           .MailIds = {},
                           .MailLogFlag = {},
                           .MailNotifyMode = {},
                           .SortKey = {},
                           .FrequencyCode = {},
                           .WeekDayMask = "1"};
    scheduler_.InitializeScheduleJob(static_cast<std::int16_t>(type));
    const bool emptied = type == 1 || type == 2 || type == 5 || type == 6;
    EXPECT_EQ(state.ScheduleDraft == shared::ScheduleRecord(), emptied) << type;
  }
}

// 31 January 2011 is a Monday.
TEST_F(Scheduler, AStartOnATickedDayStays) {
  state.ScheduleDraft.WeekDayMask = "0100000";
  EXPECT_EQ(scheduler_.ValidateAddDay1("01-31-2011 09:05:00"), "01-31-2011 09:05:00");
}

TEST_F(Scheduler, AStartMovesToTheFirstTickedDayInTheSystemsForm) {
  const std::pair<std::string, std::string> rows[] = {
      {"0010000", "2/1/2011 9:05:00 AM"}, {"0001000", "2/2/2011 9:05:00 AM"},
      {"0000100", "2/3/2011 9:05:00 AM"}, {"0000010", "2/4/2011 9:05:00 AM"},
      {"0000001", "2/5/2011 9:05:00 AM"}, {"1000000", "2/6/2011 9:05:00 AM"},
      {"1000001", "2/5/2011 9:05:00 AM"}};
  for (const auto& [mask, expected] : rows) {
    state.ScheduleDraft.WeekDayMask = mask;
    EXPECT_EQ(scheduler_.ValidateAddDay1("01-31-2011 09:05:00"), expected) << mask;
  }
}

TEST_F(Scheduler, WithoutATickedDayTheSearchEnds) {
  for (const std::string mask : {"0000000", "", "000", "xxxxxxx"}) {
    state.ScheduleDraft.WeekDayMask = mask;
    EXPECT_EQ(scheduler_.ValidateAddDay1("01-31-2011 09:05:00"), "01-31-2011 09:05:00") << mask;
  }
}

TEST_F(Scheduler, ATextThatIsNoDateIsNotMoved) {
  state.ScheduleDraft.WeekDayMask = "1111111";
  EXPECT_EQ(scheduler_.ValidateAddDay1("02-30-2011 09:05:00"), "02-30-2011 09:05:00");
  EXPECT_EQ(scheduler_.ValidateAddDay1(""), "");
}

TEST_F(Scheduler, ADayFirstLocaleReadsTheTextItsOwnWay) {
  SetFormats("dd/MM/yyyy", "HH:mm:ss");
  state.ScheduleDraft.WeekDayMask = "1000000";
  // 5 April 2011 is a Tuesday.
  EXPECT_EQ(scheduler_.ValidateAddDay1("05-04-2011 21:05:00"), "10/04/2011 21:05:00");
}

TEST_F(Scheduler, ConvertsByTheFormatsOfTheState) {
  SetFormats("dd.MM.yyyy", "h:mm:ss tt");
  EXPECT_EQ(scheduler_.ConvertToDate("01-31-2011 15:05:00"), "31.01.2011");
  EXPECT_EQ(scheduler_.ConvertToTime("01-31-2011 15:05:00"), "03:05:00 PM");
  EXPECT_EQ(scheduler_.CheckValidDateFormat("01-31-2011 15:05:00"), "True");
  EXPECT_TRUE(scheduler_.CheckValidDateTime("01-31-2011"));
}

TEST_F(Scheduler, ANotificationNeedsAnAddressThatIsOne) {
  ScheduleForm form;
  EXPECT_EQ(scheduler_.Sch_Mail_validate(form), 100);
  for (form.rdMailNotify = 1; form.rdMailNotify <= 2; ++form.rdMailNotify) {
    form.listMailAdd.clear();
    EXPECT_EQ(scheduler_.Sch_Mail_validate(form), 104);
    form.listMailAdd = {"nobody", "a@bb.cc"};
    EXPECT_EQ(scheduler_.Sch_Mail_validate(form), 105);
    form.listMailAdd = {"a@bb.cc", "nobody"};
    EXPECT_EQ(scheduler_.Sch_Mail_validate(form), 100);
  }
}

TEST_F(Scheduler, OffersTheAddressesOfTheEditedUser) {
  machine.files().Put("C:\\Sorvane\\SorvaneEbob\\Mailid.txt", "a@b.c\r\n\r\nd@e.f\r\n");
  ScheduleForm form;
  form.edited_user = "bob";
  scheduler_.Sch_LoadMailid(form);
  EXPECT_EQ(form.cmbMailTo, (std::vector<std::string>{"a@b.c", "d@e.f"}));
  EXPECT_TRUE(form.btnRemove);
  form = {};
  form.edited_user = "ann";
  scheduler_.Sch_LoadMailid(form);
  EXPECT_FALSE(form.btnRemove);
}

TEST_F(Scheduler, EnablesAndDisablesTheControlsOfTheMail) {
  ScheduleForm form;
  scheduler_.Sch_mailenable(form);
  EXPECT_TRUE(form.mail_controls);
  scheduler_.Sch_maildisable(form);
  EXPECT_FALSE(form.mail_controls);
}

}  // namespace
}  // namespace schedule
