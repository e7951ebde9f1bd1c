#include "platform/memory/memory_files.h"

#include <algorithm>

#include "platform/memory/code_page.h"
#include "platform/memory/wall_clock.h"

namespace platform::memory {
namespace {

constexpr std::uint32_t kFileNotFound = 2;
constexpr std::uint32_t kDirectoryName = 267;

}  // namespace

bool MemoryFiles::Note(bool done, std::string text) {
  world_.Note("file", done ? std::move(text) : std::move(text) + " failed");
  return done;
}

bool MemoryFiles::Exists(std::string_view path) {
  if (world_.gate.Fails("files.Exists", path)) return false;
  return disk_.FindFile(path) != nullptr;
}

bool MemoryFiles::FolderExists(std::string_view path) {
  if (world_.gate.Fails("files.FolderExists", path)) return false;
  return disk_.IsFolder(path);
}

std::optional<std::string> MemoryFiles::Read(std::string_view path, std::size_t limit) {
  if (world_.gate.Fails("files.Read", path)) return std::nullopt;
  const DiskNode* node = disk_.FindReadable(path);
  if (node == nullptr) return std::nullopt;
  return node->bytes.substr(0, limit);
}

bool MemoryFiles::Replace(std::string_view path, std::string_view bytes) {
  const bool done = !world_.gate.Fails("files.Replace", path) && disk_.MayWrite(path);
  if (done) disk_.SetContent(path, bytes);
  return Note(done, "replace " + std::string(path) + " " + std::to_string(bytes.size()) + " bytes");
}

bool MemoryFiles::AppendUtf16Line(std::string_view path, std::string_view line) {
  const bool done = !world_.gate.Fails("files.AppendUtf16Line", path) && disk_.MayWrite(path);
  if (done) {
    DiskNode* node = disk_.FindFile(path);
    if (node == nullptr || node->bytes.empty()) node = &disk_.SetContent(path, kByteOrderMark);
    node->bytes += BytesOf(WideOf(line)) + BytesOf(u"\r\n");
    node->index.Forget();
    disk_.Touch(*node);
  }
  return Note(done, "append " + std::string(path) + " " + std::string(line));
}

std::optional<std::uint64_t> MemoryFiles::Size(std::string_view path) {
  if (world_.gate.Fails("files.Size", path)) return std::nullopt;
  const DiskNode* node = disk_.FindFile(path);
  if (node == nullptr) return std::nullopt;
  return node->bytes.size();
}

bool MemoryFiles::Remove(std::string_view path) {
  const bool done = !world_.gate.Fails("files.Remove", path) && disk_.FindFile(path) != nullptr &&
                    disk_.Remove(path);
  return Note(done, "remove " + std::string(path));
}

bool MemoryFiles::Copy(std::string_view from, std::string_view to) {
  bool done = !world_.gate.Fails("files.Copy", from);
  const DiskNode* source = done ? disk_.FindReadable(from) : nullptr;
  done = source != nullptr && disk_.MayWrite(to);
  if (done) {
    const std::int64_t modified = source->modified;
    disk_.SetContent(to, std::string(source->bytes)).modified = modified;
  }
  return Note(done, "copy " + std::string(from) + " to " + std::string(to));
}

bool MemoryFiles::MakeFolder(std::string_view path) {
  const bool done = !world_.gate.Fails("files.MakeFolder", path) && disk_.MakeFolder(path);
  return Note(done, "folder " + std::string(path));
}

bool MemoryFiles::RemoveFolder(std::string_view path) {
  bool done = !world_.gate.Fails("files.RemoveFolder", path) && disk_.IsFolder(path);
  if (done) {
    const std::vector<std::string> below = disk_.Below(path);
    for (auto inner = below.rbegin(); inner != below.rend(); ++inner) disk_.Remove(*inner);
    done = disk_.Remove(path);
  }
  return Note(done, "remove folder " + std::string(path));
}

std::vector<FileEntry> MemoryFiles::List(std::string_view folder, std::string_view pattern) {
  std::vector<FileEntry> entries;
  if (world_.gate.Fails("files.List", folder) || !disk_.IsFolder(folder)) return entries;
  for (const DiskNode* node : disk_.In(folder)) {
    const std::string_view name = NameOfPath(node->path);
    if (!MatchesPattern(name, pattern)) continue;
    entries.push_back(
        {std::string(name), node->bytes.size(), LocalTimeOf(node->modified), node->is_folder});
  }
  return entries;
}

std::uint32_t MemoryFiles::ChangeDirectory(std::string_view folder) {
  std::uint32_t error = 0;
  const DiskNode* node = nullptr;
  if (!world_.gate.Fails("files.ChangeDirectory", folder)) node = disk_.Find(folder);
  if (node == nullptr) {
    error = kFileNotFound;
  } else if (!node->is_folder) {
    error = kDirectoryName;
  } else {
    disk_.SetCurrentFolder(folder);
  }
  Note(error == 0, "change to " + std::string(folder));
  return error;
}

void MemoryFiles::Put(std::string_view path, std::string_view bytes) {
  const std::string full = disk_.Normalise(path);
  disk_.MakeFolders(FolderOfPath(full));
  disk_.SetContent(full, bytes);
  if (!world_.timeline.agent_acts()) {
    Note(true, "put " + full + " " + std::to_string(bytes.size()) + " bytes");
  }
}

void MemoryFiles::PutFolder(std::string_view path) {
  disk_.MakeFolders(path);
}

void MemoryFiles::PutIni(std::string_view path, std::initializer_list<IniLine> lines) {
  for (const IniLine& line : lines) PutIni(path, line.section, line.key, line.value);
}

void MemoryFiles::PutIni(std::string_view path, std::string_view section, std::string_view key,
                         std::string_view value) {
  const std::string full = disk_.Normalise(path);
  if (disk_.FindFile(full) == nullptr) {
    disk_.MakeFolders(FolderOfPath(full));
    disk_.SetContent(full, {});
  }
  DiskNode& node = *disk_.FindFile(full);
  node.index.SetValue(node.bytes, section, key, value);
  disk_.Touch(node);
  if (!world_.timeline.agent_acts()) {
    world_.Note("profile", full + " [" + std::string(section) + "] " + std::string(key) + "=" +
                               std::string(value));
  }
}

void MemoryFiles::PutPicture(std::string_view path) {
  Put(path, std::string_view("\0\0\1\0\1\0", 6));
}

void MemoryFiles::Delete(std::string_view path) {
  std::vector<std::string> paths{std::string(disk_.Normalise(path))};
  for (std::string& below : disk_.Below(path)) paths.push_back(std::move(below));
  for (auto inner = paths.rbegin(); inner != paths.rend(); ++inner) {
    DiskNode* node = disk_.Find(*inner);
    if (node == nullptr) continue;
    node->lock = FileLock::kNone;
    node->read_only = false;
    disk_.Remove(*inner);
  }
  if (!world_.timeline.agent_acts()) Note(true, "remove " + paths.front());
}

void MemoryFiles::SetModified(std::string_view path, const LocalTime& time) {
  if (DiskNode* node = disk_.Find(path)) node->modified = SecondsOf(time);
}

std::string MemoryFiles::Content(std::string_view path) {
  const DiskNode* node = disk_.FindFile(path);
  return node == nullptr ? std::string() : node->bytes;
}

std::string MemoryFiles::Utf16Content(std::string_view path) {
  return AnsiOfBytes(Content(path));
}

std::string MemoryFiles::IniValue(std::string_view path, std::string_view section,
                                  std::string_view key) {
  DiskNode* node = disk_.FindFile(path);
  if (node == nullptr) return {};
  return std::string(StripProfileQuotes(node->index.Value(node->bytes, section, key)));
}

std::vector<std::string> MemoryFiles::Paths() const {
  std::vector<std::string> paths;
  for (const auto& [key, node] : disk_.nodes()) {
    paths.push_back(node.is_folder && node.path.back() != '\\' ? node.path + "\\" : node.path);
  }
  return paths;
}

std::string MemoryFiles::Dump() const {
  std::string dump;
  for (const auto& [key, node] : disk_.nodes()) {
    dump += node.is_folder ? "folder " : "file ";
    dump += node.path + "\n" + node.bytes + "\n";
  }
  return dump;
}

}  // namespace platform::memory
