// The closed libraries of the installation, kept loaded from first use on.
#pragma once

#include <map>

#include "platform/libraries.h"
#include "platform/win32/scoped.h"

namespace platform::win32 {

class Libraries final : public platform::Libraries {
 public:
  std::string ReadString(std::string_view path, std::uint32_t id) override;
  std::optional<std::int32_t> Call(std::string_view path, std::string_view function,
                                   std::int32_t argument) override;
  bool CallWithText(std::string_view path, std::string_view function,
                    std::string_view text) override;

 private:
  // Null when it cannot be loaded; the next call tries again.
  HMODULE Load(std::string_view path);
  // The address of an exported function; null without it or the library.
  void* Find(std::string_view path, std::string_view function);

  std::map<std::string, ScopedLibrary, std::less<>> loaded_;
};

}  // namespace platform::win32
