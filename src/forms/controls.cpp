#include "forms/controls.h"

#include <algorithm>

#include "forms/form.h"

namespace forms {
namespace {

struct LabelLook {
  Font font;
  Colour colour;
};

// By LabelStyle.
constexpr LabelLook kLabelLooks[] = {
    {theme::kBodyFont, theme::kText},   {theme::kTitleFont, theme::kText},
    {theme::kStrongFont, theme::kText}, {theme::kBodyFont, theme::kMutedText},
    {theme::kLinkFont, theme::kAccent},
};

template <class List>
int PlaceOrNone(int place, const List& list) {
  return place >= 0 && place < static_cast<int>(list.size()) ? place : -1;
}

}  // namespace

Label::Label(Form& form, std::string_view name, std::string_view text, LabelStyle style)
    : Control(form, ControlKind::kLabel, name, text), style_(style) {
  const LabelLook& look = kLabelLooks[static_cast<int>(style)];
  SetFont(look.font);
  SetTextColour(look.colour);
  SetTabStop(style == LabelStyle::kLink);
}

Button::Button(Form& form, std::string_view name, std::string_view text, ButtonRole role)
    : Control(form, ControlKind::kButton, name, text),
      role_(role),
      highlighted_(role == ButtonRole::kDefault) {
  SetTabStop(true);
}

TextBox::TextBox(Form& form, std::string_view name, std::string_view text, TextBoxStyle style)
    : Control(form, ControlKind::kTextBox, name, text), style_(style) {
  SetTabStop(style != TextBoxStyle::kReadOnly);
}

void TextBox::Type(std::string_view text) {
  if (Text() == text) return;
  SetText(text);
  if (on_change) on_change();
}

Picture::Picture(Form& form, std::string_view name, std::string_view key, Size size)
    : Control(form, ControlKind::kPicture, name, key), size_(size) {}

ProgressBar::ProgressBar(Form& form, std::string_view name)
    : Control(form, ControlKind::kProgressBar, name, {}) {}

void ProgressBar::SetValue(int value) {
  Change(value_, std::clamp(value, 0, maximum_), Property::kValue);
}

void ProgressBar::SetMaximum(int maximum) {
  Change(maximum_, std::max(maximum, 1), Property::kValue);
  SetValue(value_);
}

Slider::Slider(Form& form, std::string_view name) : Control(form, ControlKind::kSlider, name, {}) {
  SetTabStop(true);
}

void Slider::SetValue(int value) {
  Change(value_, std::clamp(value, 0, 100), Property::kValue);
}

void Slider::Move(int value) {
  const int before = value_;
  SetValue(value);
  if (value_ != before && on_change) on_change();
}

CheckBox::CheckBox(Form& form, std::string_view name, std::string_view text)
    : Control(form, ControlKind::kCheckBox, name, text) {
  SetTabStop(true);
}

RadioButton::RadioButton(Form& form, std::string_view name, std::string_view text, int group)
    : Control(form, ControlKind::kRadioButton, name, text), group_(group) {
  SetTabStop(true);
}

void RadioButton::SetChecked(bool checked) {
  if (checked) {
    for (Control* control : Owner().Controls()) {
      if (control == this || control->Kind() != ControlKind::kRadioButton) continue;
      auto& other = static_cast<RadioButton&>(*control);
      if (other.group_ == group_) other.SetChecked(false);
    }
  }
  Change(checked_, checked, Property::kValue);
}

ComboBox::ComboBox(Form& form, std::string_view name, bool editable)
    : Control(form, ControlKind::kComboBox, name, {}), editable_(editable) {
  SetTabStop(true);
}

void ComboBox::SetItems(std::vector<std::string> items) {
  if (items_ == items) return;
  items_ = std::move(items);
  NoteChange(Property::kItems);
  if (PlaceOrNone(selected_, items_) != selected_) Select(-1);
}

void ComboBox::Select(int index) {
  const int place = PlaceOrNone(index, items_);
  Change(selected_, place, Property::kValue);
  if (place >= 0) {
    SetText(items_[static_cast<std::size_t>(place)]);
  } else if (!editable_) {
    SetText({});
  }
}

void ComboBox::Choose(int index) {
  if (PlaceOrNone(index, items_) == selected_) return;
  Select(index);
  if (on_change) on_change();
}

void ComboBox::Type(std::string_view text) {
  if (!editable_ || Text() == text) return;
  SetText(text);
  const auto found = std::find(items_.begin(), items_.end(), text);
  Change(selected_, found == items_.end() ? -1 : static_cast<int>(found - items_.begin()),
         Property::kValue);
  if (on_change) on_change();
}

ListView::ListView(Form& form, std::string_view name)
    : Control(form, ControlKind::kListView, name, {}) {
  SetTabStop(true);
}

void ListView::SetColumns(std::vector<Column> columns) {
  Change(columns_, std::move(columns), Property::kItems);
}

void ListView::SetRows(std::vector<Row> rows) {
  if (rows_ == rows) return;
  rows_ = std::move(rows);
  NoteChange(Property::kItems);
  Select(selected_);
}

const std::string& ListView::Cell(int row, int column) const {
  static const std::string kNone;
  if (PlaceOrNone(row, rows_) < 0) return kNone;
  const std::vector<std::string>& cells = rows_[static_cast<std::size_t>(row)].cells;
  return PlaceOrNone(column, cells) < 0 ? kNone : cells[static_cast<std::size_t>(column)];
}

void ListView::Select(int row) {
  Change(selected_, PlaceOrNone(row, rows_), Property::kValue);
}

void ListView::Choose(int row) {
  if (PlaceOrNone(row, rows_) == selected_) return;
  Select(row);
  if (on_change) on_change();
}

DatePicker::DatePicker(Form& form, std::string_view name, DatePickerStyle style)
    : Control(form, ControlKind::kDatePicker, name, {}), style_(style) {
  SetTabStop(true);
}

void DatePicker::Choose(const platform::LocalTime& value) {
  if (value_ == value) return;
  SetValue(value);
  if (on_change) on_change();
}

void Frame::Hold(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->SetContainer(*this);
}

}  // namespace forms
