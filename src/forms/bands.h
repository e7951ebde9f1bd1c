// The parts that all windows without a system frame share: a title at the top, buttons at the
// bottom.
#pragma once

#include <vector>

#include "forms/controls.h"
#include "forms/layout.h"

namespace forms {

// A title with a picture in the corner that closes the window; the title drags the window.
Cell TitleBand(Frame& ground, Label& title, Picture& close);

// The window's content between the bands.
Cell BodyBand(std::vector<Cell> cells);

// Buttons at the right end. Each cell is a button or what stands for one.
Cell ButtonBand(Frame& ground, std::vector<Cell> buttons);

// Title, body and buttons below each other, with nothing between them.
Cell Bands(std::vector<Cell> bands);

// Puts `link` into the sentence of `text`, right behind `lead`, its beginning up to the blank, and
// over what follows it. For captions that leave the place of a link open. REQUIRES: both are
// arranged; `link` lies over `text`.
void PlaceLinkInText(Label& link, const Label& text, std::string_view lead);

}  // namespace forms
