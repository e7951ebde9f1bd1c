#include "tests/windows/lab_service.h"

#include <string>

namespace {

constexpr char kServiceName[] = "SorvaneE Service";
constexpr std::string_view kProgram = "SorvaneE Service.exe";
constexpr char kWineSettings[] = "Software\\Wine\\AppDefaults\\SorvaneETray.exe";

}  // namespace

void RemoveLeftService() {
  const SC_HANDLE manager = OpenSCManagerA(nullptr, nullptr, SC_MANAGER_ALL_ACCESS);
  if (const SC_HANDLE service = OpenServiceA(manager, kServiceName, DELETE)) {
    DeleteService(service);
    CloseServiceHandle(service);
  }
  CloseServiceHandle(manager);
}

LabService::LabService(Story& story)
    : story_(story), manager_(OpenSCManagerA(nullptr, nullptr, SC_MANAGER_ALL_ACCESS)) {
  const std::string program = story.places().InInstallFolder(kProgram);
  CopyFileA(InBuild("lab_service.exe").c_str(), program.c_str(), FALSE);
  // The manager keeps one that was taken out until its process has gone.
  WaitUntil([&] {
    service_ = CreateServiceA(manager_, kServiceName, kServiceName, SERVICE_ALL_ACCESS,
                              SERVICE_WIN32_OWN_PROCESS, SERVICE_DEMAND_START, SERVICE_ERROR_NORMAL,
                              ("\"" + program + "\"").c_str(), nullptr, nullptr, nullptr, nullptr,
                              nullptr);
    return service_ != nullptr;
  });
}

LabService::~LabService() {
  // A batch file that starts it may still be on its way.
  ActUntil([this] { story_.Script("Service", "State", std::to_string(SERVICE_STOPPED)); },
           [this] { return State() == SERVICE_STOPPED; });
  DeleteService(service_);
  CloseServiceHandle(service_);
  CloseServiceHandle(manager_);
}

bool LabService::Enter(DWORD state) {
  const auto becomes = [this](DWORD wanted) {
    story_.Script("Service", "State", std::to_string(wanted));
    return WaitUntil([&] { return State() == wanted; });
  };
  story_.Script("Service", "State", std::to_string(SERVICE_RUNNING));
  return WaitUntil([&] { return StartServiceA(service_, 0, nullptr) != FALSE; }) &&
         becomes(SERVICE_RUNNING) && becomes(state);
}

DWORD LabService::State() const {
  SERVICE_STATUS status = {};
  return QueryServiceStatus(service_, &status) ? status.dwCurrentState : 0;
}

void LabService::LetBatchFilesWork() const {
  const struct {
    std::string_view name;
    std::string_view verb;
  } files[] = {{"StartSorvaneEService.bat", "start"}, {"StopSorvaneEService.bat", "stop"}};
  for (const auto& file : files) {
    story_.machine().files.Replace(
        story_.places().InInstallFolder(file.name),
        "@\"%~dp0" + std::string(kProgram) + "\" " + std::string(file.verb) + "\r\n");
  }
}

EarlierWindows::EarlierWindows() {
  RegSetKeyValueA(HKEY_CURRENT_USER, kWineSettings, "Version", REG_SZ, "winxp64",
                  sizeof("winxp64"));
}

EarlierWindows::~EarlierWindows() {
  RegDeleteTreeA(HKEY_CURRENT_USER, kWineSettings);
}
