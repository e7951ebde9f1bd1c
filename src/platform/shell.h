// The shell: starting programs and documents, the notification icon, the few system boxes.
//
// One thread. The icon is one record for the whole life of the process.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

// What a started process is waited on by; kNoProcess when nothing was started.
using ProcessHandle = std::intptr_t;
inline constexpr ProcessHandle kNoProcess = -1;

enum class ShellVerb { kOpen, kRunAs };
enum class WindowShow { kHidden, kNormal };

// What ShellExecute answers when no program is associated; anything above 32 is success.
inline constexpr int kShellNoAssociation = 31;

// A picture loaded once and kept by the port; kNoPicture when it could not be loaded.
using PictureId = int;
inline constexpr PictureId kNoPicture = 0;

struct StartResult {
  ProcessHandle handle = kNoProcess;
  std::uint32_t error = 0;  // the system's last error, 0 on success
};

// Folders that the system knows by their meaning.
enum class KnownFolder {
  kDesktop,
  kDocuments,
  kMusic,
  kPictures,
  kVideos,
  kFavourites,
  kCommonFavourites,
  kInternetCache,
  kCookies,
  kTemporary,
};

class Shell {
 public:
  virtual ~Shell() = default;

  // Opens a program, batch file, document or page; `arguments` and `folder` may be empty. Returns
  // the shell's answer: above 32 is success, kShellNoAssociation has a meaning to callers.
  virtual int Open(std::string_view file, std::string_view arguments, std::string_view folder,
                   WindowShow show) = 0;

  // Starts a program and keeps its handle open until sixteen more were started with the same
  // `show`: a hidden program is one that is waited for, and what a person opens meanwhile does not
  // take its handle away.
  virtual StartResult Start(ShellVerb verb, std::string_view file, std::string_view arguments,
                            std::string_view folder, WindowShow show) = 0;

  // Loads an icon file for the notification area, once for each path: later calls give the same
  // number. A file that is missing or no icon gives kNoPicture and is looked for again by the next
  // call.
  virtual PictureId LoadPicture(std::string_view path) = 0;

  // Adds the notification icon of `window` (a top-level window of this process; its events arrive
  // there as `callback_message`). Returns false when the shell is not there (yet) or refuses.
  virtual bool AddIcon(std::uintptr_t window, std::uint32_t callback_message, PictureId picture,
                       std::string_view tip) = 0;

  // Changes the picture of the added icon. False when the shell refuses.
  virtual bool SetIconPicture(PictureId picture) = 0;

  // Changes its tip; more than kMostTipCharacters are cut. False when the shell refuses.
  virtual bool SetIconTip(std::string_view tip) = 0;
  static constexpr std::size_t kMostTipCharacters = 63;

  // Takes the icon out. False when it was not in.
  virtual bool RemoveIcon() = 0;

  // Full path of a folder of the logged-on user (kCommonFavourites: of all users), without a final
  // backslash; kTemporary in its long form. "" when the system has no such folder; the folder
  // itself need not be there.
  virtual std::string FindFolder(KnownFolder which) = 0;

  // The system's own box with a stop icon and "OK", for failures of the program itself. Waits for
  // the answer.
  virtual void ShowStopBox(std::string_view text, std::string_view caption) = 0;
};

}  // namespace platform
