// The port of windows: what a form asks of the screen. Implemented in memory for tests (memory/)
// and on the real screen (win32/). Forms call it; other code calls the forms.
#pragma once

#include <memory>
#include <string_view>

#include "forms/control.h"
#include "forms/geometry.h"
#include "platform/events.h"
#include "platform/other_windows.h"

namespace forms {

class Form;
class Menu;
class ToolTipWindow;

// How a window stands on the screen. kInFront shows it and makes it the one that the user works in.
enum class WindowState { kHidden, kShown, kInFront, kMinimised };

class FormHost {
 public:
  virtual ~FormHost() = default;

  // Makes the window of `form` and of each control, hidden. False when the system refuses; the form
  // then works on without a window.
  virtual bool Realise(Form& form) = 0;

  // Takes the window away. Safe inside a handler of the form.
  virtual void Unrealise(Form& form) = 0;

  // Shows what changed of a control, or of the form itself (null). REQUIRES: realised.
  virtual void Update(Form& form, const Control* control, Property property) = 0;

  // Shows, hides or minimises the window.
  virtual void SetState(Form& form, WindowState state) = 0;

  // Shows the window over `owner` (null: over nothing) and waits until it is hidden or unloaded.
  // Timers and other windows' messages run meanwhile; the owner and all other windows take no
  // input.
  virtual void RunModal(Form& form, Form* owner) = 0;

  // Gives the keyboard to a control.
  virtual void SetFocus(Control& control) = 0;
  virtual bool HasFocus(const Control& control) = 0;

  // Shows the menu at the mouse, waits, and calls the handler of the chosen item after the menu is
  // gone. `form` is brought to the front first, so that a click elsewhere closes the menu.
  virtual void PopUp(Form& form, Menu& menu) = 0;

  // Starts a move of the window by the mouse, whose left button is down.
  virtual void StartDrag(Form& form) = 0;

  // The screen without the task bar.
  virtual Rect GetDesktopRectt() = 0;

  // Dots per inch of the screen, 96 for one that shows units as pixels.
  virtual int ScreenDpi() = 0;

  // Handles as numbers; platform::kNoWindow while there is no window.
  virtual platform::WindowId Window(const Form& form) = 0;
  virtual platform::WindowId Window(const Control& control) = 0;

  // The room that `text` takes, wrapped at `width` units (0: not wrapped); lines end at line feeds.
  virtual Size MeasureText(const Form& form, std::string_view text, Font font, int width) = 0;

  // A new tool-tip window, see tool_tip.h.
  virtual std::unique_ptr<ToolTipWindow> MakeToolTip() = 0;

  // The message loop that the timers of forms run in.
  virtual platform::Events& Events() = 0;
};

}  // namespace forms
