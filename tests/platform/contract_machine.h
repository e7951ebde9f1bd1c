// The machine that a contract suite runs against: the memory machine natively, the real one on
// Windows. A suite uses the ports, and the hooks below for what other programs do meanwhile.
//
// Each hook stands for another program: what it does reaches the ports by way of the machine only.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"

struct ReceivedMessage {
  std::uint32_t message = 0;
  std::uintptr_t wparam = 0;
  std::intptr_t lparam = 0;

  bool operator==(const ReceivedMessage&) const = default;
};

class ContractMachine {
 public:
  // Undoes all that the hooks did: files, keys, processes, windows and services.
  virtual ~ContractMachine() = default;

  virtual platform::Platform& platform() = 0;

  // An empty folder of this machine alone, without a final backslash.
  virtual std::string Folder() = 0;

  // An empty key path below HKEY_CURRENT_USER of this machine alone.
  virtual std::string RegistryKey() = 0;

  // Makes `bytes` the content of a file, at once.
  virtual void PutFile(std::string_view path, std::string_view bytes) = 0;

  // The bytes on the disk; nothing when there is no such file.
  virtual std::optional<std::string> FileBytes(std::string_view path) = 0;

  // Keeps the file open without sharing it, until UnlockFile.
  virtual void LockFile(std::string_view path) = 0;
  virtual void UnlockFile(std::string_view path) = 0;

  // Keeps the file open and lets others read it, but neither write nor delete it, until UnlockFile.
  virtual void LockForWriting(std::string_view path) = 0;

  virtual void SetReadOnly(std::string_view path, bool read_only) = 0;

  // Sets a registry value of any type number with any bytes, making the key.
  virtual void PutRegistryValue(std::string_view key, std::string_view name, std::uint32_t type,
                                std::string_view bytes) = 0;

  // The stored type number and bytes; nothing when there is no such value.
  struct StoredValue {
    std::uint32_t type = 0;
    std::string bytes;
  };
  virtual std::optional<StoredValue> RegistryValueBytes(std::string_view key,
                                                        std::string_view name) = 0;

  // Starts a program with this image name (for instance "Guest.exe") from the machine's folder; it
  // runs until it is ended. Returns its id.
  virtual platform::ProcessId StartProgram(std::string_view image_name) = 0;

  // Ends a program of StartProgram with `exit_code`.
  virtual void EndProgram(platform::ProcessId id, std::uint32_t exit_code) = 0;

  // The exit code of an ended program of StartProgram; nothing while it runs.
  virtual std::optional<std::uint32_t> ExitCode(platform::ProcessId id) = 0;

  // The full path of a program that ends by itself after `milliseconds`, for Shell::Start and Open.
  // It leaves the file `image_name` + ".seen" beside it with one line: its arguments, `|`, its
  // current directory.
  virtual std::string ProgramThatEnds(std::string_view image_name, std::uint32_t milliseconds) = 0;

  // Opens a top-level window of another program; "" as class means any class. It keeps what it is
  // sent or posted, answers every message with its number, and closes on WM_CLOSE (16).
  virtual platform::WindowId OpenWindow(std::string_view class_name, std::string_view title) = 0;
  virtual void MinimiseWindow(platform::WindowId window) = 0;

  // The messages of this number or above (default: WM_USER) that the window got, in order. Messages
  // posted before this call are in.
  virtual std::vector<ReceivedMessage> Received(platform::WindowId window,
                                                std::uint32_t from = 0x400) = 0;

  // Installs a service that stands in `state`, or puts an installed one into it.
  virtual void PutService(std::string_view name, platform::ServiceState state) = 0;

  // Puts a library at `path`: a string table with 1 "One", 7 "Sieben", 1575 "Log Viewer", 4095 "x"
  // repeated 300 times, and the exported functions `AddOne` (gives its argument plus one), `Negate`
  // and `LeaveMark` (takes a text, makes "mark" the content of the file at that path, and fills the
  // buffer).
  virtual void PutLibrary(std::string_view path) = 0;
};

// Made once for each test.
std::unique_ptr<ContractMachine> MakeContractMachine();
