// Top-level windows of other programs on the machine in memory.
//
// Gate names "other_windows.<Function>", about the title or message. Journal: category "window"
// ("send <title> <message> <wparam> <lparam>", "post ...", "restore <title>", "front <title>").
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "platform/memory/memory_processes.h"
#include "platform/memory/world.h"
#include "platform/other_windows.h"

namespace platform::memory {

// What a window does with a message; its result answers Send.
using WindowProcedure = std::function<std::intptr_t(std::uint32_t message, std::uintptr_t wparam,
                                                    std::intptr_t lparam)>;

struct ForeignWindow {
  std::string class_name;
  std::string title;
  ProcessId process = 0;  // the window goes with its process; 0: of no process here
  bool minimised = false;
  WindowProcedure procedure = nullptr;
};

class MemoryOtherWindows : public OtherWindows {
 public:
  MemoryOtherWindows(World& world, MemoryProcesses& processes);

  WindowId Find(std::string_view class_name, std::string_view title) override;
  std::intptr_t Send(WindowId window, std::uint32_t message, std::uintptr_t wparam,
                     std::intptr_t lparam) override;
  bool Post(WindowId window, std::uint32_t message, std::uintptr_t wparam,
            std::intptr_t lparam) override;
  bool IsMinimised(WindowId window) override;
  void Restore(WindowId window) override;
  void BringToFront(WindowId window) override;
  std::uint32_t RegisterMessage(std::string_view name) override;

  WindowId Add(ForeignWindow window);
  void Close(WindowId window) { windows_.erase(window); }
  void SetTitle(WindowId window, std::string_view title);
  void SetProcedure(WindowId window, WindowProcedure procedure);
  void SetMinimised(WindowId window, bool minimised);
  // nullptr when it is gone.
  const ForeignWindow* Get(WindowId window) const;
  // The window brought to the front last.
  WindowId front() const { return front_; }
  // The number of a message, past the gate.
  std::uint32_t MessageNumber(std::string_view name);

 private:
  ForeignWindow* FindWindow(WindowId window);
  void NoteMessage(std::string_view verb, const ForeignWindow* window, std::uint32_t message,
                   std::uintptr_t wparam, std::intptr_t lparam);
  std::intptr_t Deliver(WindowId window, std::uint32_t message, std::uintptr_t wparam,
                        std::intptr_t lparam);

  World& world_;
  std::map<WindowId, ForeignWindow> windows_;
  std::map<std::string, std::uint32_t, IgnoreCaseLess> messages_;
  WindowId next_window_ = 0x20010;
  WindowId front_ = kNoWindow;
};

}  // namespace platform::memory
