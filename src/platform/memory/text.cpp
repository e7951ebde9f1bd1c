#include "platform/memory/text.h"

#include <algorithm>
#include <array>

namespace platform::memory {
namespace {

constexpr std::array<char, 256> MakeFoldTable() {
  std::array<char, 256> table{};
  for (int code = 0; code < 256; ++code) {
    int folded = code;
    const bool ascii = code >= 'A' && code <= 'Z';
    const bool latin = code >= 0xC0 && code <= 0xDE && code != 0xD7;
    if (ascii || latin) folded = code + 0x20;
    if (code == 0x8A || code == 0x8C || code == 0x8E) folded = code + 0x10;
    if (code == 0x9F) folded = 0xFF;
    table[static_cast<std::size_t>(code)] = static_cast<char>(folded);
  }
  return table;
}

constexpr std::array<char, 256> kFolded = MakeFoldTable();

}  // namespace

char FoldCharacter(char character) {
  return kFolded[static_cast<unsigned char>(character)];
}

std::string Fold(std::string_view text) {
  std::string folded(text);
  for (char& character : folded) character = FoldCharacter(character);
  return folded;
}

int CompareIgnoreCase(std::string_view left, std::string_view right) {
  const std::size_t shared = std::min(left.size(), right.size());
  for (std::size_t i = 0; i < shared; ++i) {
    const auto a = static_cast<unsigned char>(FoldCharacter(left[i]));
    const auto b = static_cast<unsigned char>(FoldCharacter(right[i]));
    if (a != b) return a < b ? -1 : 1;
  }
  if (left.size() == right.size()) return 0;
  return left.size() < right.size() ? -1 : 1;
}

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") return true;
  std::size_t at = 0;
  std::size_t in_pattern = 0;
  std::size_t star = std::string_view::npos;
  std::size_t after_star = 0;
  while (at < name.size()) {
    if (in_pattern < pattern.size() && pattern[in_pattern] == '*') {
      star = in_pattern++;
      after_star = at;
    } else if (in_pattern < pattern.size() &&
               (pattern[in_pattern] == '?' ||
                FoldCharacter(pattern[in_pattern]) == FoldCharacter(name[at]))) {
      ++in_pattern;
      ++at;
    } else if (star != std::string_view::npos) {
      in_pattern = star + 1;
      at = ++after_star;
    } else {
      return false;
    }
  }
  while (in_pattern < pattern.size() && pattern[in_pattern] == '*') ++in_pattern;
  return in_pattern == pattern.size();
}

std::string_view NameOfPath(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

std::string_view FolderOfPath(std::string_view path) {
  const std::size_t slash = path.rfind('\\');
  return slash == std::string_view::npos ? std::string_view{} : path.substr(0, slash);
}

}  // namespace platform::memory
