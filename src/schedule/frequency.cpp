#include "schedule/frequency.h"

#include <algorithm>
#include <array>

namespace schedule {
namespace {

struct CodeName {
  std::string_view code;
  std::string_view name;
};

constexpr std::array kNames = {
    CodeName{"1", "Once"},
    CodeName{"2", "Hourly"},
    CodeName{"3", "Daily"},
    CodeName{"4", "Once"},
    CodeName{"5", "Monthly"},
    CodeName{"6", "Week-Day"},
    CodeName{"7", "Weekend (Sat - Sun)"},
    CodeName{"8", "Once"},
};

struct NameIndex {
  std::string_view name;
  int index;
};

constexpr std::array kIndexes = {
    NameIndex{"Once", 1},     NameIndex{"Hourly", 2},  NameIndex{"Daily", 3},
    NameIndex{"Week-Day", 4}, NameIndex{"Monthly", 5}, NameIndex{"Weekdays (Mon - Fri)", 6},
};

}  // namespace

std::string_view GetFreNameFromIndex(std::string_view code) {
  const auto found = std::ranges::find(kNames, code, &CodeName::code);
  return found == kNames.end() ? std::string_view() : found->name;
}

int GetFrequencyIndex(std::string_view name) {
  const auto found = std::ranges::find(kIndexes, name, &NameIndex::name);
  return found == kIndexes.end() ? 0 : found->index;
}

}  // namespace schedule
