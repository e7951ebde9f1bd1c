#include "platform/win32/file_replacement.h"

#include <windows.h>

#include <algorithm>
#include <cstddef>

#include "platform/win32/file_attributes.h"
#include "platform/win32/scoped.h"

namespace platform::win32 {
namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t separator = path.find_last_of("\\/:");
  return separator == std::string::npos ? "." : path.substr(0, separator + 1);
}

std::string MakeSibling(const std::string& path) {
  char name[MAX_PATH];
  return GetTempFileNameA(FolderOf(path).c_str(), "sve", 0, name) != 0 ? name : "";
}

}  // namespace

FileReplacement::FileReplacement(std::string_view target)
    : target_(target), path_(MakeSibling(target_)) {}

FileReplacement::~FileReplacement() {
  if (path_.empty()) return;
  // A copy of a read-only file is read-only, and would stay.
  SetFileAttributesA(path_.c_str(), FILE_ATTRIBUTE_NORMAL);
  DeleteFileA(path_.c_str());
}

bool FileReplacement::Fill(std::string_view bytes) {
  if (path_.empty()) return false;
  const ScopedFile file(CreateFileA(path_.c_str(), GENERIC_WRITE, 0, nullptr, TRUNCATE_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
  return file && WriteAll(file.get(), bytes) && FlushFileBuffers(file.get());
}

bool FileReplacement::FillFrom(std::string_view file) {
  return !path_.empty() && CopyFileA(std::string(file).c_str(), path_.c_str(), FALSE);
}

bool FileReplacement::PutInPlace() {
  if (path_.empty()) return false;
  if (IsReadOnly(target_) || IsFolder(target_)) return false;
  if (!MoveFileExA(path_.c_str(), target_.c_str(), MOVEFILE_REPLACE_EXISTING)) {
    return false;
  }
  path_.clear();
  return true;
}

bool WriteAll(void* file, std::string_view bytes) {
  constexpr std::size_t kMostAtOnce = 1u << 24;
  while (!bytes.empty()) {
    const auto wanted = static_cast<DWORD>(std::min(bytes.size(), kMostAtOnce));
    DWORD written = 0;
    if (!WriteFile(file, bytes.data(), wanted, &written, nullptr) || written == 0) return false;
    bytes.remove_prefix(written);
  }
  return true;
}

}  // namespace platform::win32
