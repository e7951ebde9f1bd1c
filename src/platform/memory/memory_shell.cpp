#include "platform/memory/memory_shell.h"

#include <algorithm>
#include <utility>

namespace platform::memory {
namespace {

constexpr int kOpened = 42;
constexpr int kFileNotFound = 2;
constexpr std::uint32_t kErrorNoAssociation = 1155;
constexpr std::uint32_t kErrorCancelled = 1223;
constexpr std::string_view kIconHeader("\0\0\1\0", 4);
constexpr std::string_view kCommandProcessor = "C:\\Windows\\System32\\cmd.exe";
constexpr std::string_view kSearched[] = {"C:\\Windows\\System32\\", "C:\\Windows\\"};

std::string_view ExtensionOf(std::string_view path) {
  const std::string_view name = NameOfPath(path);
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string_view{} : name.substr(dot + 1);
}

bool IsOneOf(std::string_view extension, std::initializer_list<std::string_view> list) {
  return std::any_of(list.begin(), list.end(),
                     [&](std::string_view item) { return EqualIgnoreCase(item, extension); });
}

bool IsAddress(std::string_view file) {
  return file.find("://") != std::string_view::npos || file.starts_with("mailto:");
}

std::string CommandLine(std::string_view file, std::string_view arguments) {
  return std::string(file) + (arguments.empty() ? "" : " " + std::string(arguments));
}

std::map<KnownFolder, std::string> StandardFolders() {
  const std::string home = "C:\\Users\\user\\";
  return {
      {KnownFolder::kDesktop, home + "Desktop"},
      {KnownFolder::kDocuments, home + "Documents"},
      {KnownFolder::kMusic, home + "Music"},
      {KnownFolder::kPictures, home + "Pictures"},
      {KnownFolder::kVideos, home + "Videos"},
      {KnownFolder::kFavourites, home + "Favorites"},
      {KnownFolder::kCommonFavourites, "C:\\Users\\Public\\Favorites"},
      {KnownFolder::kInternetCache, home + "AppData\\Local\\INetCache"},
      {KnownFolder::kCookies, home + "AppData\\Local\\INetCookies"},
      {KnownFolder::kTemporary, home + "AppData\\Local\\Temp"},
  };
}

}  // namespace

MemoryShell::MemoryShell(World& world, Disk& disk, MemoryProcesses& processes)
    : world_(world),
      disk_(disk),
      processes_(processes),
      folders_(StandardFolders()),
      associated_{"txt", "htm", "html", "chm", "hlp", "ini", "log", "url"} {
  processes_.WhenEnded([this](ProcessId id) {
    if (id == processes_.own_id()) icon_.reset();
  });
}

int MemoryShell::Open(std::string_view file, std::string_view arguments, std::string_view folder,
                      WindowShow show) {
  const bool fails = world_.gate.Fails("shell.Open", file);
  const Started started = fails ? Started{kFileNotFound, 0} : Launch(file, arguments, folder, show);
  const bool opened = started.answer > 32;
  world_.Note("shell", "open " + CommandLine(file, arguments) +
                           (opened ? "" : " failed " + std::to_string(started.answer)));
  if (opened && world_.timeline.agent_acts()) opened_.emplace_back(file);
  return started.answer;
}

StartResult MemoryShell::Start(ShellVerb verb, std::string_view file, std::string_view arguments,
                               std::string_view folder, WindowShow show) {
  StartResult result;
  if (world_.gate.Fails("shell.Start", file)) {
    result.error = kFileNotFound;
  } else if (verb == ShellVerb::kRunAs && refuses_elevation_) {
    result.error = kErrorCancelled;
  } else {
    const Started started = Launch(file, arguments, folder, show);
    if (started.process != 0) result.handle = processes_.HandleOf(started.process);
    if (started.answer == kShellNoAssociation) {
      result.error = kErrorNoAssociation;
    } else if (started.answer <= 32) {
      result.error = static_cast<std::uint32_t>(started.answer);
    }
  }
  world_.Note("shell", "start " + CommandLine(file, arguments) +
                           (result.error == 0 ? "" : " failed " + std::to_string(result.error)));
  if (result.error == 0 && world_.timeline.agent_acts()) opened_.emplace_back(file);
  return result;
}

PictureId MemoryShell::LoadPicture(std::string_view path) {
  if (world_.gate.Fails("shell.LoadPicture", path)) return kNoPicture;
  const std::string full = disk_.Normalise(path);
  const auto known = pictures_.find(full);
  if (known != pictures_.end()) return known->second;
  const DiskNode* node = disk_.FindReadable(full);
  if (node == nullptr || !node->bytes.starts_with(kIconHeader)) return kNoPicture;
  const auto picture = static_cast<PictureId>(pictures_.size() + 1);
  pictures_.emplace(node->path, picture);
  return picture;
}

bool MemoryShell::AddIcon(std::uintptr_t window, std::uint32_t callback_message, PictureId picture,
                          std::string_view tip) {
  const bool done = !world_.gate.Fails("shell.AddIcon", tip) && present_ && !icon_;
  const std::string name = PictureName(picture);
  tip = tip.substr(0, kMostTipCharacters);
  if (done) icon_ = Icon{window, callback_message, picture, name, std::string(tip)};
  return NoteIcon(done, "add " + name + " " + std::string(tip));
}

bool MemoryShell::SetIconPicture(PictureId picture) {
  const bool done = !world_.gate.Fails("shell.SetIconPicture") && icon_.has_value();
  const std::string name = PictureName(picture);
  if (done) {
    icon_->picture = picture;
    icon_->picture_name = name;
  }
  return NoteIcon(done, "picture " + name);
}

bool MemoryShell::SetIconTip(std::string_view tip) {
  const bool done = !world_.gate.Fails("shell.SetIconTip", tip) && icon_.has_value();
  tip = tip.substr(0, kMostTipCharacters);
  if (done) icon_->tip = tip;
  return NoteIcon(done, "tip " + std::string(tip));
}

bool MemoryShell::RemoveIcon() {
  const bool done = !world_.gate.Fails("shell.RemoveIcon") && icon_.has_value();
  if (done) icon_.reset();
  return NoteIcon(done, "remove");
}

std::string MemoryShell::FindFolder(KnownFolder which) {
  if (world_.gate.Fails("shell.FindFolder")) return {};
  return folders_[which];
}

void MemoryShell::ShowStopBox(std::string_view text, std::string_view caption) {
  if (world_.gate.Fails("shell.ShowStopBox", text)) return;
  world_.Note("box", "stop " + std::string(caption) + ": " + std::string(text));
}

void MemoryShell::SetPresent(bool present) {
  present_ = present;
  if (!present) icon_.reset();
}

void MemoryShell::SetAssociated(std::string_view extension, bool associated) {
  if (associated) {
    associated_.insert(std::string(extension));
  } else if (const auto found = associated_.find(extension); found != associated_.end()) {
    associated_.erase(found);
  }
}

MemoryShell::Started MemoryShell::Launch(std::string_view file, std::string_view arguments,
                                         std::string_view folder, WindowShow show) {
  if (IsAddress(file) || disk_.IsFolder(file)) return {kOpened, 0};
  const std::string path = FindProgram(file);
  if (path.empty()) return {kFileNotFound, 0};
  const platform::memory::Launch launch{0, path, std::string(arguments), std::string(folder), show};
  const std::string_view extension = ExtensionOf(path);
  if (IsOneOf(extension, {"exe", "com"})) return {kOpened, processes_.StartBy(path, launch)};
  if (IsOneOf(extension, {"bat", "cmd"})) {
    return {kOpened, processes_.StartBy(kCommandProcessor, launch)};
  }
  return {associated_.find(extension) != associated_.end() ? kOpened : kShellNoAssociation, 0};
}

// The full path of what is to be opened: as given, or of a bare name in the folders of the system;
// "exe" is added where no file of the name is there. Empty when nothing is found.
std::string MemoryShell::FindProgram(std::string_view file) {
  std::vector<std::string> candidates{std::string(file), std::string(file) + ".exe"};
  if (file.find('\\') == std::string_view::npos) {
    for (const std::string_view searched : kSearched) {
      candidates.push_back(std::string(searched) + std::string(file));
      candidates.push_back(std::string(searched) + std::string(file) + ".exe");
    }
  }
  for (const std::string& candidate : candidates) {
    if (disk_.FindFile(candidate) != nullptr) return disk_.Normalise(candidate);
  }
  return processes_.IsInstalled(file) ? std::string(file) : std::string();
}

std::string MemoryShell::PictureName(PictureId picture) const {
  for (const auto& [path, id] : pictures_) {
    if (id == picture) return std::string(NameOfPath(path));
  }
  return {};
}

bool MemoryShell::NoteIcon(bool done, std::string text) {
  world_.Note("icon", done ? std::move(text) : std::move(text) + " failed");
  return done;
}

}  // namespace platform::memory
