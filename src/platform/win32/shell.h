// The shell of Windows.
#pragma once

#include <deque>
#include <map>

#include "platform/shell.h"
#include "platform/win32/notification_icon.h"
#include "platform/win32/pictures.h"
#include "platform/win32/scoped.h"
#include "platform/win32/system_library.h"

namespace platform::win32 {

// The shell's helpers may want COM on the thread that opens something.
class ComApartment {
 public:
  explicit ComApartment(SystemLibrary& ole);
  ComApartment(const ComApartment&) = delete;
  ComApartment& operator=(const ComApartment&) = delete;
  ~ComApartment();

 private:
  SystemLibrary& ole_;
  bool entered_;
};

class Shell final : public platform::Shell {
 public:
  int Open(std::string_view file, std::string_view arguments, std::string_view folder,
           WindowShow show) override;
  StartResult Start(ShellVerb verb, std::string_view file, std::string_view arguments,
                    std::string_view folder, WindowShow show) override;
  PictureId LoadPicture(std::string_view path) override;
  bool AddIcon(std::uintptr_t window, std::uint32_t callback_message, PictureId picture,
               std::string_view tip) override;
  bool SetIconPicture(PictureId picture) override;
  bool SetIconTip(std::string_view tip) override;
  bool RemoveIcon() override;
  std::string FindFolder(KnownFolder which) override;
  void ShowStopBox(std::string_view text, std::string_view caption) override;

 private:
  SystemLibrary ole_{"ole32.dll"};
  NotificationIcon icon_;
  Pictures pictures_;
  // The latest few of each kind: callers wait on them at any time later.
  std::map<WindowShow, std::deque<ScopedHandle>> started_;
};

}  // namespace platform::win32
