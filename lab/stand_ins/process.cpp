#include "lab/stand_ins/process.h"

#include <windows.h>

#include <cstdio>

namespace lab {
namespace {

std::string ExecutablePath() {
  char path[MAX_PATH] = "";
  GetModuleFileNameA(nullptr, path, MAX_PATH);
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

std::string ExecutableFolder() {
  const std::string path = ExecutablePath();
  return path.substr(0, path.rfind('\\'));
}

std::string ExecutableName() {
  const std::string path = ExecutablePath();
  return path.substr(path.rfind('\\') + 1);
}

std::string Arguments() {
  std::string text = RawArguments();
  while (text.starts_with(' ')) text.erase(0, 1);
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

void NoteCall() {
  SYSTEMTIME now;
  GetLocalTime(&now);
  std::FILE* file = std::fopen((ExecutableFolder() + "\\LabCalls.txt").c_str(), "ab");
  if (!file) return;
  std::fprintf(file, "%02u:%02u:%02u.%03u %s [%s]\r\n", now.wHour, now.wMinute, now.wSecond,
               now.wMilliseconds, ExecutableName().c_str(), RawArguments().c_str());
  std::fclose(file);
}

}  // namespace lab
