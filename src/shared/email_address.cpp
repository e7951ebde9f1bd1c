#include "shared/email_address.h"

namespace shared {
namespace {

bool Holds(std::string_view text, char character) {
  return text.find(character) != std::string_view::npos;
}

// Whether text has the marks of an address at all. ")" is let through, "(" is not.
bool LooksLikeAddress(std::string_view text) {
  return Holds(text, '@') && Holds(text, '.') && !Holds(text, '(') && !Holds(text, ',') &&
         !text.ends_with('.');
}

bool SignAndDotAreApart(std::string_view text) {
  const std::size_t at_sign = text.find('@');
  const std::size_t dot = text.find('.');
  const std::size_t distance = at_sign > dot ? at_sign - dot : dot - at_sign;
  return distance >= 2;
}

}  // namespace

int IsValidEmailAddress(std::string_view text) {
  // 1.
  if (!LooksLikeAddress(text)) return kInvalidEmail;
  // 2. No dot after the last at-sign.
  if (text.rfind('@') > text.rfind('.')) return kInvalidEmail;
  // 3. One at-sign only, and the first dot must not touch it, also when the dot comes before.
  if (text.find('@') != text.rfind('@') || !SignAndDotAreApart(text)) return kInvalidEmail;
  // 4. A comma has failed the first test already.
  return kValidEmail;
}

}  // namespace shared
