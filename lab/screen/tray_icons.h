// The notification area as the shell shows it, read from another process.
//
// The shell keeps one tool tip for each icon; its tool tells the text, and the icon's place in the
// task bar. Written for the task bar of Wine's desktop "shell".
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace lab {

struct TrayIcon {
  RECT place = {};  // on the screen, border included
  std::string tip;
};

// The icons on show, from left to right. Empty without a shell.
std::vector<TrayIcon> TrayIcons();

// Does what a shell that starts anew does: its area is empty at first, and it tells every top-level
// window so. (Wine's shell cannot be ended alone: its process holds the desktop of all programs.)
// `icon_owner` is the window whose icon is dropped.
void RenewShell(HWND icon_owner);

}  // namespace lab
