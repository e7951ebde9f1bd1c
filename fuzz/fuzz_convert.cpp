// Numbers and base64 from texts of other programs.
#include <cmath>
#include <string>

#include "fuzz/check.h"
#include "shared/base64.h"
#include "shared/convert.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzz::Text(data, size);
  const auto real = shared::ToDouble(text);
  const auto narrow = shared::ToInt16(text);
  const auto wide = shared::ToInt32(text);
  fuzz::Check(!real || std::isfinite(*real));
  // Each width holds what the wider one holds, to within the rounding.
  fuzz::Check(!narrow || (wide && *wide == *narrow));
  fuzz::Check(!wide || (real && std::fabs(*real - *wide) <= 0.5));
  fuzz::Check(!real || shared::LeadingNumber(text) == *real);
  fuzz::Check(std::isfinite(shared::LeadingNumber(text)));

  shared::cBase64 coder;
  coder.Decode(text);
  const std::string encoded = coder.encode(text);
  fuzz::Check(encoded.size() % 4 == 0 && coder.Decode(encoded) == text);
  return 0;
}
