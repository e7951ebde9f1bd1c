#include "schedule/default_files.h"

#include <algorithm>
#include <array>
#include <vector>

#include "schedule/line_file.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"

namespace schedule {
namespace {

using platform::KnownFolder;

constexpr std::string_view kFolderLibrary = "GetMailPaths.dll";
constexpr std::int16_t kThisProduct = 2;

constexpr std::string_view kDesktop = "DesktopPath";
constexpr std::string_view kDocuments = "MyDocumentsPath";
constexpr std::string_view kMusic = "MyMusicPath";
constexpr std::string_view kPictures = "MyPicturesPath";
constexpr std::string_view kVideos = "MyVideosPath";
constexpr std::string_view kFavourites = "MyFavouritesPath";

constexpr std::array kFolders = {
    DefaultFolder{"OutlookExpPath", "GetAutoOutlkExpPath"},
    DefaultFolder{"MSOutlkPath", "GetAutoMSOutlkPath"},
    DefaultFolder{"YahooPath", "GetYahooPath"},
    DefaultFolder{"MSNPath", "GetMSNPath"},
    DefaultFolder{kDesktop, "GetDesktopPath"},
    DefaultFolder{kDocuments, "GetMyDocumentsPath"},
    DefaultFolder{kMusic, "GetMyMusicPath"},
    DefaultFolder{kPictures, "GetMyPicturesPath"},
    DefaultFolder{kVideos, "GetMyVideosPath"},
    DefaultFolder{kFavourites, "GetMyFavouritesPath"},
    DefaultFolder{"OutlkExpAddrBookPath", "GetOutlkExpAddrBookPath"},
    DefaultFolder{"MozillaPath", "GetMozillaPath"},
};

struct SystemFolder {
  std::string_view key;
  KnownFolder folder;
};

// What the system knows without the library.
constexpr std::array kSystemFolders = {
    SystemFolder{kDesktop, KnownFolder::kDesktop},
    SystemFolder{kDocuments, KnownFolder::kDocuments},
    SystemFolder{kMusic, KnownFolder::kMusic},
    SystemFolder{kPictures, KnownFolder::kPictures},
    SystemFolder{kVideos, KnownFolder::kVideos},
    SystemFolder{kFavourites, KnownFolder::kFavourites},
};

constexpr std::array kListed = {kDocuments, kDesktop};
constexpr std::array kListedByThisProduct = {kMusic, kVideos, kPictures};

}  // namespace

std::span<const DefaultFolder> DefaultFolders() {
  return kFolders;
}

DefaultFiles::DefaultFiles(platform::Platform& machine, const shared::AgentState& state)
    : machine_(machine), state_(state) {}

void DefaultFiles::Fill() {
  for (const DefaultFolder& folder : kFolders) Find(folder);
}

std::string DefaultFiles::ReadMyDocPathDefaultFile(std::string_view key) {
  return machine_.profile_files.ReadText(IniPath(), shared::sections::kAutoFilePaths, key);
}

bool DefaultFiles::WriteFolderList() {
  std::vector<std::string> lines;
  const auto add = [&](std::span<const std::string_view> keys) {
    for (const std::string_view key : keys) {
      std::string folder = FolderOf(key);
      if (!folder.empty()) lines.push_back(std::move(folder));
    }
  };
  add(kListed);
  if (state_.ProductNumber == kThisProduct) add(kListedByThisProduct);
  return WriteLines(machine_.files,
                    shared::InCommonFolder(state_, shared::files::kBackupFolderList), lines);
}

void DefaultFiles::Find(const DefaultFolder& folder) {
  if (!ReadMyDocPathDefaultFile(folder.key).empty()) return;
  const std::string ini = IniPath();
  machine_.libraries.CallWithText(shared::InInstallFolder(state_, kFolderLibrary), folder.function,
                                  ini);
  if (!ReadMyDocPathDefaultFile(folder.key).empty()) return;
  const auto known = std::ranges::find(kSystemFolders, folder.key, &SystemFolder::key);
  if (known == kSystemFolders.end()) return;
  const std::string path = machine_.shell.FindFolder(known->folder);
  if (path.empty()) return;
  machine_.profile_files.WriteText(ini, shared::sections::kAutoFilePaths, folder.key, path + "\\");
}

std::string DefaultFiles::FolderOf(std::string_view key) {
  std::string folder = ReadMyDocPathDefaultFile(key);
  if (!folder.empty() && !folder.ends_with('\\')) folder += '\\';
  return folder;
}

std::string DefaultFiles::IniPath() const {
  return shared::InCommonFolder(state_, shared::files::kSimpleAutoPathIni);
}

}  // namespace schedule
