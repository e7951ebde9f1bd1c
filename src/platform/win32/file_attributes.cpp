#include "platform/win32/file_attributes.h"

namespace platform::win32 {

std::optional<WIN32_FILE_ATTRIBUTE_DATA> AttributesOfFile(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data;
  if (!GetFileAttributesExA(path.c_str(), GetFileExInfoStandard, &data)) return std::nullopt;
  if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) return std::nullopt;
  return data;
}

bool IsFolder(const std::string& path) {
  const DWORD attributes = GetFileAttributesA(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

bool IsReadOnly(const std::string& path) {
  const auto data = AttributesOfFile(path);
  return data && (data->dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
}

}  // namespace platform::win32
