#include "schedule/text_pieces.h"

namespace schedule {

std::string_view Mid(std::string_view text, std::size_t place, std::size_t length) {
  return place > text.size() ? std::string_view() : text.substr(place - 1, length);
}

std::string_view Right(std::string_view text, std::size_t length) {
  return length >= text.size() ? text : text.substr(text.size() - length);
}

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> parts;
  if (!separator.empty()) {
    for (std::size_t end = text.find(separator); end != std::string_view::npos;
         end = text.find(separator)) {
      parts.push_back(text.substr(0, end));
      text.remove_prefix(end + separator.size());
    }
  }
  parts.push_back(text);
  return parts;
}

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

bool IsLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

}  // namespace schedule
