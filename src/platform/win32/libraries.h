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

 private:
  // Null when it cannot be loaded; the next call tries again.
  HMODULE Load(std::string_view path);

  std::map<std::string, ScopedLibrary, std::less<>> loaded_;
};

}  // namespace platform::win32
