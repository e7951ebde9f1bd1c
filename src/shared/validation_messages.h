// What the windows say when an entry is missing or wrong.
#pragma once

#include <optional>
#include <string>

#include "shared/messages.h"
#include "shared/texts.h"

namespace shared {

// The localised text of a validation message; nothing for a code without one.
std::optional<std::string> ValidationText(Texts& texts, int code);

// Shows that text in the question box with its first button, "OK"; a code without a text shows
// nothing. The box lies over the window that is in front.
void ShowValidationMessage(Messages& messages, Texts& texts, int code);

}  // namespace shared
