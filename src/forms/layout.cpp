#include "forms/layout.h"

#include <algorithm>

#include "forms/form.h"

namespace forms {
namespace {

constexpr int kSliderHeight = 28;
constexpr int kListHeight = 160;
constexpr int kCatcherSize = 1;
constexpr int kNaturalFieldWidth = 160;

bool Wraps(const Control& control) {
  return control.Kind() == ControlKind::kLabel || control.Kind() == ControlKind::kCheckBox ||
         control.Kind() == ControlKind::kRadioButton;
}

// Works out sizes and places of one window.
class Arranger {
 public:
  Arranger(Form& form, FormHost& host) : form_(form), host_(host) {}

  // The least width that shows `cell` without breaking a word or a line of its text.
  int NaturalWidth(const Cell& cell) const;
  // The height of `cell` at `width`.
  int HeightAt(const Cell& cell, int width) const;
  void Place(const Cell& cell, const Rect& room) const;

 private:
  static bool TakesRoom(const Cell& cell);
  Size ItemSize(const Control& control, int width) const;
  Size TextSize(const Control& control, int width) const {
    return host_.MeasureText(form_, control.Text(), control.TextFont(), width);
  }
  std::vector<int> LineWidths(const Cell& cell, int width) const;
  void PlaceStack(const Cell& cell, const Rect& room) const;
  void PlaceLine(const Cell& cell, const Rect& room) const;

