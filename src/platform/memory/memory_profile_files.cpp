#include <algorithm>

#include "platform/memory/memory_files.h"

namespace platform::memory {
namespace {

// A bare file name means the folder of Windows; `place` holds the path then.
std::string_view Place(std::string_view file, std::string& place) {
  if (file.empty() || file.find_first_of("\\:/") != std::string_view::npos) return file;
  place = "C:\\Windows\\" + std::string(file);
  return place;
}

// The base that a prefix asks for; `text` is left behind the prefix.
std::uint32_t TakeBase(std::string_view& text) {
  constexpr struct {
    std::string_view prefix;
    std::uint32_t base;
  } kBases[] = {{"0x", 16}, {"0o", 8}, {"0b", 2}};
  for (const auto& [prefix, base] : kBases) {
    if (!text.starts_with(prefix)) continue;
    text.remove_prefix(prefix.size());
    return base;
  }
  return 10;
}

std::uint32_t DigitOf(char character) {
  if (character >= '0' && character <= '9') return static_cast<std::uint32_t>(character - '0');
  const char small = FoldCharacter(character);
  if (small >= 'a' && small <= 'f') return static_cast<std::uint32_t>(small - 'a') + 10;
  return 16;
}

// What follows blanks, sign, prefix and digits does not count; too many digits wrap around.
std::int32_t NumberOf(std::string_view text) {
  text = TrimProfileBlanks(text);
  bool negative = false;
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  const std::uint32_t base = TakeBase(text);
  std::uint32_t number = 0;
  for (const char character : text) {
    const std::uint32_t digit = DigitOf(character);
    if (digit >= base) break;
    number = number * base + digit;
  }
  return static_cast<std::int32_t>(negative ? 0u - number : number);
}

}  // namespace

bool MemoryProfileFiles::Fails(std::string_view name, std::string_view file,
                               std::string_view section, std::string_view key) {
  if (!world_.gate.on()) return false;
  return world_.gate.Fails(
      name, std::string(file) + " [" + std::string(section) + "] " + std::string(key));
}

std::string_view MemoryProfileFiles::Value(std::string_view file, std::string_view section,
                                           std::string_view key) {
  std::string place;
  DiskNode* node = disk_.FindReadable(Place(file, place));
  if (node == nullptr) return {};
  return StripProfileQuotes(node->index.Value(node->bytes, section, key));
}

std::string MemoryProfileFiles::ReadText(std::string_view file, std::string_view section,
                                         std::string_view key, std::size_t buffer) {
  if (buffer == 0 || Fails("profile_files.ReadText", file, section, key)) return {};
  return std::string(Value(file, section, key).substr(0, buffer - 1));
}

std::int32_t MemoryProfileFiles::ReadInt(std::string_view file, std::string_view section,
                                         std::string_view key) {
  if (Fails("profile_files.ReadInt", file, section, key)) return 0;
  return NumberOf(Value(file, section, key));
}

bool MemoryProfileFiles::WriteText(std::string_view file, std::string_view section,
                                   std::string_view key, std::string_view value) {
  std::string place;
  const std::string_view path = Place(file, place);
  const bool done = !Fails("profile_files.WriteText", file, section, key) && disk_.MayWrite(path);
  if (done) {
    DiskNode* node = disk_.FindFile(path);
    if (node == nullptr) node = &disk_.SetContent(path, {});
    node->index.SetValue(node->bytes, section, key, value);
    disk_.Touch(*node);
  }
  if (world_.journal.kept()) {
    world_.Note("profile", std::string(file) + " [" + std::string(section) + "] " +
                               std::string(key) + "=" + std::string(value) +
                               (done ? "" : " failed"));
  }
  return done;
}

}  // namespace platform::memory
