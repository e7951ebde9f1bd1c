// The window of one loaded form and the windows of its controls.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "forms/form.h"
#include "forms/win32/child.h"
#include "forms/win32/screen.h"

namespace forms::win32 {

class FormWindow {
 public:
  FormWindow(Form& form, Screen& screen);
  ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  // False when the system refuses.
  bool Create();

  // Takes the window away and leaves the form alone from now on. The object may still be in use by
  // a message under way.
  void Close();

  HWND Handle() const { return window_.get(); }
  Form& Model() const { return form_; }
  bool Busy() const { return messages_under_way_ > 0; }

  void Update(const Control* control, Property property);
  void SetState(WindowState state);
  void SetOwner(HWND owner);
  void SetFocus(const Control& control);
  // The keyboard comes back to the control that has it now.
  void NoteFocus();

  HWND WindowOf(const Control& control) const;
  // The control that a window belongs to; null for none.
  Control* ControlOf(HWND window) const;
  int Dpi() const { return screen_.Dpi(window_.get()); }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT Handle(UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT HandleOwn(UINT message, WPARAM wparam, LPARAM lparam);
  LRESULT HandleCommand(WPARAM wparam, LPARAM lparam);
  LRESULT ColourOfChild(HDC dc, HWND child);

  void CreateChildren();
  Child* ChildFor(const Control& control) const;
  Child* ChildOf(HWND window) const;
  void ArrangeSoon();
  void Arrange();
  void Resize(SIZE size);
  POINT PlaceFor(SIZE size) const;
  void CutCorners(SIZE size);
  void Paint();
  void DrawItem(const DRAWITEMSTRUCT& item);
  void ChangeDpi(const RECT& suggested);
  void GiveFirstFocus();
  void RescueFocus();
  void ShowPointer();

  Form& form_;
  Screen& screen_;
  platform::win32::ScopedWindow window_;
  std::vector<std::unique_ptr<Child>> children_;
  const Control* last_focus_ = nullptr;
  Pointer shown_pointer_ = Pointer::kDefault;
  bool closed_ = false;
  bool placed_ = false;
  bool arrange_posted_ = false;
  int messages_under_way_ = 0;
};

}  // namespace forms::win32
