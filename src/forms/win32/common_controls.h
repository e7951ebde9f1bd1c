// The system's library of controls, taken into the process when a window first needs one: an agent
// that shows no window does without it, and it is by far the largest of the libraries.
//
// Which of its versions comes is for the program's manifest to say. One thread.
#pragma once

#include <windows.h>
// Needs the types of the line before.
#include <commctrl.h>

#include "platform/win32/system_library.h"

namespace forms::win32 {

class CommonControls {
 public:
  // Makes the classes of the controls known. Nothing when they are, or without the library: making
  // a window of such a class then fails.
  void Require();

  // The library's functions for lists of pictures; without it null, -1 and nothing.
  HIMAGELIST CreateImageList(int size);
  int AddPicture(HIMAGELIST images, HICON picture);
  void DestroyImageList(HIMAGELIST images);

 private:
  platform::win32::SystemLibrary library_{"comctl32.dll"};
  bool required_ = false;
};

}  // namespace forms::win32
