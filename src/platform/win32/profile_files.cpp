#include "platform/win32/profile_files.h"

#include <windows.h>

#include "platform/win32/file_attributes.h"

namespace platform::win32 {

std::string ProfileFiles::ReadText(std::string_view file, std::string_view section,
                                   std::string_view key, std::size_t buffer) {
  std::string value(buffer, '\0');
  const DWORD length = GetPrivateProfileStringA(
      std::string(section).c_str(), std::string(key).c_str(), "", value.data(),
      static_cast<DWORD>(value.size()), std::string(file).c_str());
  value.resize(length);
  return value;
}

std::int32_t ProfileFiles::ReadInt(std::string_view file, std::string_view section,
                                   std::string_view key) {
  return static_cast<std::int32_t>(GetPrivateProfileIntA(
      std::string(section).c_str(), std::string(key).c_str(), 0, std::string(file).c_str()));
}

bool ProfileFiles::WriteText(std::string_view file, std::string_view section, std::string_view key,
                             std::string_view value) {
  const std::string name(file);
  if (IsReadOnly(name)) return false;
  return WritePrivateProfileStringA(std::string(section).c_str(), std::string(key).c_str(),
                                    std::string(value).c_str(), name.c_str()) != FALSE;
}

}  // namespace platform::win32
