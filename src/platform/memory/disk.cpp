#include "platform/memory/disk.h"

#include <utility>

namespace platform::memory {
namespace {

bool IsSlash(char character) {
  return character == '\\' || character == '/';
}

// "C:\", "\\server\share\" or nothing: what ".." does not leave.
std::size_t RootLength(std::string_view path) {
  if (path.size() >= 3 && path[1] == ':' && IsSlash(path[2])) return 3;
  if (path.size() >= 2 && IsSlash(path[0]) && IsSlash(path[1])) return 2;
  return 0;
}

void AppendComponent(std::string& path, std::size_t root, std::string_view component) {
  if (component.empty() || component == ".") return;
  if (component == "..") {
    const std::size_t slash = path.rfind('\\');
    path.resize(slash == std::string::npos || slash < root ? root : slash);
    return;
  }
  while (!component.empty() && (component.back() == ' ' || component.back() == '.')) {
    component.remove_suffix(1);
  }
  if (component.empty()) return;
  if (!path.empty() && path.back() != '\\') path += '\\';
  path += component;
}

}  // namespace

Disk::Disk(const Timeline& timeline) : timeline_(timeline) {
  Make("C:\\", true);
}

const std::string& Disk::Normalise(std::string_view path) {
  std::string& result = normalised_;
  std::size_t root = RootLength(path);
  if (root != 0) {
    result.assign(path.substr(0, root));
    path.remove_prefix(root);
  } else if (!path.empty() && IsSlash(path[0])) {
    result.assign(current_folder_, 0, RootLength(current_folder_));
  } else if (path.size() == 2 && path[1] == ':') {
    result.assign(path).push_back('\\');
    path = {};
  } else {
    result = current_folder_;
  }
  for (char& character : result) {
    if (character == '/') character = '\\';
  }
  root = RootLength(result);
  while (!path.empty()) {
    std::size_t end = 0;
    while (end < path.size() && !IsSlash(path[end])) ++end;
    AppendComponent(result, root, path.substr(0, end));
    path.remove_prefix(end < path.size() ? end + 1 : end);
  }
  return result;
}

DiskNode* Disk::Find(std::string_view path) {
  if (path.empty()) return nullptr;
  // The same file is asked for many times in a row.
  if (last_found_ != nullptr && path == last_asked_) return last_found_;
  const auto found = nodes_.find(Normalise(path));
  if (found == nodes_.end()) return nullptr;
  last_asked_.assign(path);
  last_found_ = &found->second;
  return last_found_;
}

DiskNode* Disk::FindFile(std::string_view path) {
  DiskNode* node = Find(path);
  return node != nullptr && !node->is_folder ? node : nullptr;
}

bool Disk::IsFolder(std::string_view path) {
  const DiskNode* node = Find(path);
  return node != nullptr && node->is_folder;
}

DiskNode* Disk::FindReadable(std::string_view path) {
  DiskNode* node = FindFile(path);
  return node != nullptr && node->lock != FileLock::kAgainstAll ? node : nullptr;
}

bool Disk::MayWrite(std::string_view path) {
  if (full_ || path.empty()) return false;
  const DiskNode* node = Find(path);
  if (node != nullptr) {
    return !node->is_folder && !node->read_only && node->lock == FileLock::kNone;
  }
  const std::string full = Normalise(path);
  const std::size_t root = RootLength(full);
  const std::size_t slash = full.rfind('\\');
  if (full.size() <= root || slash == std::string::npos) return false;
  return IsFolder(std::string_view(full).substr(0, slash < root ? root : slash));
}

DiskNode& Disk::SetContent(std::string_view path, std::string_view bytes) {
  DiskNode* node = Find(path);
  if (node == nullptr) node = &Make(std::string(Normalise(path)), false);
  node->bytes.assign(bytes);
  node->index.Forget();
  Touch(*node);
  return *node;
}

void Disk::Touch(DiskNode& node) {
  node.modified = timeline_.LocalSeconds();
}

bool Disk::MakeFolder(std::string_view path) {
  if (full_ || path.empty() || Find(path) != nullptr) return false;
  const std::string full = Normalise(path);
  const std::size_t root = RootLength(full);
  const std::size_t slash = full.rfind('\\');
  if (full.size() <= root || slash == std::string::npos) return false;
  if (!IsFolder(std::string_view(full).substr(0, slash < root ? root : slash))) return false;
  Make(full, true);
  return true;
}

void Disk::MakeFolders(std::string_view path) {
  const std::string full = Normalise(path);
  for (std::size_t end = RootLength(full); end != std::string::npos;) {
    const std::string part = full.substr(0, end);
    if (!part.empty() && nodes_.find(part) == nodes_.end()) Make(part, true);
    if (end >= full.size()) break;
    end = full.find('\\', end + 1);
    if (end == std::string::npos) end = full.size();
  }
}

bool Disk::Remove(std::string_view path) {
  if (path.empty()) return false;
  const auto found = nodes_.find(Normalise(path));
  if (found == nodes_.end()) return false;
  const DiskNode& node = found->second;
  if (node.read_only || node.lock != FileLock::kNone) return false;
  if (node.is_folder && !In(found->first).empty()) return false;
  last_found_ = nullptr;
  nodes_.erase(found);
  return true;
}

std::vector<std::string> Disk::Below(std::string_view folder) {
  std::string prefix = Normalise(folder);
  if (prefix.back() != '\\') prefix += '\\';
  std::vector<std::string> paths;
  for (const auto& [path, node] : nodes_) {
    if (path.size() > prefix.size() &&
        EqualIgnoreCase(std::string_view(path).substr(0, prefix.size()), prefix)) {
      paths.push_back(node.path);
    }
  }
  return paths;
}

std::vector<const DiskNode*> Disk::In(std::string_view folder) {
  std::string prefix = Normalise(folder);
  if (prefix.back() != '\\') prefix += '\\';
  std::vector<const DiskNode*> found;
  for (auto place = nodes_.lower_bound(prefix); place != nodes_.end(); ++place) {
    const std::string_view path = place->first;
    if (!EqualIgnoreCase(path.substr(0, prefix.size()), prefix)) break;
    const std::string_view rest = path.substr(prefix.size());
    if (!rest.empty() && rest.find('\\') == std::string_view::npos) {
      found.push_back(&place->second);
    }
  }
  return found;
}

void Disk::SetCurrentFolder(std::string_view folder) {
  current_folder_ = Normalise(folder);
}

DiskNode& Disk::Make(const std::string& path, bool is_folder) {
  DiskNode& node = nodes_[path];
  node.path = path;
  node.is_folder = is_folder;
  node.modified = timeline_.LocalSeconds();
  return node;
}

}  // namespace platform::memory
