#include "tests/forms/sample_form.h"

namespace forms::testing {
namespace {

constexpr FormDesign kDesign = {
    .name = "frmSample",
    .caption = "Scheduled jobs",
    .width = 560,
    .placement = Placement::kCentreOfScreen,
    .on_top = true,
    .corner_radius = theme::kCornerRadius,
};

}  // namespace

frmSample::frmSample(FormHost& host) : Form(host, kDesign) {
  fraButtons.Hold({&cmdOk, &cmdClose, &cmdDisabled});
  imgClose.on_click = [this] { Unload(); };
  cmdClose.on_click = [this] { Unload(); };
  cmdDisabled.SetEnabled(false);
  cmbDay.SetItems({"Monday", "Tuesday", "Wednesday"});
  cmbDay.Select(1);
  cmbMail.SetItems({"ann@example.org", "bob@example.org"});
  cmbMail.Type("eve@example.org");
  dtpDate.SetValue({2024, 3, 1, 10, 30, 0});
  dtpTime.SetValue({2024, 3, 1, 10, 30, 0});
  chkNotify.SetChecked(true);
  optWeekly.SetChecked(true);
  optOther.SetChecked(true);
  barQuota.SetValue(42);
  sldBand.SetValue(25);
  lvJobs.SetColumns({{"Backup set", 150}, {"Next Transfer", 150}, {"Status", 120}, {"", 0}});
  lvJobs.SetRows({{{"DEFAULT BACKUPSET", "03-01-2024 22:00:00", "Yet to start", "1"}, "info"},
                  {{"Photos", "03-02-2024 21:15:00", "In Progress", "2"}, "warn"}});
  lvJobs.Select(0);

  SetLayout(Bands({
      TitleBand(fraTitle, lblTitle, imgClose),
      BodyBand({
          Item(lblText),
          Line({Item(lblLink), Space().Grow()}),
          Line({Item(txtName).Grow(), Item(cmbDay), Item(cmbMail)}),
          Line({Item(txtNotes).Height(60).Grow(), Item(txtPath).Height(40).Grow()}),
          Line({Item(dtpDate), Item(dtpTime), Item(chkNotify).Grow()}),
          Line({Item(optWeekly), Item(optMonthly), Item(optOther), Space().Grow()}),
          Item(barQuota),
          Item(sldBand),
          Item(lvJobs),
      }),
      ButtonBand(fraButtons, {Item(cmdDisabled), Item(cmdOk), Item(cmdClose)}),
  }));
}

}  // namespace forms::testing
