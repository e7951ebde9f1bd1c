// Whole files and folders. Every call opens, works and closes: nothing stays locked between calls.
//
// Paths are Windows paths in the ANSI code page, with backslashes, and are compared without regard
// to case. A relative path starts at the current directory (see ChangeDirectory). One thread.
// Nothing here throws or shows anything.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/local_time.h"

namespace platform {

struct FileEntry {
  std::string name;        // without the folder
  std::uint64_t size = 0;  // bytes; 0 for a folder
  LocalTime modified;
  bool is_folder = false;
};

class Files {
 public:
  static constexpr std::size_t kWhole = static_cast<std::size_t>(-1);

  virtual ~Files() = default;

  // True when `path` names a file that is there; false for a folder.
  virtual bool Exists(std::string_view path) = 0;

  // True when `path` names a folder that is there.
  virtual bool FolderExists(std::string_view path) = 0;

  // Returns the first `limit` bytes of the file, all of them with `kWhole`. Returns nothing when
  // the file is missing, a folder, locked against reading or fails while it is read.
  virtual std::optional<std::string> Read(std::string_view path, std::size_t limit = kWhole) = 0;

  // Makes `bytes` the whole content of the file, creating it when it is missing. The content is
  // written beside the file first and put in its place at the end: on failure (false) the old file
  // is untouched and nothing is left beside it. A read-only, locked or folder target is a failure.
  virtual bool Replace(std::string_view path, std::string_view bytes) = 0;

  // Appends one line of ANSI text, converted to UTF-16 (little endian), and a CR LF. A missing or
  // empty file gets the byte-order mark in front. Returns false, with the file as it was, when it
  // is read-only, locked or cannot be opened.
  virtual bool AppendUtf16Line(std::string_view path, std::string_view line) = 0;

  // Size in bytes, or nothing for a missing file or a folder.
  virtual std::optional<std::uint64_t> Size(std::string_view path) = 0;

  // Deletes one file. False when it was not there or stays there.
  virtual bool Remove(std::string_view path) = 0;

  // Copies a file over `to`. False, with `to` as it was, on failure.
  virtual bool Copy(std::string_view from, std::string_view to) = 0;

  // Makes one folder; its parent must be there. True only when this call made it.
  virtual bool MakeFolder(std::string_view path) = 0;

  // Deletes a folder with all that is in it. What is locked or read-only stays; false when anything
  // is left, or when there was no such folder.
  virtual bool RemoveFolder(std::string_view path) = 0;

  // Files and folders of `folder` whose names match `pattern` (`*` and `?`), sorted by name without
  // regard to case. Empty for a missing folder. "." and ".." are left out.
  virtual std::vector<FileEntry> List(std::string_view folder, std::string_view pattern) = 0;

  // Makes `folder` the current directory. Returns 0, or the system's error number.
  virtual std::uint32_t ChangeDirectory(std::string_view folder) = 0;
};

}  // namespace platform
