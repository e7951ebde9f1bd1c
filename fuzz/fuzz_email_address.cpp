// The address check, held to a slow second telling of its rules.
#include <algorithm>
#include <string>

#include "fuzz/check.h"
#include "shared/email_address.h"

namespace {

int Slowly(const std::string& text) {
  int result = shared::kInvalidEmail;
  const auto holds = [&](char character) { return text.find(character) != std::string::npos; };
  if (holds('@') && holds('.') && !holds('(') && !holds(',') && text.back() != '.') {
    result = shared::kValidEmail;
  }
  const std::string reversed(text.rbegin(), text.rend());
  if (reversed.find('@') < reversed.find('.')) {
    result = shared::kInvalidEmail;
  } else if (std::ranges::count(text, '@') > 1) {
    result = shared::kInvalidEmail;
  } else if (holds('@') && holds('.')) {
    const auto sign = static_cast<std::ptrdiff_t>(text.find('@'));
    const auto dot = static_cast<std::ptrdiff_t>(text.find('.'));
    if (std::abs(sign - dot) < 2) result = shared::kInvalidEmail;
  }
  if (holds(',')) result = shared::kInvalidEmail;
  return result;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(fuzz::Text(data, size));
  fuzz::Check(shared::IsValidEmailAddress(text) == Slowly(text));
  return 0;
}
