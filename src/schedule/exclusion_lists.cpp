#include "schedule/exclusion_lists.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "schedule/line_file.h"
#include "shared/file_names.h"
#include "shared/paths.h"

namespace schedule {
namespace {

namespace files = shared::files;

constexpr std::string_view kInForce = "/1";

constexpr std::array kMadeAnew = {files::kBackupExcludeList, files::kUserExcludeFolder,
                                  files::kBackupExcludeFolder, files::kBackupExcludeFile};

constexpr std::array<std::string_view, 4> kFiles = {"pagefile.sys", "ntuser.dat", "hiberfil.sys",
                                                    "~outlook.pst.tmp"};

constexpr std::array<std::string_view, 3> kFolders = {"System Volume Information", "RECYCLER",
                                                      "$Recycle.Bin"};

constexpr std::array kTemporaryFolders = {
    platform::KnownFolder::kTemporary, platform::KnownFolder::kInternetCache,
    platform::KnownFolder::kCookies, platform::KnownFolder::kCommonFavourites};

// Adds the entries of those names that the list at `path` lacks, in force or not. A list that is
// there is asked for the last name first.
bool AddNames(platform::Files& disk, const std::string& path,
              std::span<const std::string_view> names) {
  const auto text = ReadIfThere(disk, path);
  if (!text) return false;
  std::vector<std::string> lines = LinesOf(*text);
  std::vector<std::string_view> order(names.begin(), names.end());
  if (disk.Exists(path)) std::rotate(order.begin(), order.end() - 1, order.end());
  for (const std::string_view name : order) {
    const std::string entry = std::string(name).append(kInForce);
    const bool listed = std::ranges::any_of(
        lines, [&](const std::string& line) { return line == entry || line == name; });
    if (!listed) lines.push_back(entry);
  }
  return WriteLines(disk, path, lines);
}

bool WriteTemporaryFolders(platform::Platform& machine, const std::string& path) {
  std::vector<std::string> lines;
  for (const platform::KnownFolder which : kTemporaryFolders) {
    const std::string folder = machine.shell.FindFolder(which);
    if (!folder.empty()) lines.push_back((folder + "\\*").append(kInForce));
  }
  return WriteLines(machine.files, path, lines);
}

}  // namespace

bool CreateDefaultExcludeFiles(platform::Platform& machine, const shared::AgentState& state) {
  const auto in_user_folder = [&](std::string_view name) {
    return shared::InUserFolder(state, name);
  };
  // 1.
  for (const std::string_view name : kMadeAnew) machine.files.Remove(in_user_folder(name));
  const std::string paths = in_user_folder(files::kBackupExcludeFilePath);
  if (!machine.files.Exists(paths) && !machine.files.Replace(paths, "")) return false;
  // 2.
  if (!AddNames(machine.files, in_user_folder(files::kBackupExcludeFile), kFiles)) return false;
  // 3.
  if (!WriteTemporaryFolders(machine, in_user_folder(files::kBackupExcludeList))) return false;
  // 4.
  return AddNames(machine.files, in_user_folder(files::kBackupExcludeFolder), kFolders);
}

}  // namespace schedule
