// The one notification icon: what it shall show, and what the shell has been told.
//
// The shell is called only when something changes. It may not be there yet, or refuse: Show then
// tries again, so that the icon is as wanted from the first call that the shell takes.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "agent/state_pictures.h"
#include "platform/shell.h"
#include "shared/agent_state.h"

namespace agent {

// The icon's events arrive as this message of its window: a movement of the mouse over a form.
inline constexpr std::uint32_t kIconMessage = 512;

class TrayIcon {
 public:
  TrayIcon(platform::Shell& shell, const shared::AgentState& state);

  // Puts the icon in for `window`, with the picture and the tip that were set last.
  void Add(std::uintptr_t window);

  // Takes the icon out.
  void Remove();

  // Notes the picture to show; the last one noted before Show is shown. One that cannot be loaded
  // is passed over.
  void SetTrayImage(StatePicture picture);

  // Sets the tip, which is shown at once.
  void SetTrayIcon(std::string_view tip);

  // Brings the shell's icon to what was set; a refused change is tried again by the next call.
  void Show();

  // What was set last.
  StatePicture picture() const { return wanted_picture_; }
  const std::string& tip() const { return wanted_tip_; }

 private:
  platform::PictureId Load(StatePicture picture);
  // A busy shell answers too late, says that it failed, and puts the icon in all the same: what can
  // be changed is in.
  void TakeOver();
  void ShowPicture();
  void ShowTip();

  platform::Shell& shell_;
  const shared::AgentState& state_;
  std::uintptr_t window_ = 0;  // 0 while the icon is out
  bool is_in_ = false;         // the shell has taken it
  StatePicture wanted_picture_ = StatePicture::kNormal;
  platform::PictureId shown_picture_ = platform::kNoPicture;
  std::string wanted_tip_;
  std::string shown_tip_;
  std::array<platform::PictureId, kStatePictures> loaded_{};
};

}  // namespace agent
