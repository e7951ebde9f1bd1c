#include "platform/win32/notification_icon.h"

#include <algorithm>

#include "platform/shell.h"

namespace platform::win32 {
namespace {

// The record of the first version, which every shell takes. Its size tells the version.
constexpr DWORD kRecordSize = NOTIFYICONDATAA_V1_SIZE;
static_assert(sizeof(void*) != 4 || kRecordSize == 88);

// The tip of the first version: 64 bytes with the closing NUL.
constexpr std::size_t kTipSize = kRecordSize - offsetof(NOTIFYICONDATAA, szTip);
static_assert(kTipSize == Shell::kMostTipCharacters + 1);

HICON OwnIconOf(HWND window) {
  return reinterpret_cast<HICON>(GetClassLongPtrA(window, GCLP_HICON));
}

}  // namespace

bool NotificationIcon::Add(HWND window, std::uint32_t callback_message, HICON icon,
                           std::string_view tip) {
  record_ = {};
  record_.cbSize = kRecordSize;
  record_.hWnd = window;
  record_.uCallbackMessage = callback_message;
  record_.hIcon = icon != nullptr ? icon : OwnIconOf(window);
  CopyTip(tip);
  return Tell(NIM_ADD, NIF_MESSAGE | NIF_ICON | NIF_TIP);
}

bool NotificationIcon::SetIcon(HICON icon) {
  record_.hIcon = icon;
  return Tell(NIM_MODIFY, NIF_ICON);
}

bool NotificationIcon::SetTip(std::string_view tip) {
  CopyTip(tip);
  return Tell(NIM_MODIFY, NIF_TIP);
}

bool NotificationIcon::Remove() {
  return Tell(NIM_DELETE, 0);
}

void NotificationIcon::CopyTip(std::string_view tip) {
  const std::size_t length = std::min(tip.size(), kTipSize - 1);
  std::fill_n(record_.szTip, kTipSize, '\0');
  std::copy_n(tip.data(), length, record_.szTip);
}

bool NotificationIcon::Tell(DWORD message, UINT flags) {
  record_.uFlags = flags;
  return Shell_NotifyIconA(message, &record_) != FALSE;
}

}  // namespace platform::win32
