// One control's window. It is a window of the system's own class for its kind, so that screen
// readers know it; what the theme draws is drawn over it.
#pragma once

#include <windows.h>

#include "forms/control.h"
#include "forms/win32/screen.h"
#include "platform/win32/scoped.h"

namespace forms::win32 {

class Child {
 public:
  // `messages_under_way` counts those that the form and its children are busy with.
  Child(Control& control, Screen& screen, int& messages_under_way)
      : control_(control), screen_(screen), messages_under_way_(messages_under_way) {}
  ~Child() { Close(); }
  Child(const Child&) = delete;
  Child& operator=(const Child&) = delete;

  // False when the system refuses.
  bool Create(HWND form);

  // Takes the window away and leaves the control alone from now on.
  void Close();

  HWND Handle() const { return window_.get(); }
  Control& Model() const { return control_; }
  bool Hover() const { return hover_; }

  // Brings one property, or all, from the control to the window.
  void Update(Property property);
  void UpdateAll();

  // Draws what the theme draws itself.
  void Draw(HDC dc, bool pressed);

  // A notification of the window to its form. True when it was one that the control knows.
  bool HandleCommand(UINT code);
  bool HandleNotification(const NMHDR& notification);
  void HandleScroll();

  int Dpi() const { return screen_.Dpi(window_.get()); }
  Screen& ScreenOf() const { return screen_; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT HandleMessage(UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT PassOn(UINT message, WPARAM wparam, LPARAM lparam);
  void TrackMouse(UINT message, LPARAM lparam);
  bool DrawsItself() const;
  bool LooksClickable() const;
  void Paint();
  bool IsField() const;
  void InsetField(RECT& inside) const;
  void DrawFieldBorder() const;
  void Place() const;
  Point UnitsAt(LPARAM lparam) const;

  Control& control_;
  Screen& screen_;
  int& messages_under_way_;
  platform::win32::ScopedWindow window_;
  WNDPROC system_procedure_ = nullptr;
  bool hover_ = false;
  bool updating_ = false;  // what the window now tells comes from the control itself
};

}  // namespace forms::win32
