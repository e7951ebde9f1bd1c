// Base64 with the standard alphabet and "=" padding (RFC 4648).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace shared {

class cBase64 {
 public:
  // The encoded form of any bytes. Keeps both in the properties below.
  const std::string& encode(std::string_view text);

  // The way back. Decoding ends at the padding or at the first character outside the alphabet; what
  // was decoded until there is given. Keeps both in the properties below.
  const std::string& Decode(std::string_view text);

  const std::string& DecodedMessage() const { return decoded_; }
  const std::string& EncodedMessage() const { return encoded_; }

  // `value` shifted right; 0 for a count of 32 or more.
  static std::uint32_t RShiftByte(std::uint32_t value, unsigned bits);

  // 2 to the power of an exponent below 32; 0 for any other.
  static std::uint32_t Power2(unsigned exponent);

 private:
  std::string decoded_;
  std::string encoded_;
};

}  // namespace shared
