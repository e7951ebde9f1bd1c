#include "shared/text_file.h"

namespace shared {

std::string_view TakeLine(std::string_view& rest) {
  const std::size_t end = rest.find_first_of("\r\n");
  const std::string_view line = rest.substr(0, end);
  if (end == std::string_view::npos) {
    rest = {};
    return line;
  }
  const bool pair = rest.substr(end).starts_with("\r\n");
  rest.remove_prefix(end + (pair ? 2 : 1));
  return line;
}

std::optional<std::string_view> FindLine(std::string_view text, std::size_t number) {
  for (std::size_t passed = 0; passed < number && !text.empty(); ++passed) TakeLine(text);
  if (text.empty()) return std::nullopt;
  return TakeLine(text);
}

std::string_view LineOf(std::string_view text, std::size_t number) {
  return FindLine(text, number).value_or(std::string_view());
}

std::string ReadFirstLine(platform::Files& files, std::string_view path) {
  return ReadLine(files, path, 0);
}

std::string ReadLine(platform::Files& files, std::string_view path, std::size_t number) {
  const auto text = files.Read(path, kTextFileLimit);
  return text ? std::string(LineOf(*text, number)) : std::string();
}

bool WriteOneLine(platform::Files& files, std::string_view path, std::string_view line) {
  return files.Replace(path, std::string(line) + "\r\n");
}

}  // namespace shared
