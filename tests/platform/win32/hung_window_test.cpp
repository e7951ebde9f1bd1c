// A program that does not respond any more: no other may wait for it without end.
#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>
#include <thread>

#include "platform/win32/machine.h"

namespace {

// A top-level window whose thread hears nothing until the test is over.
class HungWindow {
 public:
  HungWindow() {
    thread_ = std::thread([this] { Run(); });
    WaitForSingleObject(ready_, INFINITE);
    while (!IsHungAppWindow(window_)) Sleep(50);
  }
  HungWindow(const HungWindow&) = delete;
  HungWindow& operator=(const HungWindow&) = delete;
  ~HungWindow() {
    SetEvent(over_);
    thread_.join();
    CloseHandle(ready_);
    CloseHandle(over_);
  }

  platform::WindowId id() const { return reinterpret_cast<platform::WindowId>(window_.load()); }
  // Whether the thread has taken up its messages again.
  bool responds() const { return responds_; }

 private:
  void Run() {
    window_ = CreateWindowExA(0, "STATIC", "Hung window", WS_OVERLAPPEDWINDOW, 0, 0, 90, 90,
                              nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    SetEvent(ready_);
    // Long enough for the test, not for ever: whoever waits for an answer gets one in the end.
    WaitForSingleObject(over_, 120000);
    responds_ = true;
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageA(&message);
    DestroyWindow(window_);
  }

  HANDLE ready_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  HANDLE over_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
  std::atomic<HWND> window_ = nullptr;
  std::atomic<bool> responds_ = false;
  std::thread thread_;
};

TEST(HungWindow, IsNotWaitedForWithoutEnd) {
  const HungWindow window;
  platform::win32::Machine machine;
  EXPECT_EQ(machine.platform().other_windows.Send(window.id(), WM_CLOSE, 0, 0), 0);
  EXPECT_FALSE(window.responds());
}

}  // namespace
