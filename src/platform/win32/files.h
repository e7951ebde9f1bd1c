// Whole files and folders of Windows.
#pragma once

#include "platform/files.h"

namespace platform::win32 {

class Files final : public platform::Files {
 public:
  bool Exists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  std::optional<std::string> Read(std::string_view path, std::size_t limit) override;
  bool Replace(std::string_view path, std::string_view bytes) override;
  bool AppendUtf16Line(std::string_view path, std::string_view line) override;
  std::optional<std::uint64_t> Size(std::string_view path) override;
  bool Remove(std::string_view path) override;
  bool Copy(std::string_view from, std::string_view to) override;
  bool MakeFolder(std::string_view path) override;
  bool RemoveFolder(std::string_view path) override;
  std::vector<FileEntry> List(std::string_view folder, std::string_view pattern) override;
  std::uint32_t ChangeDirectory(std::string_view folder) override;
};

}  // namespace platform::win32
