#include "status/ui/frm_status.h"

#include <string>

#include "schedule/tool_tips.h"
#include "status/bandwidth.h"

namespace status {
namespace {

using forms::Point;

constexpr int kOrdinaryDpi = 96;
constexpr int kOverhang = 1;  // at most 25 twips, in whole units
constexpr int kKnobSize = 16;
constexpr std::int32_t kTipWidth = 100;
constexpr std::int32_t kTipStays = 1000000;  // milliseconds
constexpr std::string_view kPlainPicture = "Small Btn1";
constexpr std::string_view kHoverPicture = "Small Btn2";

constexpr forms::FormDesign kDesign = {
    .name = "frmStatus",
    .caption = "Sorvane - Scheduled Backup Status",
    .width = 500,
    .placement = forms::Placement::kCentreOfScreen,
    .on_top = true,
    .corner_radius = forms::theme::kCornerRadius,
};

}  // namespace

frmStatus::frmStatus(forms::FormHost& host, platform::Platform& machine, shared::AgentState& state,
                     const StatusLinks& links)
    : Form(host, kDesign), controller_(machine, state, links, *this), tips_(host) {
  for (forms::Label* grip : {&Label1, &Label2, &Label4}) grip->SetDragsWindow(true);
  ProgressBarXP1.SetMaximum(kTransferBarMaximum);
  QuotaProgressbar.SetMaximum(kQuotaBarMaximum);
  NameForReaders();
  Nest();
  Arm();
  ArmSlider();
  SetLayout(Layout());
  // The box comes first by its place; the keyboard starts where it can do no harm.
  SetFirstStop(&Cmd_Yes);
}

// Bars and the slider show no text of their own: it is what a screen reader calls them.
void frmStatus::NameForReaders() {
  QuotaProgressbar.SetText("Space Used");
  ProgressBarXP1.SetText("Progress");
  Slider2.SetText(Label7.Text());
  PictSliderBox2.SetText("slider_box");
}

void frmStatus::Arm() {
  on_load = [this] {
    grabbed_.reset();
    MakeToolTips();
    controller_.Load();
  };
  on_close = [this] { controller_.CloseClick(); };
  on_key = [this](forms::Key key) {
    if (key != forms::Key::kEscape) return false;
    controller_.CloseClick();
    return true;
  };
  frmStatusTimer.on_tick = [this] { controller_.SlowTick(); };
  TmrCheckPause.on_tick = [this] { controller_.FastTick(); };

  Cmd_No.on_click = imgClose.on_click = Image2.on_click = on_close;
  Cmd_Yes.on_click = [this] { controller_.ViewLogClick(); };
  imgViewLog.on_click = Cmd_ProgViewLog.on_click = imgProgViewLog.on_click = Cmd_Yes.on_click;
  cmd_ProgPause.on_click = [this] { controller_.PauseClick(); };
  imgProgPuaseResume.on_click = cmd_ProgPause.on_click;
  cmd_ProgCancel.on_click = [this] { controller_.CancelClick(); };
  imgProgCancel.on_click = cmd_ProgCancel.on_click;
  chkAutoPause.on_click = [this] { controller_.AutoPauseClick(); };
  imgProgAutoPause.on_click = chkAutoPause.on_click;
  chkDesNotify1.on_click = [this] { controller_.NotificationClick(chkDesNotify1.Checked()); };

  const std::string_view log_tip = schedule::GetToolTipText("frmStatus.Cmd_Yes");
  SwapOnHover(Cmd_Yes, imgViewLog, log_tip);
  SwapOnHover(Cmd_No, imgClose, schedule::GetToolTipText("frmStatus.Cmd_No"));
  SwapOnHover(cmd_ProgCancel, imgProgCancel);
  SwapOnHover(Cmd_ProgViewLog, imgProgViewLog, log_tip);
  Image2.on_mouse_move = [this](Point) {
    const bool hides = Image2.PictureKey() == "hide";
    ShowTip(Image2, hides ? "Hide" : schedule::GetToolTipText("frmStatus.Image2"));
  };
  BkupFilepath.on_mouse_move = [this](Point) { ShowTip(BkupFilepath, BkupFilepath.Text()); };
  // A path that is longer than its box can be read with the arrow keys, too.
  BkupFilepath.SetTabStop(true);
  MarkOnFocus(BkupFilepath, lblBackup);
}

// These controls show no ring of their own.
void frmStatus::MarkOnFocus(forms::Control& control, forms::Label& mark) {
  const forms::Colour plain = mark.TextColour();
  control.on_focus = [&mark] { mark.SetTextColour(forms::theme::kAccent); };
  control.on_blur = [&mark, plain] { mark.SetTextColour(plain); };
}

void frmStatus::ArmSlider() {
  Slider2.on_change = [this] {
    controller_.SliderMove(static_cast<std::int16_t>(Slider2.Value()));
    controller_.SliderRelease();
  };
  MarkOnFocus(Slider2, LabelBand);
  PictSliderKnob2.on_mouse_down = [this](Point place) { grabbed_ = place.x; };
  PictSliderKnob2.on_mouse_move = [this](Point place) { DragKnob(place); };
  PictSliderKnob2.on_mouse_up = [this](Point) {
    if (!grabbed_) return;
    grabbed_.reset();
    controller_.SliderRelease();
  };
  on_arranged = [this] { PlaceSlider(); };
}

SliderBox frmStatus::Box() const {
  return {PictSliderBox2.Bounds().left, PictSliderBox2.Bounds().width, kKnobSize};
}

// The knob lies on the box at its value. The slider that takes the keyboard lies hidden behind it.
void frmStatus::PlaceSlider() {
  const forms::Rect& box = PictSliderBox2.Bounds();
  const int left = KnobLeft(Box(), static_cast<std::int16_t>(Slider2.Value()));
  const int top = box.top + (box.height - kKnobSize) / 2;
  PictSliderKnob2.SetBounds({left, top, kKnobSize, kKnobSize});
  Slider2.SetBounds({box.left, box.top, 1, 1});
}

void frmStatus::DragKnob(Point place) {
  if (!grabbed_ || !PictSliderKnob2.Enabled()) return;
  const int left = PictSliderKnob2.Bounds().left + place.x - *grabbed_;
  if (KnobMayStand(Box(), left, kOverhang)) controller_.SliderMove(KnobValue(Box(), left));
}

void frmStatus::SwapOnHover(forms::Button& button, forms::Picture& picture, std::string_view tip) {
  button.on_mouse_move = [this, &button, &picture, tip](Point) {
    picture.SetPicture(kHoverPicture);
    ShowTip(button, tip);
  };
  button.on_mouse_leave = [&picture] { picture.SetPicture(kPlainPicture); };
}

void frmStatus::MakeToolTips() {
  tips_.Create(Window());
  tips_.SetMaxTipWidth(kTipWidth);
  tips_.SetDelayTime(forms::TipDelay::kAutoPop, kTipStays);
}

// The tip is renewed at each move, so that it has the control's text of that moment.
void frmStatus::ShowTip(const forms::Control& control, std::string_view text) {
  if (tipped_ != platform::kNoWindow) tips_.RemoveToolTip(tipped_);
  tipped_ = text.empty() ? platform::kNoWindow : control.Window();
  if (text.empty()) return;
  tips_.AddTool(tipped_, text);
}

bool frmStatus::LargeFontMode() const {
  return Host().ScreenDpi() != kOrdinaryDpi;
}

void frmStatus::SetShown(bool shown) {
  if (!Loaded()) return;
  if (shown) {
    Show();
  } else {
    Hide();
  }
}

void frmStatus::Render(const StatusView& view) {
  if (!Loaded()) return;
  if (!view.transfer_shown) grabbed_.reset();
  SetCaption(view.title);
  Label1.SetText(view.title);
  Image2.SetPicture(view.transfer_shown ? "hide" : "close");
  chkDesNotify1.SetVisible(view.notification_shown);
  chkDesNotify1.SetChecked(view.notification_checked);
  RenderIdle(view);
  RenderTransfer(view);
  TurnFaces(view);
  frmStatusTimer.SetEnabled(view.slow_timer);
  TmrCheckPause.SetEnabled(view.fast_timer);
}

// The keyboard goes from one button of the log to the other.
void frmStatus::TurnFaces(const StatusView& view) {
  const bool turns = progressFrame.Visible() != view.transfer_shown;
  const bool on_log = turns && (Cmd_Yes.HasFocus() || Cmd_ProgViewLog.HasFocus());
  idleFrame.SetVisible(!view.transfer_shown);
  progressFrame.SetVisible(view.transfer_shown);
  Cmd_ProgViewLog.SetVisible(view.transfer_shown);
  imgProgViewLog.SetVisible(view.transfer_shown);
  for (forms::Control* log :
       {static_cast<forms::Control*>(&Cmd_Yes), static_cast<forms::Control*>(&imgViewLog)}) {
    log->SetEnabled(view.log_enabled);
    log->SetVisible(!view.transfer_shown);
  }
  if (on_log) (view.transfer_shown ? Cmd_ProgViewLog : Cmd_Yes).SetFocus();
}

void frmStatus::RenderIdle(const StatusView& view) {
  lblUser.SetVisible(view.user_label_shown);
  lblUserName.SetText(view.user_name);
  lblSpaceUsed.SetVisible(view.space_label_shown);
  lblQuotaInfo.SetVisible(view.quota_text_shown);
  lblQuotaInfo.SetText(view.quota_text);
  QuotaProgressbar.SetVisible(view.quota_bar_shown);
  QuotaProgressbar.SetValue(view.quota_bar);
  QuotaProgressbar.SetBarColour(view.quota_colour == QuotaColour::kRed ? forms::theme::kBad
                                                                       : forms::theme::kGood);
  lblHoursInfo.SetText(view.status_line);
  lblHoursInfo.SetFontPoints(view.status_points);
  // An empty line would move the one above off the middle of its card.
  lblBkupInfo.SetVisible(view.next_line_shown && !view.next_line.empty());
  lblBkupInfo.SetText(view.next_line);
}

void frmStatus::RenderTransfer(const StatusView& view) {
  const TransferPanel& panel = view.transfer;
  for (forms::Control* control :
       {static_cast<forms::Control*>(&ProgressBarXP1), static_cast<forms::Control*>(&BkupFilepath),
        static_cast<forms::Control*>(&lblBackup), static_cast<forms::Control*>(&BkupProgress),
        static_cast<forms::Control*>(&cmd_ProgPause)}) {
    control->SetVisible(panel.controls_shown);
  }
  imgProgPuaseResume.SetVisible(view.pause_shown);
  imgProgPuaseResume.SetPicture(panel.says_resume ? "resume" : "pause");
  cmd_ProgPause.SetText(panel.says_resume ? "Resume" : "Pause");
  BkupProgress.SetText(panel.overall);
  BkupProgress.SetTextColour(panel.overall_red ? forms::theme::kAlert : forms::theme::kText);
  ProgressBarXP1.SetValue(panel.bar);
  BkupFilepath.SetText(panel.file_path);
  lblFileCountBkup.SetText(panel.file_count);
  lblTimeElaspedBkup.SetText(panel.time_elapsed);
  lblTimeEstBkup.SetText(panel.time_estimated);
  lblTransferRateBkup.SetText(panel.transfer_rate);
  for (forms::Label* counter : {&lblFileCountBkup, &lblTimeElaspedBkup, &lblTimeEstBkup}) {
    counter->SetVisible(panel.counters_shown);
  }
  lblTransferRateBkup.SetVisible(panel.rate_shown);
  RenderBandwidth(panel.bandwidth);
}

void frmStatus::RenderBandwidth(const BandwidthPanel& panel) {
  for (forms::Control* control :
       {static_cast<forms::Control*>(&Label7), static_cast<forms::Control*>(&LabelBand),
        static_cast<forms::Control*>(&PictSliderBox2),
        static_cast<forms::Control*>(&PictSliderKnob2), static_cast<forms::Control*>(&Slider2),
        static_cast<forms::Control*>(&chkAutoPause),
        static_cast<forms::Control*>(&imgProgAutoPause)}) {
    control->SetVisible(panel.shown);
  }
  LblAutoPauseInfo.SetVisible(panel.shown && panel.auto_pause);
  chkAutoPause.SetChecked(panel.auto_pause);
  imgProgAutoPause.SetPicture(panel.auto_pause ? "chkautopause" : "unchkautopause");
  Slider2.SetEnabled(panel.enabled);
  PictSliderKnob2.SetEnabled(panel.enabled);
  Slider2.SetValue(panel.value);
  PictSliderBox2.SetValue(panel.value);
  LabelBand.SetText(std::to_string(panel.value) + "%");
  PlaceSlider();
}

}  // namespace status
