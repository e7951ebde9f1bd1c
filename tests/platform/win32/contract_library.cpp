// The closed library of the contract suites: a few functions, and the string table of its
// resources.
#include <windows.h>

#include <cstdint>

#define CONTRACT_EXPORT extern "C" __declspec(dllexport)

CONTRACT_EXPORT std::int32_t __stdcall AddOne(std::int32_t number) {
  return number + 1;
}

CONTRACT_EXPORT std::int32_t __stdcall Negate(std::int32_t number) {
  return -number;
}

CONTRACT_EXPORT std::int32_t __stdcall LeaveMark(char* path) {
  const HANDLE file = CreateFileA(path, GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return 0;
  DWORD written = 0;
  WriteFile(file, "mark", 4, &written, nullptr);
  CloseHandle(file);
  // The buffer belongs to the library while it runs, up to its last byte.
  for (int at = 0; at < 260; ++at) path[at] = 'x';
  return 1;
}
