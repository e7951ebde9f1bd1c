// The interactive main program: a window with the title by which the agent finds it, until it is
// closed. Where nobody is logged in, it logs its one user in first. Two arguments do one thing
// without a window: `login`, and `schedule`, which plans a daily job that is due at once.
#include <windows.h>

#include <string>

#include "lab/engine/login.h"
#include "lab/engine/program_names.h"
#include "lab/stand_ins/stand_in.h"
#include "shared/keys.h"
#include "shared/registry_store.h"

namespace {

constexpr std::string_view kUser = "anna";
constexpr std::string_view kCaption = "Sorvane Classic";
constexpr char kWindowClass[] = "LabMainProgram";
constexpr UINT_PTR kPollTimer = 1;
constexpr UINT kPollPeriod = 1000;  // milliseconds

// "Backup Now" of the tray: the request is taken, and the engine runs the backup.
void TakeRequest(lab::StandIn& self) {
  const std::string profile = self.places().Profile(lab::DefaultUser(self.ports(), self.places()));
  const auto section = shared::sections::kBackupStatus;
  const auto key = shared::keys::kBackupNowTray;
  if (self.ports().profile_files.ReadText(profile, section, key) != "1") return;
  self.ports().profile_files.WriteText(profile, section, key, "0");
  self.machine().shell.Start(platform::ShellVerb::kOpen,
                             self.places().InInstallFolder(lab::kEngineClient), "backup",
                             self.places().install_folder, platform::WindowShow::kHidden);
}

LRESULT CALLBACK WindowProc(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_TIMER:
      TakeRequest(*reinterpret_cast<lab::StandIn*>(GetWindowLongPtrA(window, GWLP_USERDATA)));
      return 0;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
  }
  return DefWindowProcA(window, message, wparam, lparam);
}

// The title under which the agent looks for a running main program.
std::string WindowTitle(lab::StandIn& self) {
  shared::AgentState state;
  state.ProductFolder = self.places().product_folder;
  const std::string version = shared::RegistryStore(self.machine(), state).ReadApplicationVersion();
  const std::string user = self.ports().profile_files.ReadText(
      self.places().UserNameIni(), shared::sections::kTolvex, shared::keys::kInteractive);
  return std::string(kCaption) + " " + version + " (" + user + ")";
}

void ShowWindowOf(lab::StandIn& self, HINSTANCE instance) {
  WNDCLASSA window_class = {};
  window_class.lpfnWndProc = WindowProc;
  window_class.hInstance = instance;
  window_class.lpszClassName = kWindowClass;
  window_class.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
  window_class.hCursor = LoadCursor(nullptr, IDC_ARROW);
  RegisterClassA(&window_class);
  HWND window =
      CreateWindowA(kWindowClass, WindowTitle(self).c_str(), WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40,
                    40, 420, 260, nullptr, nullptr, instance, nullptr);
  SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&self));
  SetTimer(window, kPollTimer, kPollPeriod, nullptr);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  lab::StandIn self;
  const std::string arguments = lab::Arguments();
  if (arguments == "login" || lab::DefaultUser(self.ports(), self.places()).empty()) {
    lab::LogIn(self.ports(), self.machine().registry, self.places(), kUser);
  }
  if (arguments == "schedule") {
    lab::PutDailySchedule(self.ports(), self.places(), kUser, self.machine().clock.Now());
  }
  if (!arguments.empty()) return 0;

  ShowWindowOf(self, instance);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  return 0;
}
