// The shell of the machine in memory: it starts programs and keeps the notification icon.
//
// Gate names "shell.<Function>", about the file or tip. Journal: category "shell" ("open <file>
// <arguments>", "start <file> <arguments>", both with the answer when they fail), "icon" ("add
// <picture> <tip>", "picture <picture>", "tip <tip>", "remove"; "... failed") and "box" ("stop
// <caption>: <text>"). A picture is called by its file name.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/disk.h"
#include "platform/memory/memory_processes.h"
#include "platform/memory/world.h"
#include "platform/shell.h"

namespace platform::memory {

struct Icon {
  std::uintptr_t window = 0;
  std::uint32_t callback_message = 0;
  PictureId picture = kNoPicture;
  std::string picture_name;  // file name without folder; empty without a picture
  std::string tip;
};

class MemoryShell : public Shell {
 public:
  MemoryShell(World& world, Disk& disk, MemoryProcesses& processes);

  int Open(std::string_view file, std::string_view arguments, std::string_view folder,
           WindowShow show) override;
  StartResult Start(ShellVerb verb, std::string_view file, std::string_view arguments,
                    std::string_view folder, WindowShow show) override;
  PictureId LoadPicture(std::string_view path) override;
  bool AddIcon(std::uintptr_t window, std::uint32_t callback_message, PictureId picture,
               std::string_view tip) override;
  bool SetIconPicture(PictureId picture) override;
  bool SetIconTip(std::string_view tip) override;
  bool RemoveIcon() override;
  std::string FindFolder(KnownFolder which) override;
  void ShowStopBox(std::string_view text, std::string_view caption) override;

  // Where a known folder lies; "": the system has none.
  void SetFolder(KnownFolder which, std::string_view path) { folders_[which] = path; }
  // The icon as people see it; nothing when it is not in the notification area.
  const std::optional<Icon>& icon() const { return icon_; }
  // Without the shell (not there yet at logon) every icon call fails and icons are gone.
  void SetPresent(bool present);
  bool present() const { return present_; }
  // Whether documents with this extension ("htm", without a dot) have a program.
  void SetAssociated(std::string_view extension, bool associated);
  // The user refuses to run programs with more rights.
  void RefuseElevation(bool refused) { refuses_elevation_ = refused; }
  // Files, documents and pages opened or started so far by the agent, in order.
  const std::vector<std::string>& opened() const { return opened_; }

 private:
  // What starting something gives: the shell's answer, and the process when there is one.
  struct Started {
    int answer = 0;
    ProcessId process = 0;
  };
  Started Launch(std::string_view file, std::string_view arguments, std::string_view folder,
                 WindowShow show);
  std::string FindProgram(std::string_view file);
  std::string PictureName(PictureId picture) const;
  bool NoteIcon(bool done, std::string text);

  World& world_;
  Disk& disk_;
  MemoryProcesses& processes_;
  bool present_ = true;
  bool refuses_elevation_ = false;
  std::optional<Icon> icon_;
  std::map<std::string, PictureId, IgnoreCaseLess> pictures_;
  std::map<KnownFolder, std::string> folders_;
  std::set<std::string, IgnoreCaseLess> associated_;
  std::vector<std::string> opened_;
};

}  // namespace platform::memory
