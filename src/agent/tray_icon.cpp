#include "agent/tray_icon.h"

namespace agent {

TrayIcon::TrayIcon(platform::Shell& shell, const shared::AgentState& state)
    : shell_(shell), state_(state) {}

void TrayIcon::Add(std::uintptr_t window) {
  window_ = window;
  Show();
}

void TrayIcon::Remove() {
  if (is_in_) shell_.RemoveIcon();
  is_in_ = false;
  window_ = 0;
}

void TrayIcon::SetTrayImage(StatePicture picture) {
  if (Load(picture) != platform::kNoPicture) wanted_picture_ = picture;
}

void TrayIcon::SetTrayIcon(std::string_view tip) {
  wanted_tip_ = tip;
  if (is_in_) ShowTip();
}

void TrayIcon::Show() {
  if (window_ == 0) return;
  if (is_in_) {
    ShowPicture();
    ShowTip();
    return;
  }
  const platform::PictureId picture = Load(wanted_picture_);
  is_in_ = shell_.AddIcon(window_, kIconMessage, picture, wanted_tip_);
  if (!is_in_) return TakeOver();
  shown_picture_ = picture;
  shown_tip_ = wanted_tip_;
}

void TrayIcon::TakeOver() {
  is_in_ = shell_.SetIconTip(wanted_tip_);
  if (!is_in_) return;
  shown_tip_ = wanted_tip_;
  shown_picture_ = platform::kNoPicture;
  ShowPicture();
}

platform::PictureId TrayIcon::Load(StatePicture picture) {
  platform::PictureId& id = loaded_[static_cast<std::size_t>(picture)];
  if (id == platform::kNoPicture) id = shell_.LoadPicture(PicturePath(picture, state_));
  return id;
}

void TrayIcon::ShowPicture() {
  const platform::PictureId picture = Load(wanted_picture_);
  if (picture == platform::kNoPicture || picture == shown_picture_) return;
  if (shell_.SetIconPicture(picture)) shown_picture_ = picture;
}

void TrayIcon::ShowTip() {
  if (wanted_tip_ == shown_tip_) return;
  if (shell_.SetIconTip(wanted_tip_)) shown_tip_ = wanted_tip_;
}

}  // namespace agent
