#include "forms/win32/host.h"

#include <algorithm>
#include <string>

#include "forms/menu.h"
#include "forms/win32/popup_menu.h"
#include "forms/win32/tool_tip_window.h"

namespace forms::win32 {
namespace {

struct KeyName {
  WPARAM number;
  Key key;
};
constexpr KeyName kKeys[] = {
    {VK_RETURN, Key::kEnter}, {VK_SPACE, Key::kSpace}, {VK_ESCAPE, Key::kEscape},
    {VK_TAB, Key::kTab},      {VK_LEFT, Key::kLeft},   {VK_RIGHT, Key::kRight},
    {VK_UP, Key::kUp},        {VK_DOWN, Key::kDown},
};

// Smooth letters reach a little over the room that the system gives for them.
constexpr int kOverhang = 1;

constexpr LPARAM kRepeatedKey = 1 << 30;

bool IsDown(int key) {
  return (GetKeyState(key) & 0x8000) != 0;
}

Key KeyOf(WPARAM number) {
  if (number == VK_TAB && IsDown(VK_SHIFT)) return Key::kBackTab;
  for (const KeyName& name : kKeys) {
    if (name.number == number) return name.key;
  }
  return Key::kOther;
}

// An open list takes the keys that close it.
bool IsDroppedDown(const Control* control, HWND window) {
  if (control == nullptr || control->Kind() != ControlKind::kComboBox) return false;
  return SendMessageA(window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

platform::WindowId ToId(HWND window) {
  return reinterpret_cast<platform::WindowId>(window);
}

}  // namespace

Host::Host(platform::win32::Events& events, int fixed_dpi) : events_(events) {
  screen_.fixed_dpi = fixed_dpi;
  events_.SetMessageFilter([this](MSG& message) { return FilterKey(message); });
}

Host::~Host() {
  events_.SetMessageFilter({});
}

FormWindow* Host::WindowFor(const Form& form) const {
  const auto found = std::find_if(windows_.begin(), windows_.end(), [&form](const auto& window) {
    return &window->Model() == &form;
  });
  return found == windows_.end() ? nullptr : found->get();
}

bool Host::FilterKey(const MSG& message) {
  Bury();
  if (message.message != WM_KEYDOWN) return false;
  const HWND root = GetAncestor(message.hwnd, GA_ROOT);
  const auto found = std::find_if(windows_.begin(), windows_.end(), [root](const auto& window) {
    return root != nullptr && window->Handle() == root;
  });
  if (found == windows_.end()) return false;
  FormWindow& window = **found;
  Control* const control = window.ControlOf(message.hwnd);
  const Key key = KeyOf(message.wParam);
  if (control && IsDroppedDown(control, window.WindowOf(*control))) return false;
  // A key that is held down answers one window, not those behind it as well.
  const bool answers = key == Key::kEnter || key == Key::kEscape || key == Key::kSpace;
  const bool types = control && control->Kind() == ControlKind::kTextBox;
  if (answers && !types && (message.lParam & kRepeatedKey)) return true;
  return window.Model().PressKey(control, key);
}

bool Host::Realise(Form& form) {
  auto window = std::make_unique<FormWindow>(form, screen_);
  if (!window->Create()) return false;
  windows_.push_back(std::move(window));
  return true;
}

void Host::Unrealise(Form& form) {
  EndModal(form);
  const auto found = std::find_if(windows_.begin(), windows_.end(), [&form](const auto& window) {
    return &window->Model() == &form;
  });
  if (found == windows_.end()) return;
  closed_.push_back(std::move(*found));
  windows_.erase(found);
  closed_.back()->Close();
  Bury();
}

void Host::Bury() {
  std::erase_if(closed_, [](const auto& window) { return !window->Busy(); });
}

void Host::Update(Form& form, const Control* control, Property property) {
  if (FormWindow* const window = WindowFor(form)) window->Update(control, property);
}

void Host::SetState(Form& form, WindowState state) {
  if (state == WindowState::kHidden) EndModal(form);
  if (FormWindow* const window = WindowFor(form)) window->SetState(state);
}

void Host::RunModal(Form& form, Form* owner) {
  FormWindow* const window = WindowFor(form);
  if (window == nullptr) return;
  const FormWindow* const owner_window = owner ? WindowFor(*owner) : nullptr;
  window->SetOwner(owner_window ? owner_window->Handle() : nullptr);
  BeginModal(*window);
  window->SetState(WindowState::kInFront);
  events_.RunUntil([&form] { return !form.Visible(); });
  EndModal(form);
}

void Host::BeginModal(const FormWindow& window) {
  Modal modal = {&window.Model(), {}};
  for (const auto& other : windows_) {
    if (other.get() == &window || !IsWindowEnabled(other->Handle())) continue;
    other->NoteFocus();
    EnableWindow(other->Handle(), FALSE);
    modal.disabled.push_back(other->Handle());
  }
  modals_.push_back(std::move(modal));
}

// Before the window goes, so that the keyboard returns to its owner and not to another program.
void Host::EndModal(const Form& form) {
  const auto found = std::find_if(modals_.begin(), modals_.end(),
                                  [&form](const Modal& modal) { return modal.form == &form; });
  if (found == modals_.end()) return;
  for (const HWND window : found->disabled) EnableWindow(window, TRUE);
  modals_.erase(found);
}

void Host::SetFocus(Control& control) {
  if (FormWindow* const window = WindowFor(control.Owner())) window->SetFocus(control);
}

bool Host::HasFocus(const Control& control) {
  const FormWindow* const window = WindowFor(control.Owner());
  return window && window->ControlOf(GetFocus()) == &control;
}

void Host::PopUp(Form& form, Menu& menu) {
  FormWindow* const window = WindowFor(form);
  if (window == nullptr) return;
  MenuItem* const chosen = ShowPopupMenu(window->Handle(), menu);
  if (chosen && chosen->on_click) chosen->on_click();
}

void Host::StartDrag(Form& form) {
  FormWindow* const window = WindowFor(form);
  if (window == nullptr) return;
  ReleaseCapture();
  SendMessageA(window->Handle(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

Rect Host::GetDesktopRectt() {
  RECT area = {};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  const auto units = [dpi = screen_.Dpi(nullptr)](LONG pixels) {
    return MulDiv(static_cast<int>(pixels), kUnitsPerInch, dpi);
  };
  return {units(area.left), units(area.top), units(area.right - area.left),
          units(area.bottom - area.top)};
}

platform::WindowId Host::Window(const Form& form) {
  const FormWindow* const window = WindowFor(form);
  return window ? ToId(window->Handle()) : platform::kNoWindow;
}

platform::WindowId Host::Window(const Control& control) {
  const FormWindow* const window = WindowFor(control.Owner());
  return window ? ToId(window->WindowOf(control)) : platform::kNoWindow;
}

Size Host::MeasureText(const Form& form, std::string_view text, Font font, int width) {
  const FormWindow* const window = WindowFor(form);
  const int dpi = window ? window->Dpi() : screen_.Dpi(nullptr);
  const WindowDc dc(window ? window->Handle() : nullptr);
  const Selection selection(dc.get(), screen_.fonts.Get(font, dpi));
  RECT room = {0, 0, width > 0 ? ToPixels(width, dpi) - RoundingLoss(dpi) : 0x7FFF, 0};
  // An empty text is as high as one line.
  const std::string shown(text.empty() ? std::string_view("X") : text);
  const UINT format = kTextFormat | DT_CALCRECT;
  DrawTextA(dc.get(), shown.c_str(), static_cast<int>(shown.size()), &room,
            width > 0 ? format : format & ~static_cast<UINT>(DT_WORDBREAK));
  return {text.empty() ? 0 : ToUnits(room.right, dpi) + kOverhang, ToUnits(room.bottom, dpi)};
}

std::unique_ptr<forms::ToolTipWindow> Host::MakeToolTip() {
  return std::make_unique<ToolTipWindow>(screen_);
}

}  // namespace forms::win32
