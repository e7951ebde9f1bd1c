// The interactive main program: a window with the title by which the agent finds it. Where nobody
// is logged in, it logs its one user in; it ends when its window is closed.
#include <windows.h>

#include <string>

#include "lab/engine/login.h"
#include "lab/engine/program_names.h"
#include "lab/stand_ins/process.h"
#include "platform/win32/machine.h"
#include "shared/keys.h"
#include "shared/registry_store.h"

namespace {

constexpr std::string_view kUser = "anna";
constexpr std::string_view kCaption = "Sorvane Classic";
constexpr char kWindowClass[] = "LabMainProgram";
constexpr UINT_PTR kPollTimer = 1;
constexpr UINT kPollPeriod = 1000;  // milliseconds

struct MainProgram {
  platform::Platform& ports;
  lab::Places places;
};

lab::Ports PortsOf(const MainProgram& program) {
  return {program.ports.files, program.ports.profile_files};
}

// "Backup Now" of the tray: the request is taken, and the engine runs the backup.
void TakeRequest(const MainProgram& program) {
  const std::string profile =
      program.places.Profile(lab::DefaultUser(PortsOf(program), program.places));
  const auto section = shared::sections::kBackupStatus;
  const auto key = shared::keys::kBackupNowTray;
  if (program.ports.profile_files.ReadText(profile, section, key) != "1") return;
  program.ports.profile_files.WriteText(profile, section, key, "0");
  program.ports.shell.Start(platform::ShellVerb::kOpen,
                            program.places.InInstallFolder(lab::kEngineClient), "backup",
                            program.places.install_folder, platform::WindowShow::kHidden);
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_TIMER:
      TakeRequest(*reinterpret_cast<MainProgram*>(GetWindowLongPtrA(window, GWLP_USERDATA)));
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
  }
  return DefWindowProcA(window, message, wparam, lparam);
}

// The title under which the agent looks for a running main program.
std::string WindowTitle(MainProgram& program) {
  shared::AgentState state;
  state.ProductFolder = program.places.product_folder;
  const std::string version =
      shared::RegistryStore(program.ports, state).ReadAppValue(shared::registry::kVersion);
  const std::string user = program.ports.profile_files.ReadText(
      program.places.UserNameIni(), shared::sections::kTolvex, shared::keys::kInteractive);
  return std::string(kCaption) + " " + version + " (" + user + ")";
}

void ShowWindowOf(MainProgram& program, HINSTANCE instance) {
  WNDCLASSA window_class = {};
  window_class.lpfnWndProc = WindowProc;
  window_class.hInstance = instance;
  window_class.lpszClassName = kWindowClass;
  window_class.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  window_class.hCursor = LoadCursor(nullptr, IDC_ARROW);
  RegisterClassA(&window_class);
  HWND window =
      CreateWindowA(kWindowClass, WindowTitle(program).c_str(), WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                    40, 40, 420, 260, nullptr, nullptr, instance, nullptr);
  SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&program));
  SetTimer(window, kPollTimer, kPollPeriod, nullptr);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  lab::NoteCall();
  platform::win32::Machine machine;
  MainProgram program{machine.platform(), {.install_folder = lab::ExecutableFolder()}};
  if (lab::DefaultUser(PortsOf(program), program.places).empty()) {
    lab::LogIn(PortsOf(program), program.ports.registry, program.places, kUser);
  }
  ShowWindowOf(program, instance);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}
