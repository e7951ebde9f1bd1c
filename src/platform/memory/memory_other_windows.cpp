#include "platform/memory/memory_other_windows.h"

#include <utility>

namespace platform::memory {
namespace {

constexpr std::uint32_t kFirstRegisteredMessage = 0xC000;

}  // namespace

MemoryOtherWindows::MemoryOtherWindows(World& world, MemoryProcesses& processes) : world_(world) {
  processes.WhenEnded([this](ProcessId id) {
    std::erase_if(windows_, [&](const auto& entry) { return entry.second.process == id; });
  });
}

WindowId MemoryOtherWindows::Find(std::string_view class_name, std::string_view title) {
  if (world_.gate.Fails("other_windows.Find", title)) return kNoWindow;
  for (const auto& [id, window] : windows_) {
    const bool of_class = class_name.empty() || EqualIgnoreCase(window.class_name, class_name);
    if (of_class && EqualIgnoreCase(window.title, title)) return id;
  }
  return kNoWindow;
}

std::intptr_t MemoryOtherWindows::Send(WindowId window, std::uint32_t message,
                                       std::uintptr_t wparam, std::intptr_t lparam) {
  const bool fails =
      world_.gate.on() && world_.gate.Fails("other_windows.Send", std::to_string(message));
  const ForeignWindow* to = fails ? nullptr : FindWindow(window);
  NoteMessage("send", to, message, wparam, lparam);
  return to == nullptr ? 0 : Deliver(window, message, wparam, lparam);
}

bool MemoryOtherWindows::Post(WindowId window, std::uint32_t message, std::uintptr_t wparam,
                              std::intptr_t lparam) {
  const bool fails =
      world_.gate.on() && world_.gate.Fails("other_windows.Post", std::to_string(message));
  const ForeignWindow* to = fails ? nullptr : FindWindow(window);
  NoteMessage("post", to, message, wparam, lparam);
  if (to == nullptr) return false;
  world_.timeline.At(world_.timeline.now(), to->title,
                     [=, this] { Deliver(window, message, wparam, lparam); });
  return true;
}

bool MemoryOtherWindows::IsMinimised(WindowId window) {
  if (world_.gate.Fails("other_windows.IsMinimised")) return false;
  const ForeignWindow* asked = FindWindow(window);
  return asked != nullptr && asked->minimised;
}

void MemoryOtherWindows::Restore(WindowId window) {
  if (world_.gate.Fails("other_windows.Restore")) return;
  ForeignWindow* restored = FindWindow(window);
  if (restored == nullptr) return;
  restored->minimised = false;
  world_.Note("window", "restore " + restored->title);
}

void MemoryOtherWindows::BringToFront(WindowId window) {
  if (world_.gate.Fails("other_windows.BringToFront")) return;
  const ForeignWindow* brought = FindWindow(window);
  if (brought == nullptr) return;
  front_ = window;
  world_.Note("window", "front " + brought->title);
}

std::uint32_t MemoryOtherWindows::RegisterMessage(std::string_view name) {
  if (world_.gate.Fails("other_windows.RegisterMessage", name) || name.empty()) return 0;
  return MessageNumber(name);
}

WindowId MemoryOtherWindows::Add(ForeignWindow window) {
  const WindowId id = next_window_;
  next_window_ += 2;
  windows_.emplace(id, std::move(window));
  return id;
}

void MemoryOtherWindows::SetTitle(WindowId window, std::string_view title) {
  if (ForeignWindow* named = FindWindow(window)) named->title = title;
}

void MemoryOtherWindows::SetProcedure(WindowId window, WindowProcedure procedure) {
  if (ForeignWindow* set = FindWindow(window)) set->procedure = std::move(procedure);
}

void MemoryOtherWindows::SetMinimised(WindowId window, bool minimised) {
  if (ForeignWindow* set = FindWindow(window)) set->minimised = minimised;
}

const ForeignWindow* MemoryOtherWindows::Get(WindowId window) const {
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : &found->second;
}

std::uint32_t MemoryOtherWindows::MessageNumber(std::string_view name) {
  const auto next = static_cast<std::uint32_t>(kFirstRegisteredMessage + messages_.size());
  return messages_.emplace(std::string(name), next).first->second;
}

ForeignWindow* MemoryOtherWindows::FindWindow(WindowId window) {
  const auto found = windows_.find(window);
  return found == windows_.end() ? nullptr : &found->second;
}

void MemoryOtherWindows::NoteMessage(std::string_view verb, const ForeignWindow* window,
                                     std::uint32_t message, std::uintptr_t wparam,
                                     std::intptr_t lparam) {
  world_.Note("window", std::string(verb) + " " + (window ? window->title : "nowhere") + " " +
                            std::to_string(message) + " " + std::to_string(wparam) + " " +
                            std::to_string(lparam));
}

std::intptr_t MemoryOtherWindows::Deliver(WindowId window, std::uint32_t message,
                                          std::uintptr_t wparam, std::intptr_t lparam) {
  const ForeignWindow* to = FindWindow(window);
  if (to == nullptr || !to->procedure) return 0;
  // A copy: the window may close itself.
  const WindowProcedure procedure = to->procedure;
  std::intptr_t answer = 0;
  world_.timeline.ActAs(std::string(to->title),
                        [&] { answer = procedure(message, wparam, lparam); });
  return answer;
}

}  // namespace platform::memory
