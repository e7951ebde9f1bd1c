// Private-profile files, by the system's own functions.
#pragma once

#include "platform/profile_files.h"

namespace platform::win32 {

class ProfileFiles final : public platform::ProfileFiles {
 public:
  std::string ReadText(std::string_view file, std::string_view section, std::string_view key,
                       std::size_t buffer) override;
  std::int32_t ReadInt(std::string_view file, std::string_view section,
                       std::string_view key) override;
  bool WriteText(std::string_view file, std::string_view section, std::string_view key,
                 std::string_view value) override;
};

}  // namespace platform::win32
