// A window as data. Each window is a class `frm...` that derives from Form and has its controls and
// timers as members; only the host knows how it gets onto the screen.
//
// A form is loaded (its window exists, its timers run) by Load or the first Show, and unloaded by
// Unload or its destructor. The object can be shown again afterwards. One thread.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/controls.h"
#include "forms/form_host.h"
#include "forms/layout.h"
#include "forms/timer.h"

namespace forms {

enum class Placement { kCentreOfOwner, kCentreOfScreen, kLowerRight };
enum class Pointer { kDefault, kBusy };

// What does not change in a form's life.
struct FormDesign {
  std::string_view name;     // class name of the window
  std::string_view caption;  // its text at first
  int width = 0;             // the least
  Placement placement = Placement::kCentreOfOwner;
  bool on_top = false;
  bool quiet = false;   // leaves the keyboard where it is when it is shown
  bool framed = false;  // with the system's frame and title bar
  bool in_task_bar = false;
  bool layered = false;  // its strength (SetAlpha) can be changed
  int corner_radius = 0;
};

class Form {
 public:
  Form(FormHost& host, const FormDesign& design);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const std::string& Name() const { return name_; }
  const FormDesign& Design() const { return design_; }
  FormHost& Host() const { return host_; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

  // How strongly a layered window is seen: 0 not at all, 255 fully.
  int Alpha() const { return alpha_; }
  void SetAlpha(int alpha);

  Pointer MousePointer() const { return pointer_; }
  void SetMousePointer(Pointer pointer);

  // A disabled window takes no mouse and no keys.
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  // Makes the window, hidden, and calls on_load. Nothing when it is loaded.
  void Load();
  // Calls on_unload, stops the timers and takes the window away. Nothing when it is not loaded.
  void Unload();
  bool Loaded() const { return loaded_; }

  // Loads the form when needed and shows it.
  void Show();
  void BringToFront();
  // Loads, shows over `owner` (null: none) and waits until the form is hidden or unloaded.
  void ShowModal(Form* owner);
  void Hide();
  void Minimise();
  WindowState State() const { return state_; }
  bool Visible() const {
    return loaded_ && (state_ == WindowState::kShown || state_ == WindowState::kInFront);
  }
  Form* Owner() const { return owner_; }

  // The window's handle as a number; platform::kNoWindow while it is not loaded.
  platform::WindowId Window() const;

  // Shows a menu at the mouse, and waits for the chosen item's handler.
  void PopUp(Menu& menu) { host_.PopUp(*this, menu); }

  const std::vector<Control*>& Controls() const { return controls_; }
  const std::vector<Timer*>& Timers() const { return timers_; }
  // The control with this name or number, null when there is none.
  Control* Find(std::string_view name) const;
  Control* Find(int id) const;

  // Where the controls go. Without one they stay where their bounds say.
  void SetLayout(Cell layout);
  // Places the controls by the layout and returns the size of the window's inside.
  Size Arrange();
  bool NeedsArranging() const { return needs_arranging_; }

  // What a key does in this window, the keyboard being on `focused` (may be null), in this order:
  // the control's on_key; the form's on_key; Enter or Space on a button or link clicks it; Enter
  // the default button; Escape the cancel button; Tab and, on buttons and choices, the arrows move
  // on. True when it was used up.
  bool PressKey(Control* focused, Key key);

  // The control that Tab goes to from `from` (null: the first), null when there is none.
  Control* NextStop(const Control* from, bool backwards) const;

  // Where the keyboard is when the window comes up: where SetFocus put it before, else the first
  // stop.
  Control* FirstStop() const;
  void SetFirstStop(Control* control) { first_stop_ = control; }

  // How often a property of the form or of a control really changed.
  int Changes() const { return changes_; }

  std::function<void()> on_load;
  std::function<void()> on_unload;
  // The user closes the window by the system's means (the frame's cross); absent: Unload.
  std::function<void()> on_close;
  std::function<void()> on_arranged;  // the controls have new places
  std::function<bool(Key)> on_key;    // true when the key is used up
  std::function<void(Point)> on_mouse_move;

  // Sees every message to the window before the window does. An answer ends the message's way.
  std::function<std::optional<std::intptr_t>(std::uint32_t message, std::uintptr_t wparam,
                                             std::intptr_t lparam)>
      on_message;

  // For members as they are made, and for their changes.
  void Adopt(Control& control) { controls_.push_back(&control); }
  void Adopt(Timer& timer);
  void NoteChange(const Control* control, Property property);
  // For the host: the window ended its modal life or was hidden by the user.
  void CloseByUser();

 private:
  void SetState(WindowState state);
  bool ClickByKey(Control* focused, Key key);
  bool MoveByKey(Control* focused, Key key);

  FormHost& host_;
  const FormDesign design_;
  const std::string name_;
  std::string caption_;
  int alpha_ = 255;
  Pointer pointer_ = Pointer::kDefault;
  bool enabled_ = true;
  bool loaded_ = false;
  WindowState state_ = WindowState::kHidden;
  Form* owner_ = nullptr;
  std::vector<Control*> controls_;
  std::vector<Timer*> timers_;
  std::optional<Cell> layout_;
  bool needs_arranging_ = true;
  Control* first_stop_ = nullptr;
  int changes_ = 0;
};

}  // namespace forms
