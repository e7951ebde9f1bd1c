// A form with one control of each kind.
#pragma once

#include "forms/bands.h"
#include "forms/form.h"

namespace forms::testing {

class frmSample : public Form {
 public:
  explicit frmSample(FormHost& host);
  ~frmSample() override { Unload(); }

  Label lblTitle{*this, "lblTitle", "Scheduled jobs", LabelStyle::kTitle};
  Picture imgClose{*this, "imgClose", "close", {20, 20}};
  Label lblText{*this, "lblText", "The next backup starts tonight."};
  Label lblLink{*this, "lblLink", "View the log", LabelStyle::kLink};
  TextBox txtName{*this, "txtName", "ann"};
  TextBox txtNotes{*this, "txtNotes", "First line\r\nSecond line", TextBoxStyle::kSeveralLines};
  TextBox txtPath{*this, "txtPath", "C:\\Documents", TextBoxStyle::kReadOnly};
  ComboBox cmbDay{*this, "cmbDay"};
  ComboBox cmbMail{*this, "cmbMail", true};
  DatePicker dtpDate{*this, "dtpDate", DatePickerStyle::kDate};
  DatePicker dtpTime{*this, "dtpTime", DatePickerStyle::kTime};
  CheckBox chkNotify{*this, "chkNotify", "Show this dialog after each schedule backup"};
  RadioButton optWeekly{*this, "optWeekly", "Weekly"};
  RadioButton optMonthly{*this, "optMonthly", "Monthly"};
  RadioButton optOther{*this, "optOther", "Another group", 1};
  ProgressBar barQuota{*this, "barQuota"};
  Slider sldBand{*this, "sldBand"};
  ListView lvJobs{*this, "lvJobs"};
  Button cmdOk{*this, "cmdOk", "OK", ButtonRole::kDefault};
  Button cmdClose{*this, "cmdClose", "Close", ButtonRole::kCancel};
  Button cmdDisabled{*this, "cmdDisabled", "Delete"};
  Timer tmrTick{*this, "tmrTick", 1000, false};
  Frame fraTitle{*this, "fraTitle", theme::kWindow};
  Frame fraButtons{*this, "fraButtons", theme::kFooter};
};

}  // namespace forms::testing
