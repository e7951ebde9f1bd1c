// The folders that a new user backs up: found once, kept in SimpleAutoPath.ini of CommonFolder
// (section AUTOFILEPATHS), and listed in atbkupfolderlist.txt there.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace schedule {

// One folder of the ini and the function of GetMailPaths.dll that finds it.
struct DefaultFolder {
  std::string_view key;
  std::string_view function;
};

// All of them, in the order in which they are looked for.
std::span<const DefaultFolder> DefaultFolders();

class DefaultFiles {
 public:
  DefaultFiles(platform::Platform& machine, const shared::AgentState& state);

  // Finds every folder that the ini lacks: by GetMailPaths.dll of InstallFolder, which writes it
  // into the ini; else, where the system knows such a folder, by the system. What neither knows
  // stays out.
  void Fill();

  // The value of a key as it stands in the ini; "" when it is missing.
  std::string ReadMyDocPathDefaultFile(std::string_view key);

  // Writes the list: documents and desktop, and for this product music, videos and pictures, those
  // that are known. False, with the old list whole, when it cannot be written.
  bool WriteFolderList();

 private:
  void Find(const DefaultFolder& folder);
  // The folder of a key, closed by a backslash; "" when it is not known.
  std::string FolderOf(std::string_view key);
  std::string IniPath() const;

  platform::Platform& machine_;
  const shared::AgentState& state_;
};

}  // namespace schedule
