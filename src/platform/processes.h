// Other processes of this machine, and this one.
//
// One thread. No handle leaves this port except the number of a started client, which is only
// waited on.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace platform {

using ProcessId = std::uint32_t;

struct ProcessEntry {
  ProcessId id = 0;
  std::string name;
};

// Told each process of a walk; returns false to end the walk.
using ProcessVisitor = std::function<bool(const ProcessEntry&)>;

enum class SystemFamily { kWindows9x = 1, kNt = 2 };

struct SystemVersion {
  SystemFamily family = SystemFamily::kNt;
  std::uint32_t major = 0;
  std::uint32_t minor = 0;
};

class Processes {
 public:
  virtual ~Processes() = default;

  // Walks at most `most` process ids and gives each that can be opened for reading with the file
  // name of its first module, without folder. Processes that cannot be opened are passed over.
  virtual void WalkModuleNames(std::size_t most, const ProcessVisitor& visit) = 0;

  // The same with the full path of the first module.
  virtual void WalkModulePaths(std::size_t most, const ProcessVisitor& visit) = 0;

  // Walks a snapshot of all processes with the name of each image, without folder.
  virtual void WalkSnapshot(const ProcessVisitor& visit) = 0;

  // Opens the process for ending (with `access` bits as given) and ends it with exit code 0.
  // Returns 0, or the error of opening or ending.
  virtual std::uint32_t Terminate(ProcessId id, std::uint32_t access) = 0;

  // Ends this process with `code`. In the memory machine the call returns and the machine is
  // stopped: callers return at once after it.
  virtual void ExitSelf(std::uint32_t code) = 0;

  // Creates the named mutex with initial ownership and keeps it for the life of the process.
  // Returns 0, or the error; 183 (already exists) when some process has it, and then it is released
  // and closed again.
  virtual std::uint32_t HoldMutex(std::string_view name) = 0;

  // The Windows account of this process, or the error's number in `error` with an empty name.
  struct LoginName {
    std::string name;
    std::uint32_t error = 0;
  };
  virtual LoginName CurrentLoginName() = 0;

  // What the system says of its version to this program.
  virtual SystemVersion Version() = 0;

  // True for a 32-bit process on a 64-bit system.
  virtual bool IsWow64() = 0;

  // Puts this process into the normal priority class. False when the system refuses.
  virtual bool SetNormalPriority() = 0;

  // The folder of this executable, without a final backslash.
  virtual std::string ExecutableFolder() = 0;
};

inline constexpr std::uint32_t kErrorAlreadyExists = 183;

}  // namespace platform
