// The files and folders of the machine, without regard to who asks.
//
// Paths are normalised: relative ones start at the current directory, "." and ".." are resolved, a
// final backslash and blanks or dots at the end do not count.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/profile_index.h"
#include "platform/memory/text.h"
#include "platform/memory/timeline.h"

namespace platform::memory {

// How another program holds a file open.
enum class FileLock { kNone, kAgainstWriting, kAgainstAll };

struct DiskNode {
  std::string path;  // as it was first written
  bool is_folder = false;
  bool read_only = false;
  FileLock lock = FileLock::kNone;
  std::int64_t modified = 0;  // local seconds
  std::string bytes;
  ProfileIndex index;  // of `bytes`, made when first asked for
};

class Disk {
 public:
  using Nodes = std::map<std::string, DiskNode, IgnoreCaseLess>;

  explicit Disk(const Timeline& timeline);

  // Full path with the names as given. The reference is good until the next call.
  const std::string& Normalise(std::string_view path);

  // The file or folder, or nothing.
  DiskNode* Find(std::string_view path);
  DiskNode* FindFile(std::string_view path);
  bool IsFolder(std::string_view path);
  // The file, when it is there and may be read.
  DiskNode* FindReadable(std::string_view path);

  // True when the content of the file could be set now: it may be written, or may be made.
  bool MayWrite(std::string_view path);
  // Sets the content, making the file; the caller has asked MayWrite.
  DiskNode& SetContent(std::string_view path, std::string_view bytes);
  // Marks the file as written now.
  void Touch(DiskNode& node);

  bool MakeFolder(std::string_view path);
  // Makes the folder and its parents where missing.
  void MakeFolders(std::string_view path);
  // Deletes a file or an empty folder. False when it stays.
  bool Remove(std::string_view path);
  // Paths of what lies below the folder, all levels, in order.
  std::vector<std::string> Below(std::string_view folder);
  // What lies right in the folder, in order.
  std::vector<const DiskNode*> In(std::string_view folder);

  void SetFull(bool full) { full_ = full; }
  bool full() const { return full_; }
  const Nodes& nodes() const { return nodes_; }

  const std::string& current_folder() const { return current_folder_; }
  void SetCurrentFolder(std::string_view folder);

 private:
  DiskNode& Make(const std::string& path, bool is_folder);

  const Timeline& timeline_;
  Nodes nodes_;
  std::string current_folder_ = "C:\\";
  std::string normalised_;
  std::string last_asked_;
  DiskNode* last_found_ = nullptr;  // of `last_asked_`
  bool full_ = false;
};

}  // namespace platform::memory
