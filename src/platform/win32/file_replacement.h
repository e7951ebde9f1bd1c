// A new content for a file that is complete on the disk before it takes the old one's place.
#pragma once

#include <string>
#include <string_view>

namespace platform::win32 {

// A file beside the target; deleted again unless it is put in its place.
class FileReplacement {
 public:
  // Makes an empty file in the folder of `target`.
  explicit FileReplacement(std::string_view target);
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;
  ~FileReplacement();

  // Each gives false when it fails, also when the file could not be made.
  bool Fill(std::string_view bytes);
  bool FillFrom(std::string_view file);

  // Renames the file over the target. False, with the target as it was, when that is read-only,
  // open in a program or a folder.
  bool PutInPlace();

 private:
  std::string target_;
  std::string path_;  // empty when there is no file
};

// Writes all of `bytes` at the end of an open file. False when not all could be written.
bool WriteAll(void* file, std::string_view bytes);

}  // namespace platform::win32
