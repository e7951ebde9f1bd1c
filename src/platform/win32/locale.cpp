#include "platform/win32/locale.h"

#include <windows.h>

#include <cstddef>

namespace platform::win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t));
static_assert(kLocaleDecimalSeparator == LOCALE_SDECIMAL);
static_assert(kLocaleShortDate == LOCALE_SSHORTDATE);
static_assert(kLocaleTimeFormat == LOCALE_STIMEFORMAT);

std::string Locale::Item(std::uint32_t item) {
  const int size = GetLocaleInfoA(LOCALE_USER_DEFAULT, item, nullptr, 0);
  if (size <= 0) return "";
  std::string text(static_cast<std::size_t>(size), '\0');
  const int copied = GetLocaleInfoA(LOCALE_USER_DEFAULT, item, text.data(), size);
  if (copied <= 0) return "";
  text.resize(static_cast<std::size_t>(copied) - 1);  // without the closing NUL
  return text;
}

std::uint32_t Locale::AnsiCodePage() {
  return GetACP();
}

std::u16string Locale::ToWide(std::string_view text) {
  const int length = static_cast<int>(text.size());
  const int size = MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0);
  std::u16string wide(static_cast<std::size_t>(size), u'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), length, reinterpret_cast<wchar_t*>(wide.data()),
                      size);
  return wide;
}

std::string Locale::FromWide(std::u16string_view text) {
  const auto* wide = reinterpret_cast<const wchar_t*>(text.data());
  const int length = static_cast<int>(text.size());
  const int size =
      WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide, length, nullptr, 0, nullptr, nullptr);
  std::string ansi(static_cast<std::size_t>(size), '\0');
  WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide, length, ansi.data(), size, nullptr,
                      nullptr);
  return ansi;
}

std::string Locale::SystemErrorText(std::uint32_t error) {
  char text[1024];
  const DWORD length = FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                                      nullptr, error, 0, text, sizeof(text), nullptr);
  std::string_view sentence(text, length);
  while (sentence.ends_with('\r') || sentence.ends_with('\n')) sentence.remove_suffix(1);
  return std::string(sentence);
}

}  // namespace platform::win32
