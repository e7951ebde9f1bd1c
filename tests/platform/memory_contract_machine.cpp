// The machine in memory as the contract suites see it.
#include <map>
#include <string>
#include <utility>

#include "platform/memory/machine.h"
#include "tests/platform/contract_machine.h"

namespace {

using platform::Hive;
using platform::ProcessId;
using platform::RegistryType;
using platform::WindowId;
using platform::memory::FileLock;
using platform::memory::Launch;
using platform::memory::Machine;

constexpr std::uint32_t kCloseMessage = 16;

// The four bytes of a number, the lowest first.
std::string BytesOf(std::uint32_t number) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(number >> shift & 0xFF);
  return bytes;
}

std::uint32_t NumberOf(std::string_view bytes) {
  std::uint32_t number = 0;
  for (auto byte = bytes.rbegin(); byte != bytes.rend(); ++byte) {
    number = number << 8 | static_cast<unsigned char>(*byte);
  }
  return number;
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  return text;
}

class MemoryContractMachine final : public ContractMachine {
 public:
  MemoryContractMachine() {
    machine_.files().PutFolder(Folder());
    machine_.registry().PutKey(Hive::kCurrentUser, "Software");
  }

  platform::Platform& platform() override { return machine_.platform(); }
  std::string Folder() override { return "C:\\Contract"; }
  std::string RegistryKey() override { return "Software\\Contract"; }

  void PutFile(std::string_view path, std::string_view bytes) override {
    machine_.files().Put(path, bytes);
  }
  std::optional<std::string> FileBytes(std::string_view path) override {
    if (!machine_.files().Has(path)) return std::nullopt;
    return machine_.files().Content(path);
  }
  void LockFile(std::string_view path) override { machine_.LockFile(path); }
  void UnlockFile(std::string_view path) override { machine_.UnlockFile(path); }
  void LockForWriting(std::string_view path) override {
    machine_.LockFile(path, FileLock::kAgainstWriting);
  }
  void SetReadOnly(std::string_view path, bool read_only) override {
    machine_.MakeReadOnly(path, read_only);
  }

  void PutRegistryValue(std::string_view key, std::string_view name, std::uint32_t type,
                        std::string_view bytes) override {
    platform::RegistryValue value;
    value.type = static_cast<RegistryType>(type);
    if (value.type == RegistryType::kNumber) {
      value.number = NumberOf(bytes);
    } else {
      value.bytes = bytes;
    }
    machine_.registry().Put(Hive::kCurrentUser, key, name, value);
  }
  std::optional<StoredValue> RegistryValueBytes(std::string_view key,
                                                std::string_view name) override {
    const auto value = machine_.registry().Value(Hive::kCurrentUser, key, name);
    if (!value) return std::nullopt;
    const bool number = value->type == RegistryType::kNumber;
    return StoredValue{static_cast<std::uint32_t>(value->type),
                       number ? BytesOf(value->number) : value->bytes};
  }

  ProcessId StartProgram(std::string_view image_name) override {
    const std::string path = InFolder(image_name);
    PutFile(path, "MZ");
    return machine_.processes().Start(path);
  }
  void EndProgram(ProcessId id, std::uint32_t exit_code) override {
    machine_.processes().End(id, exit_code);
  }
  std::optional<std::uint32_t> ExitCode(ProcessId id) override {
    const auto* process = machine_.processes().Find(id);
    if (process == nullptr || process->running) return std::nullopt;
    return process->exit_code;
  }
  std::string ProgramThatEnds(std::string_view image_name, std::uint32_t milliseconds) override {
    const std::string path = InFolder(image_name);
    PutFile(path, "MZ");
    machine_.processes().Install(path, [this, milliseconds](const Launch& launch) {
      const std::string folder =
          launch.folder.empty() ? machine_.files().current_folder() : launch.folder;
      machine_.files().Put(launch.file + ".seen",
                           std::string(WithoutLeadingBlanks(launch.arguments)) + "|" + folder);
      machine_.processes().After(launch.id, milliseconds,
                                 [this, id = launch.id] { machine_.processes().End(id); });
    });
    return path;
  }

  WindowId OpenWindow(std::string_view class_name, std::string_view title) override {
    platform::memory::ForeignWindow window;
    window.class_name = class_name;
    window.title = title;
    const WindowId id = machine_.windows().Add(window);
    machine_.windows().SetProcedure(
        id, [this, id](std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam) {
          received_[id].push_back({message, wparam, lparam});
          if (message == kCloseMessage) machine_.windows().Close(id);
          return static_cast<std::intptr_t>(message);
        });
    return id;
  }
  void MinimiseWindow(WindowId window) override { machine_.windows().SetMinimised(window, true); }
  std::vector<ReceivedMessage> Received(WindowId window, std::uint32_t from) override {
    machine_.platform().clock.Sleep(0);
    std::vector<ReceivedMessage> messages;
    for (const ReceivedMessage& message : received_[window]) {
      if (message.message >= from) messages.push_back(message);
    }
    return messages;
  }

  void PutService(std::string_view name, platform::ServiceState state) override {
    machine_.services().Set(name, state);
  }

  void PutLibrary(std::string_view path) override {
    auto& libraries = machine_.libraries();
    libraries.PutString(path, 1, "One");
    libraries.PutString(path, 7, "Sieben");
    libraries.PutString(path, 1575, "Log Viewer");
    libraries.PutString(path, 4095, std::string(300, 'x'));
    libraries.PutFunction(path, "AddOne", [](std::int32_t number) { return number + 1; });
    libraries.PutFunction(path, "Negate", [](std::int32_t number) { return -number; });
    libraries.PutTextFunction(
        path, "LeaveMark", [this](std::string_view mark) { machine_.files().Put(mark, "mark"); });
  }

 private:
  std::string InFolder(std::string_view name) { return Folder() + "\\" + std::string(name); }

  Machine machine_;
  std::map<WindowId, std::vector<ReceivedMessage>> received_;
};

}  // namespace

std::unique_ptr<ContractMachine> MakeContractMachine() {
  return std::make_unique<MemoryContractMachine>();
}
