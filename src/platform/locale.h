// The user's locale and the code pages.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// The system's numbers of the locale items in use.
inline constexpr std::uint32_t kLocaleDecimalSeparator = 14;
inline constexpr std::uint32_t kLocaleShortDate = 31;
inline constexpr std::uint32_t kLocaleTimeFormat = 4099;

class Locale {
 public:
  virtual ~Locale() = default;

  // One item of the user's locale as ANSI text; "" on failure.
  virtual std::string Item(std::uint32_t item) = 0;

  // The ANSI code page, for instance 1252.
  virtual std::uint32_t AnsiCodePage() = 0;

  // ANSI text into UTF-16 and back. A character that the code page does not have becomes its
  // default character.
  virtual std::u16string ToWide(std::string_view text) = 0;
  virtual std::string FromWide(std::u16string_view text) = 0;

  // The system's own sentence for an error number, without line breaks at its end; "" for a number
  // without one.
  virtual std::string SystemErrorText(std::uint32_t error) = 0;
};

}  // namespace platform
