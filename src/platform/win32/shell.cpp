#include "platform/win32/shell.h"

#include <objbase.h>
#include <windows.h>

#include <string>

#include "platform/win32/last_error.h"

namespace platform::win32 {
namespace {

static_assert(kShellNoAssociation == SE_ERR_NOASSOC);
static_assert(SEE_MASK_NOCLOSEPROCESS == 64);

// Waits nest a few deep at most; without a limit months of starts would leak their handles.
constexpr std::size_t kKeptProcesses = 16;

int ToShowCommand(WindowShow show) {
  return show == WindowShow::kHidden ? SW_HIDE : SW_SHOWNORMAL;
}

const char* ToVerb(ShellVerb verb) {
  return verb == ShellVerb::kRunAs ? "runas" : "open";
}

// Null where the text is empty: the shell takes an empty one for a value.
const char* OrNull(const std::string& text) {
  return text.empty() ? nullptr : text.c_str();
}

}  // namespace

ComApartment::ComApartment(SystemLibrary& ole) : ole_(ole) {
  const auto enter = ole_.Find<decltype(&CoInitializeEx)>("CoInitializeEx");
  constexpr DWORD kKind = COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE;
  entered_ = enter && SUCCEEDED(enter(nullptr, kKind));
}

ComApartment::~ComApartment() {
  const auto leave = ole_.Find<decltype(&CoUninitialize)>("CoUninitialize");
  if (entered_ && leave) leave();
}

int Shell::Open(std::string_view file, std::string_view arguments, std::string_view folder,
                WindowShow show) {
  const ComApartment com(ole_);
  const std::string argument_text(arguments);
  const std::string folder_text(folder);
  const HINSTANCE answer =
      ShellExecuteA(GetDesktopWindow(), "open", std::string(file).c_str(), OrNull(argument_text),
                    OrNull(folder_text), ToShowCommand(show));
  return static_cast<int>(reinterpret_cast<INT_PTR>(answer));
}

StartResult Shell::Start(ShellVerb verb, std::string_view file, std::string_view arguments,
                         std::string_view folder, WindowShow show) {
  const ComApartment com(ole_);
  const std::string file_text(file);
  const std::string argument_text(arguments);
  const std::string folder_text(folder);
  SHELLEXECUTEINFOA info = {};
  info.cbSize = sizeof(info);
  info.fMask = SEE_MASK_NOCLOSEPROCESS;
  info.hwnd = reinterpret_cast<HWND>(static_cast<INT_PTR>(1));
  info.lpVerb = ToVerb(verb);
  info.lpFile = file_text.c_str();
  info.lpParameters = OrNull(argument_text);
  info.lpDirectory = OrNull(folder_text);
  info.nShow = ToShowCommand(show);
  if (!ShellExecuteExA(&info)) return {.handle = kNoProcess, .error = LastError()};
  if (info.hProcess == nullptr) return {};
  std::deque<ScopedHandle>& kept = started_[show];
  kept.emplace_back(info.hProcess);
  if (kept.size() > kKeptProcesses) kept.pop_front();
  return {.handle = reinterpret_cast<ProcessHandle>(info.hProcess), .error = 0};
}

PictureId Shell::LoadPicture(std::string_view path) {
  return pictures_.Load(path);
}

bool Shell::AddIcon(std::uintptr_t window, std::uint32_t callback_message, PictureId picture,
                    std::string_view tip) {
  return icon_.Add(reinterpret_cast<HWND>(window), callback_message, pictures_.IconOf(picture),
                   tip);
}

bool Shell::SetIconPicture(PictureId picture) {
  return icon_.SetIcon(pictures_.IconOf(picture));
}

bool Shell::SetIconTip(std::string_view tip) {
  return icon_.SetTip(tip);
}

bool Shell::RemoveIcon() {
  return icon_.Remove();
}

void Shell::ShowStopBox(std::string_view text, std::string_view caption) {
  MessageBoxA(nullptr, std::string(text).c_str(), std::string(caption).c_str(),
              MB_OK | MB_ICONSTOP);
}

}  // namespace platform::win32
