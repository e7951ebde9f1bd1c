#include "tests/forms/win32/real_screen.h"

#include <memory>

#include "forms/win32/fonts.h"
#include "forms/win32/scoped_gdi.h"

namespace forms::testing {
namespace {

// What a caption needs beside its text, in units.
int ExtraWidth(const Control& control) {
  const bool marked =
      control.Kind() == ControlKind::kCheckBox || control.Kind() == ControlKind::kRadioButton;
  return marked ? theme::kMarkSize + theme::kGap : 0;
}

bool HasCaption(const Control& control) {
  return control.Kind() == ControlKind::kLabel || control.Kind() == ControlKind::kButton ||
         ExtraWidth(control) > 0;
}

bool Fits(const Control& control, win32::Fonts& fonts, int dpi) {
  RECT inside;
  GetClientRect(WindowOf(control), &inside);
  const LONG width = inside.right - MulDiv(ExtraWidth(control), dpi, 96);
  const win32::WindowDc dc(WindowOf(control));
  const win32::Selection font(dc.get(), fonts.Get(control.TextFont(), dpi));
  RECT needed = {0, 0, width, 0};
  const UINT wraps = control.Kind() == ControlKind::kButton ? 0 : DT_WORDBREAK;
  DrawTextA(dc.get(), control.Text().c_str(), -1, &needed, DT_CALCRECT | DT_NOPREFIX | wraps);
  return needed.right <= width && needed.bottom <= inside.bottom;
}

// Inside its form, as seen on the screen.
bool LiesInForm(const Control& control) {
  RECT form;
  RECT place;
  GetWindowRect(WindowOf(control.Owner()), &form);
  GetWindowRect(WindowOf(control), &place);
  return place.left >= form.left && place.top >= form.top && place.right <= form.right &&
         place.bottom <= form.bottom;
}

}  // namespace

HWND WindowOf(const Form& form) {
  return reinterpret_cast<HWND>(form.Window());
}
HWND WindowOf(const Control& control) {
  return reinterpret_cast<HWND>(control.Window());
}

std::string ClassOf(HWND window) {
  char name[64] = "";
  GetClassNameA(window, name, sizeof(name));
  return name;
}

std::string TextOf(HWND window) {
  char text[4096] = "";
  GetWindowTextA(window, text, sizeof(text));
  return text;
}

void RealScreen::Press(HWND window, int key) {
  PostMessageA(window, WM_KEYDOWN, static_cast<WPARAM>(key), 1);
  Settle();
}

void RealScreen::PressSoon(int key) {
  Soon([key] { PostMessageA(GetFocus(), WM_KEYDOWN, static_cast<WPARAM>(key), 1); });
}

void RealScreen::Soon(std::function<void()> act) {
  auto timer = std::make_shared<platform::TimerId>(platform::kNoTimer);
  *timer = events.StartTimer(10, [this, timer, act = std::move(act)] {
    events.StopTimer(*timer);
    act();
  });
}

std::string CutTexts(const Form& form, int dpi) {
  win32::Fonts fonts;
  std::string cut;
  for (const Control* control : form.Controls()) {
    if (!control->Shown()) continue;
    if (!LiesInForm(*control)) cut += control->Name() + " (outside) ";
    if (HasCaption(*control) && !Fits(*control, fonts, dpi)) cut += control->Name() + " ";
  }
  return cut;
}

}  // namespace forms::testing
