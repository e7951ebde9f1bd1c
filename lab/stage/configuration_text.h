// The Configuration.ini of a staged installation.
#pragma once

#include <string>

namespace lab {

// In the form that the agent reads: sections as they are, key names raised by both shifts of the
// profile, values raised by the shift of this file.
std::string ConfigurationText();

}  // namespace lab
