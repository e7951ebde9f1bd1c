// What a fuzz target holds its subject to.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace fuzz {

inline void Check(bool holds) {
  if (!holds) std::abort();
}

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Cuts the part before the first `separator` off `rest`; all of it when there is none.
inline std::string_view Take(std::string_view& rest, char separator) {
  const std::size_t end = rest.find(separator);
  const std::string_view part = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  return part;
}

}  // namespace fuzz
