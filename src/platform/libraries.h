// The closed libraries of the installation, loaded by name when first needed and kept.
//
// `path` is always a full path: nothing is searched for anywhere else. A missing library or
// function is a silent failure.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

class Libraries {
 public:
  virtual ~Libraries() = default;

  // The string with this number from the library's string table; "" without the library or the
  // string.
  virtual std::string ReadString(std::string_view path, std::uint32_t id) = 0;

  // Calls an exported function that takes one 4-byte number and gives one. Nothing without the
  // library or function.
  virtual std::optional<std::int32_t> Call(std::string_view path, std::string_view function,
                                           std::int32_t argument) = 0;

  // Calls an exported function that takes the address of a NUL-closed text, in a buffer of
  // kTextBuffer bytes that it may overwrite. What it gives back is not looked at. False without the
  // library or function, or when the text does not fit.
  virtual bool CallWithText(std::string_view path, std::string_view function,
                            std::string_view text) = 0;
  static constexpr std::size_t kTextBuffer = 260;
};

}  // namespace platform
