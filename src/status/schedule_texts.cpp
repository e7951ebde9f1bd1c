#include "status/schedule_texts.h"

#include <cstddef>

namespace status {
namespace {

constexpr std::size_t kStartTime = 2;

}  // namespace

std::string_view RecordField(std::string_view line, std::size_t number) {
  for (; number > 0; --number) {
    const std::size_t end = line.find(kFieldSeparator);
    if (end == std::string_view::npos) return {};
    line.remove_prefix(end + kFieldSeparator.size());
  }
  return line.substr(0, line.find(kFieldSeparator));
}

std::string_view StartTimeField(std::string_view line) {
  return RecordField(line, kStartTime);
}

}  // namespace status
