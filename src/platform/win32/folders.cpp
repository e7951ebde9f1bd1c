// The part of the port that deals with folders.
#include <windows.h>

#include <algorithm>

#include "platform/win32/file_attributes.h"
#include "platform/win32/files.h"
#include "platform/win32/last_error.h"
#include "platform/win32/scoped.h"
#include "platform/win32/system_time.h"

namespace platform::win32 {
namespace {

FileEntry ToEntry(const WIN32_FIND_DATAA& data) {
  FileEntry entry;
  entry.name = data.cFileName;
  entry.is_folder = (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  if (!entry.is_folder) {
    entry.size = static_cast<std::uint64_t>(data.nFileSizeHigh) << 32 | data.nFileSizeLow;
  }
  entry.modified = ToLocalTime(data.ftLastWriteTime);
  return entry;
}

bool IsSelfOrParent(const WIN32_FIND_DATAA& data) {
  const std::string_view name = data.cFileName;
  return name == "." || name == "..";
}

template <typename Visitor>
void VisitFolder(const std::string& pattern, const Visitor& visit) {
  WIN32_FIND_DATAA data;
  const ScopedFind find(FindFirstFileA(pattern.c_str(), &data));
  if (!find) return;
  do {
    if (!IsSelfOrParent(data)) visit(data);
  } while (FindNextFileA(find.get(), &data));
}

// A link to a folder goes, but never what lies behind it.
bool IsRealFolder(const WIN32_FIND_DATAA& data) {
  return (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 &&
         (data.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0;
}

void DeleteTree(const std::string& folder) {
  VisitFolder(folder + "\\*", [&folder](const WIN32_FIND_DATAA& data) {
    const std::string path = folder + "\\" + data.cFileName;
    if (IsRealFolder(data)) {
      DeleteTree(path);
    } else if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
      RemoveDirectoryA(path.c_str());
    } else if (!IsReadOnly(path)) {
      DeleteFileA(path.c_str());
    }
  });
  RemoveDirectoryA(folder.c_str());
}

}  // namespace

bool Files::FolderExists(std::string_view path) {
  return IsFolder(std::string(path));
}

bool Files::MakeFolder(std::string_view path) {
  return CreateDirectoryA(std::string(path).c_str(), nullptr) != FALSE;
}

bool Files::RemoveFolder(std::string_view path) {
  if (!FolderExists(path)) return false;
  DeleteTree(std::string(path));
  return !FolderExists(path);
}

std::vector<FileEntry> Files::List(std::string_view folder, std::string_view pattern) {
  std::vector<FileEntry> entries;
  VisitFolder(std::string(folder) + "\\" + std::string(pattern),
              [&entries](const WIN32_FIND_DATAA& data) { entries.push_back(ToEntry(data)); });
  std::sort(entries.begin(), entries.end(), [](const FileEntry& left, const FileEntry& right) {
    return _stricmp(left.name.c_str(), right.name.c_str()) < 0;
  });
  return entries;
}

std::uint32_t Files::ChangeDirectory(std::string_view folder) {
  return ErrorUnless(SetCurrentDirectoryA(std::string(folder).c_str()) != FALSE);
}

}  // namespace platform::win32
