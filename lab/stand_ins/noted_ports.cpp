#include "lab/stand_ins/noted_ports.h"

#include <cstdio>
#include <utility>

namespace lab {

// Every note comes before the write: a watcher that sees the change finds it there.
WriteNotes::WriteNotes(std::string install_folder, std::string program)
    : install_folder_(std::move(install_folder)), program_(std::move(program)) {}

void WriteNotes::Note(std::string_view path, std::string_view section, std::string_view key,
                      std::string_view value) const {
  if (path.starts_with(install_folder_)) path.remove_prefix(install_folder_.size() + 1);
  std::string line = program_;
  for (std::string_view part : {path, section, key, value}) {
    line += '\t';
    line += part;
  }
  line += "\r\n";
  std::FILE* file = std::fopen((install_folder_ + "\\LabWrites.txt").c_str(), "ab");
  if (!file) return;
  std::fwrite(line.data(), 1, line.size(), file);
  std::fclose(file);
}

std::string NotedProfileFiles::ReadText(std::string_view file, std::string_view section,
                                        std::string_view key, std::size_t buffer) {
  return files_.ReadText(file, section, key, buffer);
}

std::int32_t NotedProfileFiles::ReadInt(std::string_view file, std::string_view section,
                                        std::string_view key) {
  return files_.ReadInt(file, section, key);
}

bool NotedProfileFiles::WriteText(std::string_view file, std::string_view section,
                                  std::string_view key, std::string_view value) {
  notes_.Note(file, section, key, value);
  return files_.WriteText(file, section, key, value);
}

void NotedFiles::Note(std::string_view path, std::string_view what) {
  notes_.Note(path, "", what, "");
}

bool NotedFiles::Replace(std::string_view path, std::string_view bytes) {
  Note(path, "replace");
  return files_.Replace(path, bytes);
}

bool NotedFiles::AppendUtf16Line(std::string_view path, std::string_view line) {
  Note(path, "append");
  return files_.AppendUtf16Line(path, line);
}

bool NotedFiles::Remove(std::string_view path) {
  Note(path, "remove");
  return files_.Remove(path);
}

bool NotedFiles::Copy(std::string_view from, std::string_view to) {
  Note(to, "replace");
  return files_.Copy(from, to);
}

bool NotedFiles::MakeFolder(std::string_view path) {
  Note(path, "folder");
  return files_.MakeFolder(path);
}

bool NotedFiles::RemoveFolder(std::string_view path) {
  Note(path, "remove");
  return files_.RemoveFolder(path);
}

}  // namespace lab
