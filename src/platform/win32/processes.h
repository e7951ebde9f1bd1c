// Processes of Windows.
#pragma once

#include "platform/processes.h"
#include "platform/win32/scoped.h"

namespace platform::win32 {

class Processes final : public platform::Processes {
 public:
  void WalkModuleNames(std::size_t most, const ProcessVisitor& visit) override;
  void WalkModulePaths(std::size_t most, const ProcessVisitor& visit) override;
  void WalkSnapshot(const ProcessVisitor& visit) override;
  std::uint32_t Terminate(ProcessId id, std::uint32_t access) override;
  void ExitSelf(std::uint32_t code) override;
  std::uint32_t HoldMutex(std::string_view name) override;
  LoginName CurrentLoginName() override;
  SystemVersion Version() override;
  bool IsWow64() override;
  bool SetNormalPriority() override;
  std::string ExecutableFolder() override;

 private:
  ScopedHandle mutex_;
};

}  // namespace platform::win32
