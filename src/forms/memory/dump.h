// A form as text: one line for the window, one for each control and timer. For golden files.
#pragma once

#include <string>

#include "forms/form.h"
#include "forms/menu.h"

namespace forms::memory {

// Arranges the form first. Lines end with a line feed; line ends inside a text are written \n.
std::string Dump(Form& form);

// The visible items of a menu, one a line.
std::string Dump(const Menu& menu);

// `text` in quotes, line ends written \n.
std::string Quoted(std::string_view text);

}  // namespace forms::memory
