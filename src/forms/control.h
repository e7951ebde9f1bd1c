// What every control of a window has. A control is a member of its form:
//
//   class frmExample : public forms::Form {
//     forms::Label lblName{*this, "lblName", "Account Name:"};
//
// Setting a property to the value that it has does nothing; any other value is counted and, when
// the window exists, shown. One thread.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "forms/geometry.h"
#include "forms/theme.h"
#include "platform/other_windows.h"

namespace forms {

class Form;
class Frame;

enum class ControlKind {
  kLabel,
  kButton,
  kTextBox,
  kPicture,
  kProgressBar,
  kSlider,
  kCheckBox,
  kRadioButton,
  kComboBox,
  kListView,
  kDatePicker,
  kFrame,
};

// What changed of a control, for the host that shows it.
enum class Property { kText, kVisible, kEnabled, kBounds, kLook, kValue, kItems };

enum class Key { kEnter, kSpace, kEscape, kTab, kBackTab, kLeft, kRight, kUp, kDown, kOther };

// The number of the child window of the control with this name: the same in every run and build, so
// that a program outside can find the control. Two names of one form that meet are our bug.
int ControlId(std::string_view name);

class Control {
 public:
  Control(Form& form, ControlKind kind, std::string_view name, std::string_view text);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  ControlKind Kind() const { return kind_; }
  int Id() const { return id_; }
  Form& Owner() const { return form_; }

  // The caption, or the content of a control that is edited. It is the text of the child window.
  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);

  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { Change(visible_, visible, Property::kVisible); }

  // Visible, and in no frame that is hidden.
  bool Shown() const;

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { Change(enabled_, enabled, Property::kEnabled); }

  // The place in the window. A form with a layout sets it for the controls that are in the layout.
  const Rect& Bounds() const { return bounds_; }
  void SetBounds(const Rect& bounds) { Change(bounds_, bounds, Property::kBounds); }

  Colour TextColour() const { return text_colour_; }
  void SetTextColour(Colour colour) { Change(text_colour_, colour, Property::kLook); }

  Font TextFont() const { return font_; }
  void SetFont(Font font) { Change(font_, font, Property::kLook); }
  void SetFontPoints(int points) { SetFont({points, font_.bold, font_.underline}); }

  // Whether the Tab key stops here.
  bool TabStop() const { return tab_stop_; }
  void SetTabStop(bool stop) { Change(tab_stop_, stop, Property::kLook); }

  // The frame that the control is in, hidden together with it; null for none.
  Frame* Container() const { return container_; }
  void SetContainer(Frame& frame) { container_ = &frame; }

  void SetFocus();
  bool HasFocus() const;

  // The child window's handle as a number; platform::kNoWindow while there is none.
  platform::WindowId Window() const;

  // Does what a user's click does; nothing while the control cannot be clicked.
  void Click();
  void DoubleClick();

  // How often a property really changed.
  int Changes() const { return changes_; }

  std::function<void()> on_click;
  std::function<void()> on_double_click;
  std::function<void()> on_change;           // the user changed the content or value
  std::function<void()> on_focus;            // the keyboard came here
  std::function<void()> on_blur;             // the keyboard went elsewhere
  std::function<void(Point)> on_mouse_move;  // places are units within the control
  std::function<void(Point)> on_mouse_down;  // left button
  std::function<void(Point)> on_mouse_up;
  std::function<void()> on_mouse_leave;
  std::function<bool(Key)> on_key;  // true when the key is used up

 protected:
  // The control's own part of a click, before on_click.
  virtual void Clicked() {}

  template <class T>
  void Change(T& field, T value, Property property) {
    if (field == value) return;
    field = std::move(value);
    NoteChange(property);
  }
  void NoteChange(Property property);

 private:
  Form& form_;
  const ControlKind kind_;
  const std::string name_;
  const int id_;
  std::string text_;
  bool visible_ = true;
  bool enabled_ = true;
  bool tab_stop_ = false;
  Rect bounds_;
  Colour text_colour_ = theme::kText;
  Font font_ = theme::kBodyFont;
  Frame* container_ = nullptr;
  int changes_ = 0;
};

}  // namespace forms
