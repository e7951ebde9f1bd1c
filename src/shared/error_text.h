// Texts for the errors of file statements.
#pragma once

#include <string_view>

namespace shared {

// The text of a run-time file error by its number; "" for any other number.
std::string_view LookupFileErrorText(int number);

}  // namespace shared
