// Where the controls of the status window go. Both faces lie in one place, so that the window keeps
// its size when it turns from one to the other.
#include "forms/bands.h"
#include "status/ui/frm_status.h"

namespace status {
namespace {

using forms::Cell;
using forms::Item;
using forms::Line;
using forms::Pile;
using forms::Space;
using forms::Stack;
namespace theme = forms::theme;

constexpr int kTitlePadding = 10;
constexpr int kTitleHeight = 22;
constexpr int kLabelColumn = 100;
constexpr int kFaceHeight = 282;
constexpr int kCardHeight = 162;
constexpr int kCardPadding = 24;
constexpr int kCardText = 300;  // the least; the texts wrap in what there is
constexpr int kIdleGap = 12;
constexpr int kPathHeight = 40;
constexpr int kCounterColumn = 230;
constexpr int kBoxWidth = 150;
constexpr int kBandColumn = 40;

}  // namespace

void frmStatus::Nest() {
  using Controls = std::vector<forms::Control*>;
  for (forms::Control* control : Controls{&Label2, &Label1, &Label4, &Image2}) {
    control->SetContainer(fraTitle);
  }
  for (forms::Control* control : Controls{&lblUser, &lblUserName, &lblSpaceUsed, &lblQuotaInfo,
                                          &QuotaProgressbar, &fraStatus}) {
    control->SetContainer(idleFrame);
  }
  for (forms::Control* control : Controls{&imgStatus, &lblHoursInfo, &lblBkupInfo}) {
    control->SetContainer(fraStatus);
  }
  for (forms::Control* control : Controls{&BkupProgress,
                                          &ProgressBarXP1,
                                          &lblFileCountBkup,
                                          &lblTimeElaspedBkup,
                                          &lblTransferRateBkup,
                                          &lblTimeEstBkup,
                                          &lblBackup,
                                          &BkupFilepath,
                                          &Label7,
                                          &Slider2,
                                          &PictSliderKnob2,
                                          &PictSliderBox2,
                                          &LabelBand,
                                          &chkAutoPause,
                                          &imgProgAutoPause,
                                          &LblAutoPauseInfo,
                                          &cmd_ProgPause,
                                          &imgProgPuaseResume,
                                          &cmd_ProgCancel,
                                          &imgProgCancel}) {
    control->SetContainer(progressFrame);
  }
  for (forms::Control* control :
       Controls{&Cmd_ProgViewLog, &imgProgViewLog, &Cmd_Yes, &imgViewLog, &Cmd_No, &imgClose}) {
    control->SetContainer(fraButtons);
  }
}

Cell frmStatus::Layout() {
  const Cell title =
      Pile({Item(fraTitle),
            Line({Item(Label2).Width(theme::kMargin - kTitlePadding).Height(kTitleHeight),
                  Item(Label1), Item(Label4).Height(kTitleHeight).Grow(), Item(Image2)})
                .Gap(0)
                .Padding(kTitlePadding)});

  const Cell idle =
      Stack({Line({Item(lblUser).Width(kLabelColumn), Item(lblUserName).Grow()}),
             Line({Item(lblSpaceUsed).Width(kLabelColumn), Item(lblQuotaInfo).Grow()}),
             Item(QuotaProgressbar), Space(theme::kGap),
             Pile({Item(fraStatus).Height(kCardHeight),
                   Line({Item(imgStatus), Stack({Item(lblHoursInfo).Width(kCardText).Grow(),
                                                 Item(lblBkupInfo).Width(kCardText).Grow()})
                                              .Grow()})
                       .Gap(theme::kMargin)
                       .Padding(kCardPadding)})})
          .Gap(kIdleGap);

  const Cell counters = Line(
      {Stack({Item(lblFileCountBkup), Item(lblTransferRateBkup).KeepRoom()}).Width(kCounterColumn),
       Stack({Item(lblTimeElaspedBkup), Item(lblTimeEstBkup)}).Grow()});

  const Cell bandwidth =
      Line({Item(Label7).Width(kLabelColumn).KeepRoom(), Item(PictSliderBox2).Width(kBoxWidth),
            Item(LabelBand).Width(kBandColumn), Space().Grow(),
            Pile({Item(chkAutoPause), Item(imgProgAutoPause)})});

  const Cell transfer =
      Stack({Item(BkupProgress), Item(ProgressBarXP1), counters,
             Stack({Item(lblBackup), Item(BkupFilepath).Height(kPathHeight)}).Gap(2), bandwidth,
             Item(LblAutoPauseInfo).KeepRoom(),
             Line({Space().Grow(), Pile({Item(cmd_ProgPause), Item(imgProgPuaseResume)}),
                   Pile({Item(cmd_ProgCancel), Item(imgProgCancel)})})})
          .Gap(theme::kGap + 2);

  const Cell faces = Pile({Space().Height(kFaceHeight), Pile({Item(idleFrame), idle}),
                           Pile({Item(progressFrame), transfer})});

  return forms::Bands(
      {title, forms::BodyBand({faces, Item(chkDesNotify1).KeepRoom()}),
       Pile({Item(fraButtons), Line({Pile({Item(Cmd_ProgViewLog), Item(imgProgViewLog),
                                           Item(Cmd_Yes), Item(imgViewLog)}),
                                     Space().Grow(), Pile({Item(Cmd_No), Item(imgClose)})})
                                   .Padding(theme::kMargin)})});
}

}  // namespace status
