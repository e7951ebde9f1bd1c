// The one icon of this program in the notification area, as the shell's first-version record.
#pragma once

#include <windows.h>
// Needs the types of the line before.
#include <shellapi.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace platform::win32 {

class NotificationIcon {
 public:
  // Each gives what the shell answers: false when it is not there or refuses. Without an icon Add
  // takes the window's own: an empty place in the notification area could not be clicked on.
  bool Add(HWND window, std::uint32_t callback_message, HICON icon, std::string_view tip);
  bool SetIcon(HICON icon);
  bool SetTip(std::string_view tip);
  bool Remove();

 private:
  void CopyTip(std::string_view tip);
  bool Tell(DWORD message, UINT flags);

  NOTIFYICONDATAA record_ = {};
};

}  // namespace platform::win32
