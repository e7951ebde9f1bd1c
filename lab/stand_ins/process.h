// What every stand-in does first: find its installation and leave a note of its call.
#pragma once

#include <string>
#include <string_view>

namespace lab {

// Folder of this program or library, without a final backslash.
std::string OwnFolder();

// File name of this program or library, without its folder.
std::string OwnName();

// The command line behind the program's name, blanks at both ends removed.
std::string Arguments();

// Appends "<time> <program> <arguments>" to LabCalls.txt of the installation folder; blanks of the
// arguments at the ends are kept there, in brackets.
void NoteCall();

// The same with these words instead of the command line: a library's note of a call.
void NoteCall(std::string_view arguments);

}  // namespace lab
