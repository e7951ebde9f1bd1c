// How much room a text takes on the screen in memory: every character of a font is equally wide.
#pragma once

#include <string_view>

#include "forms/geometry.h"
#include "forms/theme.h"

namespace forms::memory {

// Wrapped between words at `width` units (0: not wrapped); lines end at line feeds. A word that is
// wider than that is broken.
Size MeasureText(std::string_view text, Font font, int width);

}  // namespace forms::memory
