// Top-level windows of other programs, and messages between programs.
#pragma once

#include <cstdint>
#include <string_view>

namespace platform {

using WindowId = std::uintptr_t;
inline constexpr WindowId kNoWindow = 0;

class OtherWindows {
 public:
  virtual ~OtherWindows() = default;

  // Finds a top-level window by its whole title without regard to case, of any class when
  // `class_name` is empty. Returns kNoWindow when there is none.
  virtual WindowId Find(std::string_view class_name, std::string_view title) = 0;

  // Sends a message and waits for its answer; 0 when the window is gone or its program does not
  // respond any more.
  virtual std::intptr_t Send(WindowId window, std::uint32_t message, std::uintptr_t wparam,
                             std::intptr_t lparam) = 0;

  // Posts a message. False when the window is gone.
  virtual bool Post(WindowId window, std::uint32_t message, std::uintptr_t wparam,
                    std::intptr_t lparam) = 0;

  // True when the window is shown as an icon in the task bar.
  virtual bool IsMinimised(WindowId window) = 0;

  // Shows a minimised window in its old place.
  virtual void Restore(WindowId window) = 0;

  // Makes the window the one that the user works in.
  virtual void BringToFront(WindowId window) = 0;

  // The number of a message that programs agree on by name; the same for the same name during a
  // session. 0 on failure.
  virtual std::uint32_t RegisterMessage(std::string_view name) = 0;
};

}  // namespace platform
