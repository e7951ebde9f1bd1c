#include "platform/win32/libraries.h"

#include <algorithm>
#include <limits>

namespace platform::win32 {
namespace {

using NumberFunction = std::int32_t(WINAPI*)(std::int32_t);
using TextFunction = std::int32_t(WINAPI*)(char*);

// A bare name would find a library that some other part of the process has loaded already.
bool IsFullPath(std::string_view path) {
  return path.starts_with("\\\\") || path.substr(std::min<std::size_t>(path.size(), 1), 2) == ":\\";
}

}  // namespace

HMODULE Libraries::Load(std::string_view path) {
  if (const auto found = loaded_.find(path); found != loaded_.end()) return found->second.get();
  if (!IsFullPath(path)) return nullptr;
  std::string name(path);
  // What the library itself needs comes from its own folder or the system's.
  ScopedLibrary library(LoadLibraryExA(
      name.c_str(), nullptr, LOAD_LIBRARY_SEARCH_DLL_LOAD_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32));
  if (!library) return nullptr;
  return loaded_.emplace(std::move(name), std::move(library)).first->second.get();
}

std::string Libraries::ReadString(std::string_view path, std::uint32_t id) {
  // String tables have 16-bit numbers; the system would cut a greater one to another string's.
  if (id > std::numeric_limits<std::uint16_t>::max()) return "";
  const HMODULE library = Load(path);
  if (library == nullptr) return "";
  char text[4096];
  const int length = LoadStringA(library, id, text, sizeof(text));
  return {text, length > 0 ? static_cast<std::size_t>(length) : 0};
}

std::optional<std::int32_t> Libraries::Call(std::string_view path, std::string_view function,
                                            std::int32_t argument) {
  void* const address = Find(path, function);
  if (address == nullptr) return std::nullopt;
  return reinterpret_cast<NumberFunction>(address)(argument);
}

bool Libraries::CallWithText(std::string_view path, std::string_view function,
                             std::string_view text) {
  void* const address = Find(path, function);
  char buffer[kTextBuffer] = {};
  if (address == nullptr || text.size() >= sizeof buffer) return false;
  text.copy(buffer, text.size());
  reinterpret_cast<TextFunction>(address)(buffer);
  return true;
}

void* Libraries::Find(std::string_view path, std::string_view function) {
  const HMODULE library = Load(path);
  if (library == nullptr) return nullptr;
  return reinterpret_cast<void*>(GetProcAddress(library, std::string(function).c_str()));
}

}  // namespace platform::win32
