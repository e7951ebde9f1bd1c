// The status window: account, quota, last outcome and next run, or a running transfer with its
// buttons. It shows what the controller decides and holds no state of a job.
#pragma once

#include <optional>
#include <vector>

#include "forms/cls_tool_tip.h"
#include "forms/form.h"
#include "status/bandwidth.h"
#include "status/status_controller.h"
#include "status/status_screen.h"

namespace status {

class frmStatus : public forms::Form, private StatusScreen {
 public:
  frmStatus(forms::FormHost& host, platform::Platform& machine, shared::AgentState& state,
            const StatusLinks& links);
  ~frmStatus() override { Form::Unload(); }

  // The end of the tray's stop command; the window shows the outcome. REQUIRES: loaded.
  void ResetStatusWindow() { controller_.ResetStatusWindow(); }

  // The end of a job is to be shown at the next slow tick.
  void EnableStatusTimer() { frmStatusTimer.SetEnabled(true); }

  void Unload() override { Form::Unload(); }

 private:
  // StatusScreen.
  bool LargeFontMode() const override;
  void Render(const StatusView& view) override;
  void SetShown(bool shown) override;

  void TurnFaces(const StatusView& view);
  void RenderIdle(const StatusView& view);
  void RenderTransfer(const StatusView& view);
  void RenderBandwidth(const BandwidthPanel& panel);

  void Arm();
  void ArmSlider();
  void Nest();
  forms::Cell Layout();
  void MakeToolTips();
  void ShowTip(const forms::Control& control, std::string_view text);
  void SwapOnHover(forms::Button& button, forms::Picture& picture, std::string_view tip = {});
  void NameForReaders();
  void MarkOnFocus(forms::Control& control, forms::Label& mark);
  void PlaceSlider();
  void DragKnob(forms::Point place);
  SliderBox Box() const;

  StatusController controller_;
  forms::clsToolTip tips_;
  platform::WindowId tipped_ = platform::kNoWindow;  // the control that has a tip
  std::optional<int> grabbed_;                       // where in the knob the mouse holds it

  // The title; Label2 and Label4 are the grips at its sides.
  forms::Label Label2{*this, "Label2", ""};
  forms::Label Label1{*this, "Label1", "Sorvane - Scheduled Backup Status",
                      forms::LabelStyle::kTitle};
  forms::Label Label4{*this, "Label4", ""};
  forms::Picture Image2{*this, "Image2", "close", {20, 20}};

  // The face at rest.
  forms::Label lblUser{*this, "lblUser", "Account Name:", forms::LabelStyle::kMuted};
  forms::Label lblUserName{*this, "lblUserName", "", forms::LabelStyle::kStrong};
  forms::Label lblSpaceUsed{*this, "lblSpaceUsed", "Space Used:", forms::LabelStyle::kMuted};
  forms::Label lblQuotaInfo{*this, "lblQuotaInfo", ""};
  forms::ProgressBar QuotaProgressbar{*this, "QuotaProgressbar"};
  forms::Picture imgStatus{*this, "imgStatus", "APP", {40, 40}};
  forms::Label lblHoursInfo{*this, "lblHoursInfo", ""};
  forms::Label lblBkupInfo{*this, "lblBkupInfo", "", forms::LabelStyle::kMuted};

  // The transfer. The order is that of the Tab key: pause and cancel come first.
  forms::Button cmd_ProgPause{*this, "cmd_ProgPause", "Pause"};
  forms::Picture imgProgPuaseResume{*this, "imgProgPuaseResume", "pause", {16, 16}};
  forms::Button cmd_ProgCancel{*this, "cmd_ProgCancel", "Cancel"};
  forms::Picture imgProgCancel{*this, "imgProgCancel", "Small Btn1", {16, 16}};
  forms::Label BkupProgress{*this, "BkupProgress", ""};
  forms::ProgressBar ProgressBarXP1{*this, "ProgressBarXP1"};
  forms::Label lblFileCountBkup{*this, "lblFileCountBkup", ""};
  forms::Label lblTimeElaspedBkup{*this, "lblTimeElaspedBkup", ""};
  forms::Label lblTransferRateBkup{*this, "lblTransferRateBkup", ""};
  forms::Label lblTimeEstBkup{*this, "lblTimeEstBkup", ""};
  forms::Label lblBackup{*this, "lblBackup", "File path:", forms::LabelStyle::kMuted};
  forms::TextBox BkupFilepath{*this, "BkupFilepath", "", forms::TextBoxStyle::kReadOnly};
  forms::Label Label7{*this, "Label7", "Bandwidth used", forms::LabelStyle::kMuted};
  forms::Slider Slider2{*this, "Slider2"};
  forms::Picture PictSliderKnob2{*this, "PictSliderKnob2", "slider_knob1", {16, 16}};
  forms::ProgressBar PictSliderBox2{*this, "PictSliderBox2"};
  forms::Label LabelBand{*this, "LabelBand", "100%"};
  forms::CheckBox chkAutoPause{*this, "chkAutoPause", "Auto-Pause"};
  forms::Picture imgProgAutoPause{*this, "imgProgAutoPause", "unchkautopause", {16, 16}};
  forms::Label LblAutoPauseInfo{*this, "LblAutoPauseInfo",
                                "Note: Auto-Pause is checked. This means backups may be very slow "
                                "during user activity.",
                                forms::LabelStyle::kMuted};

  // Below both.
  forms::CheckBox chkDesNotify1{*this, "chkDesNotify1",
                                "Show this dialog after each schedule backup"};
  forms::Button Cmd_ProgViewLog{*this, "Cmd_ProgViewLog", "View Log"};
  forms::Picture imgProgViewLog{*this, "imgProgViewLog", "Small Btn1", {16, 16}};
  forms::Button Cmd_Yes{*this, "Cmd_Yes", "View Log"};
  forms::Picture imgViewLog{*this, "imgViewLog", "Small Btn1", {16, 16}};
  forms::Button Cmd_No{*this, "Cmd_No", "Close", forms::ButtonRole::kCancel};
  forms::Picture imgClose{*this, "imgClose", "Small Btn1", {16, 16}};

  // Grounds, and the groups that are shown and hidden together.
  forms::Frame fraTitle{*this, "fraTitle", forms::theme::kWindow};
  forms::Frame fraStatus{*this, "fraStatus", forms::theme::kFooter};
  forms::Frame fraButtons{*this, "fraButtons", forms::theme::kFooter};
  forms::Frame idleFrame{*this, "idleFrame"};
  forms::Frame progressFrame{*this, "progressFrame"};

  forms::Timer frmStatusTimer{*this, "frmStatusTimer", 10000, false};
  forms::Timer TmrCheckPause{*this, "TmrCheckPause", 2000, true};
};

}  // namespace status
