#include "platform/win32/services.h"

#include <windows.h>

#include <string>

#include "platform/win32/scoped.h"

namespace platform::win32 {
namespace {

struct Rights {
  DWORD manager;
  DWORD service;
};

Rights RightsFor(ServiceAccess access) {
  if (access == ServiceAccess::kAll) return {SC_MANAGER_ALL_ACCESS, SERVICE_ALL_ACCESS};
  return {GENERIC_READ, GENERIC_READ};
}

static_assert(SC_MANAGER_ALL_ACCESS == 0xF003F && SERVICE_ALL_ACCESS == 0xF01FF);
static_assert(static_cast<int>(ServiceState::kStopped) == SERVICE_STOPPED);
static_assert(static_cast<int>(ServiceState::kPaused) == SERVICE_PAUSED);

}  // namespace

ServiceState Services::State(std::string_view name, ServiceAccess access) {
  const Rights rights = RightsFor(access);
  const ScopedService manager(OpenSCManagerA(nullptr, SERVICES_ACTIVE_DATABASEA, rights.manager));
  if (!manager) return ServiceState::kUnknown;
  const ScopedService service(
      OpenServiceA(manager.get(), std::string(name).c_str(), rights.service));
  SERVICE_STATUS status = {};
  if (!service || !QueryServiceStatus(service.get(), &status)) return ServiceState::kUnknown;
  return static_cast<ServiceState>(status.dwCurrentState);
}

}  // namespace platform::win32
