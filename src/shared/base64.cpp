#include "shared/base64.h"

#include <array>

namespace shared {
namespace {

constexpr std::string_view kAlphabet =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char kPadding = '=';
constexpr unsigned kBitsPerByte = 8;
constexpr unsigned kBitsPerCharacter = 6;
constexpr std::size_t kBytesPerGroup = 3;
constexpr std::size_t kCharactersPerGroup = 4;

constexpr std::array<std::uint32_t, 32> kPowers = [] {
  std::array<std::uint32_t, 32> powers{};
  std::uint32_t power = 1;
  for (std::uint32_t& entry : powers) {
    entry = power;
    power *= 2;
  }
  return powers;
}();

// Up to three bytes as four characters.
std::string EncodeGroup(std::string_view bytes) {
  std::uint32_t bits = 0;
  for (std::size_t at = 0; at < kBytesPerGroup; ++at) {
    bits <<= kBitsPerByte;
    if (at < bytes.size()) bits |= static_cast<unsigned char>(bytes[at]);
  }
  std::string group(kCharactersPerGroup, kPadding);
  for (std::size_t at = 0; at <= bytes.size(); ++at) {
    const auto shift = static_cast<unsigned>(kCharactersPerGroup - 1 - at) * kBitsPerCharacter;
    group[at] = kAlphabet[cBase64::RShiftByte(bits, shift) % kAlphabet.size()];
  }
  return group;
}

}  // namespace

const std::string& cBase64::encode(std::string_view text) {
  std::string encoded;
  for (std::size_t at = 0; at < text.size(); at += kBytesPerGroup) {
    encoded += EncodeGroup(text.substr(at, kBytesPerGroup));
  }
  decoded_ = std::string(text);
  encoded_ = std::move(encoded);
  return encoded_;
}

const std::string& cBase64::Decode(std::string_view text) {
  std::string decoded;
  std::uint32_t bits = 0;
  unsigned held = 0;
  for (const char character : text) {
    const std::size_t value = kAlphabet.find(character);
    if (value == std::string_view::npos) break;
    bits = (bits << kBitsPerCharacter | static_cast<std::uint32_t>(value)) & 0xFFFF;
    held += kBitsPerCharacter;
    if (held < kBitsPerByte) continue;
    held -= kBitsPerByte;
    decoded.push_back(static_cast<char>(RShiftByte(bits, held) & 0xFF));
  }
  encoded_ = std::string(text);
  decoded_ = std::move(decoded);
  return decoded_;
}

std::uint32_t cBase64::RShiftByte(std::uint32_t value, unsigned bits) {
  const std::uint32_t divisor = Power2(bits);
  return divisor == 0 ? 0 : value / divisor;
}

std::uint32_t cBase64::Power2(unsigned exponent) {
  return exponent < kPowers.size() ? kPowers[exponent] : 0;
}

}  // namespace shared
