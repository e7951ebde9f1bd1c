// Ports that also leave a note of each write in LabWrites.txt of the installation folder, so that
// whoever watches the files can tell the stand-ins' writes from the agent's.
//
// A line is: program, path below the installation folder, section, key, value, parted by tabs; for
// whole files section and value are empty and the key is one of "replace", "append", "remove" and
// "folder".
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/profile_files.h"

namespace lab {

class WriteNotes {
 public:
  WriteNotes(std::string install_folder, std::string program);
  void Note(std::string_view path, std::string_view section, std::string_view key,
            std::string_view value) const;

 private:
  std::string install_folder_;
  std::string program_;
};

class NotedProfileFiles : public platform::ProfileFiles {
 public:
  NotedProfileFiles(platform::ProfileFiles& files, const WriteNotes& notes)
      : files_(files), notes_(notes) {}

  std::string ReadText(std::string_view file, std::string_view section, std::string_view key,
                       std::size_t buffer) override;
  std::int32_t ReadInt(std::string_view file, std::string_view section,
                       std::string_view key) override;
  bool WriteText(std::string_view file, std::string_view section, std::string_view key,
                 std::string_view value) override;

 private:
  platform::ProfileFiles& files_;
  const WriteNotes& notes_;
};

class NotedFiles : public platform::Files {
 public:
  NotedFiles(platform::Files& files, const WriteNotes& notes) : files_(files), notes_(notes) {}

  bool Exists(std::string_view path) override { return files_.Exists(path); }
  bool FolderExists(std::string_view path) override { return files_.FolderExists(path); }
  std::optional<std::string> Read(std::string_view path, std::size_t limit) override {
    return files_.Read(path, limit);
  }
  bool Replace(std::string_view path, std::string_view bytes) override;
  bool AppendUtf16Line(std::string_view path, std::string_view line) override;
  std::optional<std::uint64_t> Size(std::string_view path) override { return files_.Size(path); }
  bool Remove(std::string_view path) override;
  bool Copy(std::string_view from, std::string_view to) override;
  bool MakeFolder(std::string_view path) override;
  bool RemoveFolder(std::string_view path) override;
  std::vector<platform::FileEntry> List(std::string_view folder,
                                        std::string_view pattern) override {
    return files_.List(folder, pattern);
  }
  std::uint32_t ChangeDirectory(std::string_view folder) override {
    return files_.ChangeDirectory(folder);
  }

 private:
  void Note(std::string_view path, std::string_view what);

  platform::Files& files_;
  const WriteNotes& notes_;
};

}  // namespace lab
