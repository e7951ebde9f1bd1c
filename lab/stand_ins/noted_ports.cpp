#include "lab/stand_ins/noted_ports.h"

#include <cstdio>
#include <utility>

namespace lab {

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

// The note comes first: a watcher that sees the new value finds it there.
bool NotedProfileFiles::WriteText(std::string_view file, std::string_view section,
                                  std::string_view key, std::string_view value) {
  notes_.Note(file, section, key, value);
  return files_.WriteText(file, section, key, value);
}

bool NotedFiles::Noted(bool done, std::string_view path, std::string_view what) {
  if (done) notes_.Note(path, "", what, "");
  return done;
}

bool NotedFiles::Replace(std::string_view path, std::string_view bytes) {
  notes_.Note(path, "", "replace", "");
  return files_.Replace(path, bytes);
}

bool NotedFiles::AppendUtf16Line(std::string_view path, std::string_view line) {
  notes_.Note(path, "", "append", "");
  return files_.AppendUtf16Line(path, line);
}

bool NotedFiles::Remove(std::string_view path) {
  return Noted(files_.Remove(path), path, "remove");
}

bool NotedFiles::Copy(std::string_view from, std::string_view to) {
  return Noted(files_.Copy(from, to), to, "replace");
}

bool NotedFiles::MakeFolder(std::string_view path) {
  return Noted(files_.MakeFolder(path), path, "folder");
}

bool NotedFiles::RemoveFolder(std::string_view path) {
  return Noted(files_.RemoveFolder(path), path, "remove");
}

}  // namespace lab
