// The kinds of controls.
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "platform/local_time.h"

namespace forms {

enum class LabelStyle { kBody, kTitle, kStrong, kMuted, kLink };

// Text that is read. It wraps at the width that the layout gives and is never cut.
class Label : public Control {
 public:
  Label(Form& form, std::string_view name, std::string_view text,
        LabelStyle style = LabelStyle::kBody);

  LabelStyle Style() const { return style_; }

  // A left press starts a move of the whole window.
  bool DragsWindow() const { return drags_window_; }
  void SetDragsWindow(bool drags) { drags_window_ = drags; }

 private:
  const LabelStyle style_;
  bool drags_window_ = false;
};

enum class ButtonRole { kPlain, kDefault, kCancel };

// kDefault is clicked by Enter, kCancel by Escape, wherever the keyboard is in the window.
class Button : public Control {
 public:
  Button(Form& form, std::string_view name, std::string_view text,
         ButtonRole role = ButtonRole::kPlain);

  ButtonRole Role() const { return role_; }

  // Drawn as the one that Enter presses.
  bool Highlighted() const { return highlighted_; }
  void SetHighlighted(bool highlighted) { Change(highlighted_, highlighted, Property::kLook); }

 private:
  const ButtonRole role_;
  bool highlighted_ = false;
};

enum class TextBoxStyle { kOneLine, kSeveralLines, kReadOnly, kFocusCatcher };

// kReadOnly shows several lines that can be marked and copied. kFocusCatcher is not seen: it takes
// the keyboard and so catches keys for something else; its caret is hidden.
class TextBox : public Control {
 public:
  TextBox(Form& form, std::string_view name, std::string_view text = {},
          TextBoxStyle style = TextBoxStyle::kOneLine);

  TextBoxStyle Style() const { return style_; }

  // Takes over what the user typed, and tells on_change.
  void Type(std::string_view text);

 private:
  const TextBoxStyle style_;
};

// A picture by its key: the name of a picture of the program ("warn", "close"), or the path of an
// icon file. An unknown key leaves the place empty. The child window's text is the key.
class Picture : public Control {
 public:
  Picture(Form& form, std::string_view name, std::string_view key, Size size);

  const std::string& PictureKey() const { return Text(); }
  void SetPicture(std::string_view key) { SetText(key); }

  Size PictureSize() const { return size_; }

 private:
  const Size size_;
};

class ProgressBar : public Control {
 public:
  ProgressBar(Form& form, std::string_view name);

  // Between 0 and Maximum; what lies outside is moved to the nearer end.
  int Value() const { return value_; }
  void SetValue(int value);
  int Maximum() const { return maximum_; }
  void SetMaximum(int maximum);
  Colour BarColour() const { return colour_; }
  void SetBarColour(Colour colour) { Change(colour_, colour, Property::kLook); }

 private:
  int value_ = 0;
  int maximum_ = 100;
  Colour colour_ = theme::kAccent;
};

// A value from 0 to 100, by mouse and keyboard.
class Slider : public Control {
 public:
  Slider(Form& form, std::string_view name);

  int Value() const { return value_; }
  void SetValue(int value);

  // Takes over where the user moved it, and tells on_change.
  void Move(int value);

 private:
  int value_ = 0;
};

class CheckBox : public Control {
 public:
  CheckBox(Form& form, std::string_view name, std::string_view text);

  bool Checked() const { return checked_; }
  void SetChecked(bool checked) { Change(checked_, checked, Property::kValue); }

 protected:
  void Clicked() override { SetChecked(!checked_); }

 private:
  bool checked_ = false;
};

// One of several choices: those of one form with the same group number.
class RadioButton : public Control {
 public:
  RadioButton(Form& form, std::string_view name, std::string_view text, int group = 0);

  int Group() const { return group_; }
  bool Checked() const { return checked_; }

  // Choosing one takes the choice from the others of its group.
  void SetChecked(bool checked);

 protected:
  void Clicked() override { SetChecked(true); }

 private:
  const int group_;
  bool checked_ = false;
};

// A list to choose from; with `editable` also a text to type. Text() is the choice or what was
// typed.
class ComboBox : public Control {
 public:
  ComboBox(Form& form, std::string_view name, bool editable = false);

  bool Editable() const { return editable_; }
  const std::vector<std::string>& Items() const { return items_; }
  void SetItems(std::vector<std::string> items);

  // The place of the chosen item, -1 for none. A place outside means none.
  int Selected() const { return selected_; }
  void Select(int index);

  // Take over what the user chose or typed, and tell on_change.
  void Choose(int index);
  void Type(std::string_view text);

 private:
  const bool editable_;
  std::vector<std::string> items_;
  int selected_ = -1;
};

struct Column {
  std::string header;
  int width = 100;  // 0 hides the column
  friend bool operator==(const Column&, const Column&) = default;
};

struct Row {
  std::vector<std::string> cells;
  std::string picture;  // key of a picture before the first cell; empty for none
  friend bool operator==(const Row&, const Row&) = default;
};

class ListView : public Control {
 public:
  ListView(Form& form, std::string_view name);

  const std::vector<Column>& Columns() const { return columns_; }
  void SetColumns(std::vector<Column> columns);
  const std::vector<Row>& Rows() const { return rows_; }
  void SetRows(std::vector<Row> rows);

  // Text of one cell, "" outside.
  const std::string& Cell(int row, int column) const;

  // The place of the selected row, -1 for none. A place outside means none.
  int Selected() const { return selected_; }
  void Select(int row);

  // Takes over what the user selected, and tells on_change.
  void Choose(int row);

 private:
  std::vector<Column> columns_;
  std::vector<Row> rows_;
  int selected_ = -1;
};

enum class DatePickerStyle { kDate, kTime };

class DatePicker : public Control {
 public:
  DatePicker(Form& form, std::string_view name, DatePickerStyle style);

  DatePickerStyle Style() const { return style_; }
  const platform::LocalTime& Value() const { return value_; }
  void SetValue(const platform::LocalTime& value) { Change(value_, value, Property::kValue); }

  // Takes over what the user chose, and tells on_change.
  void Choose(const platform::LocalTime& value);

 private:
  const DatePickerStyle style_;
  platform::LocalTime value_;
};

// A group of controls that are shown and hidden together, on a plain ground of its own when it has
// a fill. It lies under all other controls.
class Frame : public Control {
 public:
  Frame(Form& form, std::string_view name, std::optional<Colour> fill = {})
      : Control(form, ControlKind::kFrame, name, {}), fill_(fill) {}

  // Becomes the container of all of these.
  void Hold(std::initializer_list<Control*> controls);

  // Absent: the ground of what it is in.
  std::optional<Colour> Fill() const { return fill_; }

 private:
  const std::optional<Colour> fill_;
};

}  // namespace forms
