// The backup service, a Windows service of the real service manager. Without an argument it runs as
// the service and takes on the state that section Service of LabEngine.ini names:
//
//   [Service]  State=7    1 to 7, as the service manager counts them; 4 without an entry; 1 ends it
//
// Its batch files call it with `install`, `start` or `stop`; `remove` takes it out of the service
// manager again.
#include <windows.h>

#include <cstdlib>
#include <string>

#include "lab/stand_ins/stand_in.h"

namespace {

constexpr char kServiceName[] = "SorvaneE Service";
constexpr std::string_view kState = "State";
constexpr DWORD kPeriod = 100;  // milliseconds

std::string ScriptFile(lab::StandIn& self) {
  return self.places().InInstallFolder("LabEngine.ini");
}

DWORD WantedState(lab::StandIn& self) {
  const std::string text = self.ports().profile_files.ReadText(ScriptFile(self), "Service", kState);
  return text.empty() ? SERVICE_RUNNING : static_cast<DWORD>(std::atoi(text.c_str()));
}

void WantState(lab::StandIn& self, std::string_view state) {
  self.ports().profile_files.WriteText(ScriptFile(self), "Service", kState, state);
}

DWORD WINAPI Control(DWORD, DWORD, void*, void*) {
  return NO_ERROR;
}

void WINAPI RunService(DWORD, char**) {
  lab::StandIn self("service");
  const SERVICE_STATUS_HANDLE handle =
      RegisterServiceCtrlHandlerExA(kServiceName, Control, nullptr);
  SERVICE_STATUS status = {};
  status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
  do {
    if (const DWORD wanted = WantedState(self); wanted != status.dwCurrentState) {
      status.dwCurrentState = wanted;
      SetServiceStatus(handle, &status);
    }
    Sleep(kPeriod);
  } while (status.dwCurrentState != SERVICE_STOPPED);
}

int RunAsService() {
  char name[] = "SorvaneE Service";
  const SERVICE_TABLE_ENTRYA table[] = {{name, RunService}, {nullptr, nullptr}};
  return StartServiceCtrlDispatcherA(table) ? 0 : 1;
}

int Install(SC_HANDLE manager) {
  const std::string program = "\"" + lab::OwnFolder() + "\\" + lab::OwnName() + "\"";
  const SC_HANDLE service =
      CreateServiceA(manager, kServiceName, kServiceName, SERVICE_ALL_ACCESS,
                     SERVICE_WIN32_OWN_PROCESS, SERVICE_DEMAND_START, SERVICE_ERROR_NORMAL,
                     program.c_str(), nullptr, nullptr, nullptr, nullptr, nullptr);
  if (service) CloseServiceHandle(service);
  return service ? 0 : 1;
}

int Start(lab::StandIn& self, SC_HANDLE service) {
  WantState(self, "4");
  StartServiceA(service, 0, nullptr);  // fails for one that runs already and only changes its state
  return 0;
}

int Do(lab::StandIn& self, std::string_view verb) {
  const SC_HANDLE manager = OpenSCManagerA(nullptr, nullptr, SC_MANAGER_ALL_ACCESS);
  if (!manager) return 1;
  if (verb == "install") return Install(manager);
  const SC_HANDLE service = OpenServiceA(manager, kServiceName, SERVICE_ALL_ACCESS);
  if (!service) return 1;
  if (verb == "start") return Start(self, service);
  WantState(self, "1");
  if (verb == "remove") return DeleteService(service) ? 0 : 1;
  return 0;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  const std::string verb = lab::Arguments();
  if (verb.empty()) return RunAsService();
  lab::StandIn self;
  return Do(self, verb);
}
