// Top-level windows of other programs on this desktop.
#pragma once

#include "platform/other_windows.h"

namespace platform::win32 {

class OtherWindows final : public platform::OtherWindows {
 public:
  WindowId Find(std::string_view class_name, std::string_view title) override;
  std::intptr_t Send(WindowId window, std::uint32_t message, std::uintptr_t wparam,
                     std::intptr_t lparam) override;
  bool Post(WindowId window, std::uint32_t message, std::uintptr_t wparam,
            std::intptr_t lparam) override;
  bool IsMinimised(WindowId window) override;
  void Restore(WindowId window) override;
  void BringToFront(WindowId window) override;
  std::uint32_t RegisterMessage(std::string_view name) override;
};

}  // namespace platform::win32
