// Private-profile text. Input: a line "section|key|value", then the file.
#include <algorithm>

#include "fuzz/check.h"
#include "platform/memory/machine.h"
#include "shared/convert.h"

namespace {

// A name or value that any writer of the installation may use, and that means itself.
bool IsPlain(std::string_view text) {
  const auto plain = [](char character) {
    const unsigned char code = static_cast<unsigned char>(character);
    return code > 32 && std::string_view("[]=;\"'\x7F").find(character) == std::string_view::npos;
  };
  return !text.empty() && text.size() < 200 && std::ranges::all_of(text, plain);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view file = fuzz::Text(data, size);
  std::string_view line = fuzz::Take(file, '\n');
  const std::string_view section = fuzz::Take(line, '|');
  const std::string_view key = fuzz::Take(line, '|');
  const std::string_view value = line;

  platform::memory::Machine machine;
  constexpr std::string_view kPath = "C:\\p.ini";
  machine.files().Put(kPath, file);
  platform::ProfileFiles& profiles = machine.platform().profile_files;
  fuzz::Check(profiles.ReadText(kPath, section, key).size() < platform::ProfileFiles::kBuffer);
  fuzz::Check(profiles.ReadText(kPath, section, key, 2).size() < 2);
  profiles.ReadInt(kPath, section, key);

  const std::string other = profiles.ReadText(kPath, "Tolvex", "Other");
  const bool written = profiles.WriteText(kPath, section, key, value);
  if (!IsPlain(section) || !IsPlain(key) || !IsPlain(value)) return 0;
  fuzz::Check(written);
  fuzz::Check(profiles.ReadText(kPath, section, key) == value);
  const bool same_key =
      shared::EqualsIgnoreCase(section, "Tolvex") && shared::EqualsIgnoreCase(key, "Other");
  fuzz::Check(same_key || profiles.ReadText(kPath, "Tolvex", "Other") == other);
  return 0;
}
