// What a path stands for, asked of the system anew each time.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

namespace platform::win32 {

// Nothing for a missing file or a folder.
std::optional<WIN32_FILE_ATTRIBUTE_DATA> AttributesOfFile(const std::string& path);

bool IsFolder(const std::string& path);

// True for a file that is there and marked so. Asked before each change of a file: a program with
// all rights over the disk is not everywhere held back by the mark.
bool IsReadOnly(const std::string& path);

}  // namespace platform::win32
