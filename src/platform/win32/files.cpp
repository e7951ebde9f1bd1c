#include "platform/win32/files.h"

#include <windows.h>

#include <algorithm>

#include "platform/win32/file_attributes.h"
#include "platform/win32/file_replacement.h"
#include "platform/win32/locale.h"
#include "platform/win32/scoped.h"

namespace platform::win32 {
namespace {

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

std::uint64_t SizeOfOpen(const ScopedFile& file) {
  LARGE_INTEGER size;
  return GetFileSizeEx(file.get(), &size) ? static_cast<std::uint64_t>(size.QuadPart) : 0;
}

// Reads up to `limit` bytes. Begins with what the file says of its size, and one more byte that
// tells whether it has grown since.
std::optional<std::string> ReadUpTo(const ScopedFile& file, std::size_t limit) {
  constexpr std::size_t kPiece = 1u << 20;
  const std::uint64_t size = SizeOfOpen(file);
  std::size_t piece = size < kPiece ? static_cast<std::size_t>(size) + 1 : kPiece;
  std::string bytes;
  while (bytes.size() < limit) {
    const std::size_t before = bytes.size();
    const std::size_t wanted = std::min(limit - before, piece);
    bytes.resize(before + wanted);
    DWORD got = 0;
    if (!ReadFile(file.get(), bytes.data() + before, static_cast<DWORD>(wanted), &got, nullptr)) {
      return std::nullopt;
    }
    bytes.resize(before + got);
    if (got < wanted) break;
    piece = kPiece;
  }
  return bytes;
}

void CutTo(const ScopedFile& file, std::uint64_t size) {
  LARGE_INTEGER end;
  end.QuadPart = static_cast<LONGLONG>(size);
  if (SetFilePointerEx(file.get(), end, nullptr, FILE_BEGIN)) SetEndOfFile(file.get());
}

std::string Utf16LineBytes(std::string_view line, bool with_mark) {
  std::u16string wide = with_mark ? u"\ufeff" : u"";
  wide += Locale().ToWide(line);
  wide += u"\r\n";
  return {reinterpret_cast<const char*>(wide.data()), wide.size() * sizeof(char16_t)};
}

}  // namespace

bool Files::Exists(std::string_view path) {
  return AttributesOfFile(std::string(path)).has_value();
}

std::optional<std::string> Files::Read(std::string_view path, std::size_t limit) {
  const ScopedFile file(CreateFileA(std::string(path).c_str(), GENERIC_READ, kShareAll, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_SEQUENTIAL_SCAN, nullptr));
  if (!file) return std::nullopt;
  return ReadUpTo(file, limit);
}

bool Files::Replace(std::string_view path, std::string_view bytes) {
  FileReplacement replacement(path);
  return replacement.Fill(bytes) && replacement.PutInPlace();
}

bool Files::AppendUtf16Line(std::string_view path, std::string_view line) {
  const std::string name(path);
  if (IsReadOnly(name)) return false;
  // Readers may look on; a second writer would break lines apart.
  const ScopedFile file(CreateFileA(name.c_str(), GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, OPEN_ALWAYS,
                                    FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file) return false;
  const std::uint64_t old_size = SizeOfOpen(file);
  LARGE_INTEGER nowhere = {};
  if (!SetFilePointerEx(file.get(), nowhere, nullptr, FILE_END)) return false;
  if (WriteAll(file.get(), Utf16LineBytes(line, old_size == 0))) return true;
  CutTo(file, old_size);
  return false;
}

std::optional<std::uint64_t> Files::Size(std::string_view path) {
  const auto data = AttributesOfFile(std::string(path));
  if (!data) return std::nullopt;
  return static_cast<std::uint64_t>(data->nFileSizeHigh) << 32 | data->nFileSizeLow;
}

bool Files::Remove(std::string_view path) {
  const std::string name(path);
  return !IsReadOnly(name) && DeleteFileA(name.c_str());
}

bool Files::Copy(std::string_view from, std::string_view to) {
  FileReplacement replacement(to);
  return replacement.FillFrom(from) && replacement.PutInPlace();
}

}  // namespace platform::win32
