// Comparing names as the machine compares them: without regard to case, in code page 1252.
#pragma once

#include <string>
#include <string_view>

namespace platform::memory {

// The small letter of a character of code page 1252; other characters stay.
char FoldCharacter(char character);

// All characters folded.
std::string Fold(std::string_view text);

// Negative, 0 or positive, by the folded characters.
int CompareIgnoreCase(std::string_view left, std::string_view right);

inline bool EqualIgnoreCase(std::string_view left, std::string_view right) {
  return left.size() == right.size() && CompareIgnoreCase(left, right) == 0;
}

// Order of maps whose keys are names.
struct IgnoreCaseLess {
  using is_transparent = void;
  bool operator()(std::string_view left, std::string_view right) const {
    return CompareIgnoreCase(left, right) < 0;
  }
};

// True when `name` matches `pattern` with `*` and `?`. "*.*" matches every name.
bool MatchesPattern(std::string_view name, std::string_view pattern);

// What follows the last backslash; the whole text when there is none.
std::string_view NameOfPath(std::string_view path);

// What stands before the last backslash; empty when there is none.
std::string_view FolderOfPath(std::string_view path);

}  // namespace platform::memory
