// Windows of other programs as people see them: class, title, controls with their texts.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace lab {

struct ControlInfo {
  HWND window = nullptr;
  int id = 0;
  std::string class_name;
  std::string text;
  bool visible = false;
  bool enabled = false;
  RECT place = {};  // on the screen
};

struct WindowInfo {
  HWND window = nullptr;
  std::string class_name;
  std::string title;
  std::string program;  // file name of the executable
  RECT place = {};
  std::vector<ControlInfo> controls;
};

// Visible top-level windows, the topmost first, without those of the shell.
std::vector<WindowInfo> VisibleWindows();

// One window with its controls.
WindowInfo Describe(HWND window);

// The file name of the program that a window belongs to; "" when it cannot be told.
std::string ProgramOf(HWND window);

}  // namespace lab
