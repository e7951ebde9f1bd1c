// Pieces of texts by place, as date texts of this system are taken apart. Places count from 1.
#pragma once

#include <string_view>
#include <vector>

namespace schedule {

// `length` characters from `place` on; fewer or none when the text ends before.
std::string_view Mid(std::string_view text, std::size_t place, std::size_t length);

// The last `length` characters, all of a shorter text.
std::string_view Right(std::string_view text, std::size_t length);

// The texts between the separators: one more than there are separators. An empty separator splits
// nothing.
std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

bool IsDigit(char character);
bool IsLetter(char character);

}  // namespace schedule
