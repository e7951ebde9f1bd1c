// Watches the screen from outside of every program on it and tells each change in a line:
//
//   observer watch PICTURES     until it is ended: the icons with picture and tip, the windows
//   observer renew-shell CLASS  what a shell that starts anew does; CLASS owns the icon
//
// Lines of `watch`, fields parted by tabs, line ends in texts as \n:
//
//   icon  LEFT TOP RIGHT BOTTOM  PICTURE  TIP
//   no icon
//   window  HANDLE  LEFT TOP RIGHT BOTTOM  PROGRAM  CLASS  TITLE
//   control  HANDLE  LEFT TOP RIGHT BOTTOM  ID  CLASS  TEXT     of the window before it
//   closed  HANDLE
#include <cstdio>
#include <cstring>
#include <map>
#include <set>
#include <string>

#include "lab/screen/picture_book.h"
#include "lab/screen/tray_icons.h"
#include "lab/screen/window_list.h"

namespace {

constexpr DWORD kPeriod = 100;  // milliseconds between two looks

std::string OneLine(const std::string& text) {
  std::string line;
  for (char c : text) {
    if (c == '\n') {
      line += "\\n";
    } else if (c == '\t') {
      line += ' ';
    } else if (c != '\r') {
      line += c;
    }
  }
  return line;
}

std::string PlaceText(const RECT& place) {
  char text[64];
  std::snprintf(text, sizeof(text), "%ld %ld %ld %ld", place.left, place.top, place.right,
                place.bottom);
  return text;
}

std::string HandleText(HWND window) {
  char text[32];
  std::snprintf(text, sizeof(text), "%llx",
                static_cast<unsigned long long>(reinterpret_cast<UINT_PTR>(window)));
  return text;
}

std::string IconLines(const lab::PictureBook& pictures) {
  std::string lines;
  for (const lab::TrayIcon& icon : lab::TrayIcons()) {
    lines += "icon\t" + PlaceText(icon.place) + "\t" + pictures.NameAt(icon.place) + "\t" +
             OneLine(icon.tip) + "\n";
  }
  return lines.empty() ? "no icon\n" : lines;
}

std::string WindowLines(const lab::WindowInfo& window) {
  std::string lines = "window\t" + HandleText(window.window) + "\t" + PlaceText(window.place) +
                      "\t" + window.program + "\t" + window.class_name + "\t" +
                      OneLine(window.title) + "\n";
  for (const lab::ControlInfo& control : window.controls) {
    if (!control.visible) continue;
    lines += "control\t" + HandleText(control.window) + "\t" + PlaceText(control.place) + "\t" +
             std::to_string(control.id) + "\t" + control.class_name + "\t" + OneLine(control.text) +
             "\n";
  }
  return lines;
}

void Tell(const std::string& lines) {
  std::fputs(lines.c_str(), stdout);
  std::fflush(stdout);
}

class Watch {
 public:
  explicit Watch(const char* pictures) : pictures_(pictures) {}

  void Look() {
    const std::string icons = IconLines(pictures_);
    if (icons != icons_) Tell(icons);
    icons_ = icons;
    LookAtWindows();
  }

 private:
  void LookAtWindows() {
    std::set<HWND> seen;
    for (const lab::WindowInfo& window : lab::VisibleWindows()) {
      seen.insert(window.window);
      const std::string lines = WindowLines(window);
      std::string& known = windows_[window.window];
      if (lines != known) Tell(lines);
      known = lines;
    }
    std::erase_if(windows_, [&](const auto& entry) {
      if (seen.count(entry.first)) return false;
      Tell("closed\t" + HandleText(entry.first) + "\n");
      return true;
    });
  }

  lab::PictureBook pictures_;
  std::string icons_;
  std::map<HWND, std::string> windows_;
};

}  // namespace

int main(int count, char** words) {
  if (count == 3 && std::strcmp(words[1], "watch") == 0) {
    Watch watch(words[2]);
    for (;;) {
      watch.Look();
      Sleep(kPeriod);
    }
  }
  if (count == 3 && std::strcmp(words[1], "renew-shell") == 0) {
    const HWND owner = FindWindowA(words[2], nullptr);
    if (!owner) return 1;
    lab::RenewShell(owner);
    return 0;
  }
  std::fputs("usage: observer watch PICTURES | renew-shell CLASS\n", stderr);
  return 2;
}
