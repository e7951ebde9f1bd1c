#include "lab/stand_ins/process.h"

#include <windows.h>

#include <cstdio>

namespace lab {
namespace {

// Of the file that this code was linked into: a program, or a library in another one's process.
std::string OwnPath() {
  HMODULE own = nullptr;
  GetModuleHandleExA(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCSTR>(&OwnPath), &own);
  char path[MAX_PATH] = "";
  GetModuleFileNameA(own, path, MAX_PATH);
  return path;
}

// The command line behind the first word, which may be quoted, and the blank after it.
std::string RawArguments() {
  std::string_view line = GetCommandLineA();
  const bool quoted = line.starts_with('"');
  const std::size_t end = line.find(quoted ? '"' : ' ', 1);
  if (end == std::string_view::npos) return "";
  line.remove_prefix(quoted ? end + 1 : end);
  if (line.starts_with(' ')) line.remove_prefix(1);
  return std::string(line);
}

}  // namespace

std::string OwnFolder() {
  const std::string path = OwnPath();
  return path.substr(0, path.rfind('\\'));
}

std::string OwnName() {
  const std::string path = OwnPath();
  return path.substr(path.rfind('\\') + 1);
}

std::string Arguments() {
  std::string text = RawArguments();
  while (text.starts_with(' ')) text.erase(0, 1);
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

void NoteCall() {
  NoteCall(RawArguments());
}

void NoteCall(std::string_view arguments) {
  SYSTEMTIME now;
  GetLocalTime(&now);
  std::FILE* file = std::fopen((OwnFolder() + "\\LabCalls.txt").c_str(), "ab");
  if (!file) return;
  std::fprintf(file, "%02u:%02u:%02u.%03u %s [%.*s]\r\n", now.wHour, now.wMinute, now.wSecond,
               now.wMilliseconds, OwnName().c_str(), static_cast<int>(arguments.size()),
               arguments.data());
  std::fclose(file);
}

}  // namespace lab
