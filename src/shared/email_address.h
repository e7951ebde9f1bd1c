// The check of a mail address as a user types it.
#pragma once

#include <string_view>

namespace shared {

inline constexpr int kValidEmail = 100;
inline constexpr int kInvalidEmail = 1;

// kValidEmail or kInvalidEmail. The rules are few and fixed: what they let through, the relay
// takes.
int IsValidEmailAddress(std::string_view text);

}  // namespace shared
