// Texts that people have looked at, kept as files. A test program run with SORVANE_UPDATE_GOLDEN
// set writes them anew, for a person to look at the difference.
#pragma once

#include <string>
#include <string_view>

namespace forms::testing {

// The kept text of this name, "" when there is none; with the variable set, `text` itself, after it
// has been kept.
std::string Golden(std::string_view name, const std::string& text);

}  // namespace forms::testing