  Form& form_;
  FormHost& host_;
};

bool Arranger::TakesRoom(const Cell& cell) {
  if (cell.flow == Flow::kSpace) return true;
  if (cell.flow == Flow::kItem) return cell.keeps_room || cell.control->Shown();
  return std::any_of(cell.cells.begin(), cell.cells.end(), [](const Cell& inner) {
    return inner.flow != Flow::kSpace && TakesRoom(inner);
  });
}

// Room of a control at `width`, 0 for as wide as it likes.
Size Arranger::ItemSize(const Control& control, int width) const {
  switch (control.Kind()) {
    case ControlKind::kLabel:
      return TextSize(control, width);
    case ControlKind::kButton: {
      const Size text = TextSize(control, 0);
      return {std::max(theme::kButtonWidth, text.width + 2 * theme::kButtonPadding),
              std::max(theme::kButtonHeight, text.height + 3 * theme::kFieldPadding)};
    }
    case ControlKind::kCheckBox:
    case ControlKind::kRadioButton: {
      const int mark = theme::kMarkSize + theme::kGap;
      const Size text = TextSize(control, width > mark ? width - mark : 0);
      return {text.width + mark, std::max(text.height, theme::kMarkSize)};
    }
    case ControlKind::kPicture:
      return static_cast<const Picture&>(control).PictureSize();
    case ControlKind::kProgressBar:
      return {kNaturalFieldWidth, theme::kBarHeight};
    case ControlKind::kSlider:
      return {kNaturalFieldWidth, kSliderHeight};
    case ControlKind::kListView:
      return {kNaturalFieldWidth, kListHeight};
    case ControlKind::kTextBox:
      if (static_cast<const TextBox&>(control).Style() == TextBoxStyle::kFocusCatcher) {
        return {kCatcherSize, kCatcherSize};
      }
      [[fallthrough]];
    case ControlKind::kComboBox:
    case ControlKind::kDatePicker:
      return {kNaturalFieldWidth,
              std::max(theme::kFieldHeight,
                       host_.MeasureText(form_, "X", control.TextFont(), 0).height +
                           2 * theme::kFieldPadding)};
    case ControlKind::kFrame:
      return {};
  }
  return {};
}

int Arranger::NaturalWidth(const Cell& cell) const {
  int width = 0;
  if (cell.flow == Flow::kItem) {
    width = ItemSize(*cell.control, 0).width;
    if (Wraps(*cell.control)) width = std::min(width, theme::kWidestText);
    // A text that may grow into the room takes what it gets and wraps.
    if (cell.grows && cell.width > 0) width = cell.width;
  }
  bool first = true;
  for (const Cell& inner : cell.cells) {
    if (!TakesRoom(inner)) continue;
    const int inner_width = NaturalWidth(inner);
    if (cell.flow == Flow::kLine) {
      width += inner_width + (first ? 0 : cell.gap);
    } else {
      width = std::max(width, inner_width);
    }
    first = false;
  }
  return std::max(width + 2 * cell.padding, cell.width);
}

std::vector<int> Arranger::LineWidths(const Cell& cell, int width) const {
  std::vector<int> widths;
  int used = 0;
  int growing = 0;
  bool first = true;
  for (const Cell& inner : cell.cells) {
    const bool takes_room = TakesRoom(inner);
    widths.push_back(takes_room ? NaturalWidth(inner) : 0);
    if (!takes_room) continue;
    used += widths.back() + (first ? 0 : cell.gap);
    growing += inner.grows ? 1 : 0;
    first = false;
  }
  const int spare = std::max(0, width - used);
  for (std::size_t index = 0; index < widths.size(); ++index) {
    if (cell.cells[index].grows && TakesRoom(cell.cells[index])) widths[index] += spare / growing;
  }
  return widths;
}

int Arranger::HeightAt(const Cell& cell, int width) const {
  const int inner_width = width - 2 * cell.padding;
  int height = 0;
  if (cell.flow == Flow::kItem) height = ItemSize(*cell.control, inner_width).height;
  if (cell.flow == Flow::kLine) {
    const std::vector<int> widths = LineWidths(cell, inner_width);
    for (std::size_t index = 0; index < widths.size(); ++index) {
      if (TakesRoom(cell.cells[index])) {
        height = std::max(height, HeightAt(cell.cells[index], widths[index]));
      }
    }
  } else {
    bool first = true;
    for (const Cell& inner : cell.cells) {
      if (!TakesRoom(inner)) continue;
      const int inner_height = HeightAt(inner, inner_width);
      if (cell.flow == Flow::kPile) {
        height = std::max(height, inner_height);
      } else {
        height += inner_height + (first ? 0 : cell.gap);
      }
      first = false;
    }
  }
  return std::max(height + 2 * cell.padding, cell.height);
}

void Arranger::PlaceStack(const Cell& cell, const Rect& room) const {
  int top = room.top;
  for (const Cell& inner : cell.cells) {
    if (!TakesRoom(inner)) continue;
    const int height = HeightAt(inner, room.width);
    Place(inner, {room.left, top, room.width, height});
    top += height + cell.gap;
  }
}

void Arranger::PlaceLine(const Cell& cell, const Rect& room) const {
  const std::vector<int> widths = LineWidths(cell, room.width);
  int left = room.left;
  for (std::size_t index = 0; index < widths.size(); ++index) {
    const Cell& inner = cell.cells[index];
    if (!TakesRoom(inner)) continue;
    const int height = HeightAt(inner, widths[index]);
    const int below_top = inner.at_top ? 0 : (room.height - height) / 2;
    Place(inner, {left, room.top + below_top, widths[index], height});
    left += widths[index] + cell.gap;
  }
}

void Arranger::Place(const Cell& cell, const Rect& room) const {
  const Rect inner = {room.left + cell.padding, room.top + cell.padding,
                      room.width - 2 * cell.padding, room.height - 2 * cell.padding};
  switch (cell.flow) {
    case Flow::kItem:
      cell.control->SetBounds(inner);
      break;
    case Flow::kSpace:
      break;
    case Flow::kStack:
      PlaceStack(cell, inner);
      break;
    case Flow::kLine:
      PlaceLine(cell, inner);
      break;
    case Flow::kPile:
      for (const Cell& each : cell.cells) {
        if (TakesRoom(each)) Place(each, inner);
      }
      break;
  }
}

Cell Group(Flow flow, std::vector<Cell> cells, int gap) {
  Cell cell;
  cell.flow = flow;
  cell.cells = std::move(cells);
  cell.gap = gap;
  return cell;
}

template <class Edit>
Cell Edited(Cell cell, Edit edit) {
  edit(cell);
  return cell;
}

}  // namespace

Cell Cell::Grow() const {
  return Edited(*this, [](Cell& cell) { cell.grows = true; });
}
Cell Cell::Width(int units) const {
  return Edited(*this, [units](Cell& cell) { cell.width = units; });
}
Cell Cell::Height(int units) const {
  return Edited(*this, [units](Cell& cell) { cell.height = units; });
}
Cell Cell::Padding(int units) const {
  return Edited(*this, [units](Cell& cell) { cell.padding = units; });
}
Cell Cell::Gap(int units) const {
  return Edited(*this, [units](Cell& cell) { cell.gap = units; });
}
Cell Cell::AtTop() const {
  return Edited(*this, [](Cell& cell) { cell.at_top = true; });
}
Cell Cell::KeepRoom() const {
  return Edited(*this, [](Cell& cell) { cell.keeps_room = true; });
}

Cell Item(Control& control) {
  Cell cell;
  cell.control = &control;
  return cell;
}

Cell Space(int units) {
  Cell cell;
  cell.flow = Flow::kSpace;
  cell.width = units;
  cell.height = units;
  return cell;
}

Cell Stack(std::vector<Cell> cells) {
  return Group(Flow::kStack, std::move(cells), theme::kGap);
}
Cell Line(std::vector<Cell> cells) {
  return Group(Flow::kLine, std::move(cells), theme::kGap);
}
Cell Pile(std::vector<Cell> cells) {
  return Group(Flow::kPile, std::move(cells), 0);
}

Size Arrange(const Cell& root, int width, Form& form, FormHost& host) {
  const Arranger arranger(form, host);
  const int full_width = std::max(width, arranger.NaturalWidth(root));
  const Size size = {full_width, arranger.HeightAt(root, full_width)};
  arranger.Place(root, {0, 0, size.width, size.height});
  return size;
}

}  // namespace forms
