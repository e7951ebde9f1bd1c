// Files and profile files of the machine in memory.
//
// Gate names: "files.<Function>" and "profile_files.<Function>", about the path; profile files'
// argument is "<path> [<section>] <key>". Journal: category "file" ("replace <path> <n> bytes",
// "append <path> <line>", "remove <path>", "copy <from> to <to>", "folder <path>",
// "remove folder <path>", "change to <folder>") and "profile" ("<path> [<section>] <key>=<value>");
// failed calls leave "... failed".
#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/memory/disk.h"
#include "platform/memory/world.h"
#include "platform/profile_files.h"

namespace platform::memory {

struct IniLine {
  std::string_view section;
  std::string_view key;
  std::string_view value;
};

class MemoryFiles : public Files {
 public:
  MemoryFiles(World& world, Disk& disk) : world_(world), disk_(disk) {}

  bool Exists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  std::optional<std::string> Read(std::string_view path, std::size_t limit = kWhole) override;
  bool Replace(std::string_view path, std::string_view bytes) override;
  bool AppendUtf16Line(std::string_view path, std::string_view line) override;
  std::optional<std::uint64_t> Size(std::string_view path) override;
  bool Remove(std::string_view path) override;
  bool Copy(std::string_view from, std::string_view to) override;
  bool MakeFolder(std::string_view path) override;
  bool RemoveFolder(std::string_view path) override;
  std::vector<FileEntry> List(std::string_view folder, std::string_view pattern) override;
  std::uint32_t ChangeDirectory(std::string_view folder) override;

  // Seeding and looking, past gate, locks and journal. Folders are made where missing. What an
  // actor puts stands in the journal under its name.
  void Put(std::string_view path, std::string_view bytes);
  void PutFolder(std::string_view path);
  // Sets keys of a profile file as the system's writer does.
  void PutIni(std::string_view path, std::initializer_list<IniLine> lines);
  void PutIni(std::string_view path, std::string_view section, std::string_view key,
              std::string_view value);
  // A file that loads as a picture.
  void PutPicture(std::string_view path);
  // Takes the file, or the folder with all that is in it, away; locks do not hold it.
  void Delete(std::string_view path);
  // When the file was written, as List gives it.
  void SetModified(std::string_view path, const LocalTime& time);

  bool Has(std::string_view path) { return disk_.Find(path) != nullptr; }
  // The content; "" for a missing file.
  std::string Content(std::string_view path);
  // A trace file's text back in ANSI: byte-order mark and line ends as they stand.
  std::string Utf16Content(std::string_view path);
  std::string IniValue(std::string_view path, std::string_view section, std::string_view key);
  // Every path, in order, folders with a final backslash.
  std::vector<std::string> Paths() const;
  // Every file with its content, for the comparison of two machines.
  std::string Dump() const;
  const std::string& current_folder() const { return disk_.current_folder(); }

 private:
  bool Note(bool done, std::string text);

  World& world_;
  Disk& disk_;
};

class MemoryProfileFiles : public ProfileFiles {
 public:
  MemoryProfileFiles(World& world, Disk& disk) : world_(world), disk_(disk) {}

  std::string ReadText(std::string_view file, std::string_view section, std::string_view key,
                       std::size_t buffer = kBuffer) override;
  std::int32_t ReadInt(std::string_view file, std::string_view section,
                       std::string_view key) override;
  bool WriteText(std::string_view file, std::string_view section, std::string_view key,
                 std::string_view value) override;

 private:
  bool Fails(std::string_view name, std::string_view file, std::string_view section,
             std::string_view key);
  std::string_view Value(std::string_view file, std::string_view section, std::string_view key);

  World& world_;
  Disk& disk_;
};

}  // namespace platform::memory
