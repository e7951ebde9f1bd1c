// The user's locale and the ANSI code page of Windows.
#pragma once

#include "platform/locale.h"

namespace platform::win32 {

class Locale final : public platform::Locale {
 public:
  std::string Item(std::uint32_t item) override;
  std::uint32_t AnsiCodePage() override;
  std::u16string ToWide(std::string_view text) override;
  std::string FromWide(std::u16string_view text) override;
  std::string SystemErrorText(std::uint32_t error) override;
};

}  // namespace platform::win32
