#include "platform/memory/machine.h"

#include <utility>

namespace platform::memory {
namespace {

constexpr std::uint32_t kQueryEndSession = 0x0011;
constexpr std::uint32_t kEndSession = 0x0016;
constexpr std::uint32_t kPowerBroadcast = 0x0218;
constexpr std::uintptr_t kGoingToSleep = 4;
constexpr std::uintptr_t kAwakeAgain = 7;
constexpr std::uintptr_t kAllWindows = 0;

constexpr std::string_view kPrograms[] = {
    "C:\\Sorvane\\SorvaneETray.exe", "C:\\Windows\\explorer.exe", "C:\\Windows\\notepad.exe",
    "C:\\Windows\\System32\\cmd.exe", "C:\\Windows\\System32\\net.exe"};

std::string_view NameOfLock(FileLock lock) {
  return lock == FileLock::kAgainstWriting ? "lock against writing " : "lock ";
}

}  // namespace

Machine::Machine(std::uint64_t seed) : random_(world_, seed) {
  for (const std::string_view program : kPrograms) files_.Put(program, "MZ");
}

void Machine::Jump(std::uint64_t milliseconds) {
  world_.timeline.Jump(milliseconds);
  world_.NoteFate("time", "jump " + std::to_string(milliseconds));
}

void Machine::SetClock(const LocalTime& time) {
  world_.timeline.SetClock(time);
  world_.NoteFate("time", "clock set");
}

EventId Machine::At(std::uint64_t time, std::function<void()> act, std::string who) {
  return world_.timeline.At(time, std::move(who), std::move(act));
}

EventId Machine::Every(std::uint32_t period, std::function<void()> act, std::string who) {
  return world_.timeline.Every(period, std::move(who), std::move(act));
}

void Machine::PostToAgent(std::uintptr_t window, std::uint32_t message, std::uintptr_t wparam,
                          std::intptr_t lparam) {
  AtAgent(now(), [=, this] {
    if (agent_window_) agent_window_(window, message, wparam, lparam);
  });
}

void Machine::TouchIcon(std::uint32_t mouse_message) {
  const std::optional<Icon>& icon = shell_.icon();
  if (!icon) return;
  PostToAgent(icon->window, icon->callback_message, 0, static_cast<std::intptr_t>(mouse_message));
}

void Machine::RenewAgent() {
  world_.timeline.RenewAgent();
  processes_.RenewAgent();
  world_.NoteFate("process", "new agent");
}

void Machine::KillProcess(std::string_view name_or_path) {
  world_.NoteFate("process", "kill " + std::string(name_or_path));
  As(kFate, [&] {
    while (const ProcessId id = processes_.RunningId(name_or_path)) processes_.End(id, 1);
  });
}

void Machine::StopService(std::string_view name) {
  SetService(name, ServiceState::kStopped);
}

void Machine::SetService(std::string_view name, ServiceState state) {
  world_.NoteFate("service", std::string(name) + " " + std::to_string(static_cast<int>(state)));
  services_.Set(name, state);
}

void Machine::LockFile(std::string_view path, FileLock lock) {
  if (DiskNode* node = Fated(path, NameOfLock(lock))) node->lock = lock;
}

void Machine::UnlockFile(std::string_view path) {
  if (DiskNode* node = Fated(path, "unlock ")) node->lock = FileLock::kNone;
}

void Machine::MakeReadOnly(std::string_view path, bool read_only) {
  if (DiskNode* node = Fated(path, read_only ? "read-only " : "writable ")) {
    node->read_only = read_only;
  }
}

void Machine::FillDisk(bool full) {
  world_.NoteFate("file", full ? "disk full" : "disk has room");
  disk_.SetFull(full);
}

void Machine::RestartShell() {
  SetShellPresent(false);
  SetShellPresent(true);
  PostToAgent(kAllWindows, windows_.MessageNumber("TaskbarCreated"));
}

void Machine::SetShellPresent(bool present) {
  world_.NoteFate("shell", present ? "there" : "gone");
  shell_.SetPresent(present);
}

void Machine::Suspend(std::uint64_t milliseconds) {
  PostToAgent(kAllWindows, kPowerBroadcast, kGoingToSleep);
  world_.timeline.Pump();
  Jump(milliseconds);
  PostToAgent(kAllWindows, kPowerBroadcast, kAwakeAgain);
}

void Machine::EndSession() {
  world_.NoteFate("session", "end");
  PostToAgent(kAllWindows, kQueryEndSession);
  PostToAgent(kAllWindows, kEndSession, 1);
}

void Machine::LogOn(std::string_view name) {
  world_.NoteFate("session", "log on " + std::string(name));
  processes_.SetLoginName(name);
}

DiskNode* Machine::Fated(std::string_view path, std::string_view what) {
  world_.NoteFate("file", std::string(what) + std::string(path));
  return disk_.Find(path);
}

}  // namespace platform::memory
