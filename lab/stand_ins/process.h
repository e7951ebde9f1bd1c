// What every stand-in executable does first: find its installation and leave a note of its call.
#pragma once

#include <string>
#include <string_view>

namespace lab {

// Folder of this executable, without a final backslash.
std::string ExecutableFolder();

// File name of this executable, without its folder.
std::string ExecutableName();

// The command line behind the program's name, blanks at both ends removed.
std::string Arguments();

// Appends "<time> <program> <arguments>" to LabCalls.txt of the installation folder; blanks of the
// arguments at the ends are kept there, in brackets.
void NoteCall();

}  // namespace lab
