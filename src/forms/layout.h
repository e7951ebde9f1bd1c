// Where the controls of a window go: a tree of columns and rows, worked out from the room that each
// control's text takes, so that no text is ever cut whatever its length, language or screen.
//
//   SetLayout(Stack({Line({Item(Image4), Item(Label1).Grow()}),
//                    Line({Space().Grow(), Item(Continue), Item(IDCancel)})}));
#pragma once

#include <vector>

#include "forms/geometry.h"

namespace forms {

class Control;
class Form;
class FormHost;

enum class Flow { kItem, kSpace, kStack, kLine, kPile };

struct Cell {
  Flow flow = Flow::kItem;
  Control* control = nullptr;
  std::vector<Cell> cells;
  int gap = 0;      // between cells
  int padding = 0;  // around
  int width = 0;    // the least
  int height = 0;   // the least
  bool grows = false;
  bool keeps_room = false;
  bool at_top = false;

  // Takes the room that is left over in its row, or in a column its height.
  Cell Grow() const;
  // At least this wide or high.
  Cell Width(int units) const;
  Cell Height(int units) const;
  Cell Padding(int units) const;
  Cell Gap(int units) const;
  // Stands at the top of its line, not on the middle line of its neighbours.
  Cell AtTop() const;
  // Keeps its place while the control is hidden; otherwise the others close up.
  Cell KeepRoom() const;
};

Cell Item(Control& control);
Cell Space(int units = 0);
// Below each other, and side by side, a gap of the theme between them.
Cell Stack(std::vector<Cell> cells);
Cell Line(std::vector<Cell> cells);
// On top of each other, all in the same place.
Cell Pile(std::vector<Cell> cells);

// Gives each control in `root` its bounds and returns the size of all, at least `width` wide.
Size Arrange(const Cell& root, int width, Form& form, FormHost& host);

}  // namespace forms
