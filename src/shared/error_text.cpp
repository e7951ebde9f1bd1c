#include "shared/error_text.h"

namespace shared {
namespace {

struct FileError {
  int number;
  std::string_view text;
};

constexpr FileError kFileErrors[] = {
    {52, "Bad file name or number."}, {53, "File not found."},   {54, "Bad file mode."},
    {55, "File already open."},       {57, "Device I/O error."}, {68, "Device unavailable."},
    {70, "Permission Denied."},       {71, "Disk Not Ready."},   {75, "Path/File Access Error."},
    {76, "Path not found."},
};

}  // namespace

std::string_view LookupFileErrorText(int number) {
  for (const FileError& error : kFileErrors) {
    if (error.number == number) return error.text;
  }
  return {};
}

}  // namespace shared
