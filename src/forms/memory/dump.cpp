#include "forms/memory/dump.h"

namespace forms::memory {
namespace {

// By ControlKind.
constexpr std::string_view kKindNames[] = {
    "Label",    "Button",      "TextBox",  "Picture",  "ProgressBar", "Slider",
    "CheckBox", "RadioButton", "ComboBox", "ListView", "DatePicker",  "Frame",
};

std::string Text(const Rect& place) {
  return std::to_string(place.left) + "," + std::to_string(place.top) + " " +
         std::to_string(place.width) + "x" + std::to_string(place.height);
}

std::string Mark(bool set, std::string_view word) {
  return set ? " " + std::string(word) : std::string();
}

std::string RoleText(const Button& button) {
  return Mark(button.Role() == ButtonRole::kDefault, "default") +
         Mark(button.Role() == ButtonRole::kCancel, "cancel") +
         Mark(button.Highlighted(), "highlighted");
}

std::string DateText(const platform::LocalTime& time) {
  return " " + std::to_string(time.year) + "-" + std::to_string(time.month) + "-" +
         std::to_string(time.day) + " " + std::to_string(time.hour) + ":" +
         std::to_string(time.minute) + ":" + std::to_string(time.second);
}

std::string ItemsText(const ListView& list) {
  std::string text;
  for (const Row& row : list.Rows()) {
    text += "\n    row" + Mark(!row.picture.empty(), row.picture);
    for (const std::string& cell : row.cells) text += " " + Quoted(cell);
  }
  return text;
}

// What is particular to the kind.
std::string ValueText(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::kButton:
      return RoleText(static_cast<const Button&>(control));
    case ControlKind::kProgressBar: {
      const auto& bar = static_cast<const ProgressBar&>(control);
      return " " + std::to_string(bar.Value()) + "/" + std::to_string(bar.Maximum());
    }
    case ControlKind::kSlider:
      return " " + std::to_string(static_cast<const Slider&>(control).Value());
    case ControlKind::kCheckBox:
      return Mark(static_cast<const CheckBox&>(control).Checked(), "checked");
    case ControlKind::kRadioButton:
      return Mark(static_cast<const RadioButton&>(control).Checked(), "checked");
    case ControlKind::kComboBox:
      return " of " + std::to_string(static_cast<const ComboBox&>(control).Items().size());
    case ControlKind::kListView:
      return ItemsText(static_cast<const ListView&>(control));
    case ControlKind::kDatePicker:
      return DateText(static_cast<const DatePicker&>(control).Value());
    case ControlKind::kLabel:
    case ControlKind::kTextBox:
    case ControlKind::kPicture:
    case ControlKind::kFrame:
      return {};
  }
  return {};
}

std::string Line(const Control& control) {
  return "  " + std::string(kKindNames[static_cast<int>(control.Kind())]) + " " + control.Name() +
         " " + Quoted(control.Text()) + " [" + Text(control.Bounds()) + "]" +
         Mark(!control.Visible(), "hidden") + Mark(!control.Enabled(), "disabled") +
         Mark(control.TabStop(), "stop") + ValueText(control) + "\n";
}

}  // namespace

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char character : text) {
    if (character == '\r') continue;
    quoted += character == '\n' ? std::string("\\n") : std::string(1, character);
  }
  return quoted + "\"";
}

std::string Dump(Form& form) {
  const Size size = form.Arrange();
  std::string text = form.Name() + " " + Quoted(form.Caption()) + " " + std::to_string(size.width) +
                     "x" + std::to_string(size.height) + Mark(form.Design().on_top, "on top") +
                     Mark(!form.Visible(), "hidden") + "\n";
  for (const Control* control : form.Controls()) text += Line(*control);
  for (const Timer* timer : form.Timers()) {
    text += "  Timer " + timer->Name() + " " + std::to_string(timer->Interval()) + " ms" +
            (timer->Enabled() ? " on" : " off") + "\n";
  }
  return text;
}

std::string Dump(const Menu& menu) {
  std::string text;
  for (const MenuItem& item : menu.Items()) {
    if (!item.Visible()) continue;
    text += (item.Separator() ? "-" : item.Name() + " " + Quoted(item.Caption())) +
            Mark(item.Checked(), "checked") + Mark(!item.Enabled(), "disabled") +
            Mark(menu.Default() == &item, "default") + "\n";
  }
  return text;
}

}  // namespace forms::memory
