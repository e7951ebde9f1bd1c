// Private-profile files: text files of `[section]` and `key=value` lines that several programs
// share.
//
// Every call goes to the file: nothing is cached, nothing stays locked. Text is ANSI. A path
// without a folder would mean the Windows folder; a relative path with one starts at the current
// directory. One thread. Not for: files that this program alone owns (see files.h).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

class ProfileFiles {
 public:
  // The buffer of nearly every read of this system: 255 characters and the closing NUL.
  static constexpr std::size_t kBuffer = 256;

  virtual ~ProfileFiles() = default;

  // Returns the value of `key` in the first `section` that matches, both without regard to case,
  // blanks around it removed, one pair of surrounding quotes removed, cut to `buffer` - 1 bytes.
  // Returns "" for a missing file, section or key: callers cannot tell these apart, and do not need
  // to. Blanks at the end of `key` do not count.
  virtual std::string ReadText(std::string_view file, std::string_view section,
                               std::string_view key, std::size_t buffer = kBuffer) = 0;

  // Returns the value as a whole number: leading blanks, a sign and digits up to the first other
  // character; 0 when there is none. Too many digits wrap around as the system's reader wraps them.
  virtual std::int32_t ReadInt(std::string_view file, std::string_view section,
                               std::string_view key) = 0;

  // Sets one key, making file, section and key as needed and leaving every other line as it is. The
  // folder must be there. Returns false, with the file as it was, when it cannot be written.
  virtual bool WriteText(std::string_view file, std::string_view section, std::string_view key,
                         std::string_view value) = 0;
};

}  // namespace platform
