#include "tests/platform/win32/contract_services.h"

#include "platform/win32/scoped.h"

using platform::ServiceState;
using platform::win32::ScopedHandle;
using platform::win32::ScopedService;

namespace {

ScopedService OpenManager() {
  return ScopedService(OpenSCManagerA(nullptr, nullptr, SC_MANAGER_ALL_ACCESS));
}

// It takes no orders: its process is ended.
void EndProcessOf(const ScopedService& service) {
  SERVICE_STATUS_PROCESS status = {};
  DWORD needed = 0;
  QueryServiceStatusEx(service.get(), SC_STATUS_PROCESS_INFO, reinterpret_cast<BYTE*>(&status),
                       sizeof(status), &needed);
  if (status.dwProcessId == 0) return;
  const ScopedHandle process(
      OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, status.dwProcessId));
  TerminateProcess(process.get(), 0);
  WaitForSingleObject(process.get(), 10000);
}

// Waits until the service says that it stands in `state`; a test that waits in vain fails by it.
void StandIn(const ScopedService& service, DWORD state) {
  constexpr int kTries = 1000;
  SERVICE_STATUS status = {};
  for (int i = 0; i < kTries && status.dwCurrentState != state; ++i) {
    if (i > 0) Sleep(10);
    if (!QueryServiceStatus(service.get(), &status)) return;
  }
}

}  // namespace

ContractServices::~ContractServices() {
  for (const std::string& name : names_) Remove(name);
}

void ContractServices::Put(const std::string& name, ServiceState state) {
  Remove(name);
  const std::string command = "\"" + companion_ + "\" serve";
  const ScopedService manager = OpenManager();
  const ScopedService service(
      CreateServiceA(manager.get(), name.c_str(), name.c_str(), SERVICE_ALL_ACCESS,
                     SERVICE_WIN32_OWN_PROCESS, SERVICE_DEMAND_START, SERVICE_ERROR_IGNORE,
                     command.c_str(), nullptr, nullptr, nullptr, nullptr, nullptr));
  names_.push_back(name);
  if (state == ServiceState::kStopped) return;
  StartServiceA(service.get(), 0, nullptr);
  StandIn(service, SERVICE_RUNNING);
  if (state == ServiceState::kRunning) return;
  constexpr DWORD kFirstUserOrder = 128;
  SERVICE_STATUS status = {};
  ControlService(service.get(), kFirstUserOrder + static_cast<DWORD>(state), &status);
  StandIn(service, static_cast<DWORD>(state));
}

void ContractServices::Remove(const std::string& name) {
  const ScopedService manager = OpenManager();
  const ScopedService service(OpenServiceA(manager.get(), name.c_str(), SERVICE_ALL_ACCESS));
  if (!service) return;
  EndProcessOf(service);
  DeleteService(service.get());
}
