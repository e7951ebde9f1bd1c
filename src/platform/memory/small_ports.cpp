#include "platform/memory/small_ports.h"

#include <utility>

#include "platform/memory/code_page.h"

namespace platform::memory {
namespace {

struct ErrorText {
  std::uint32_t error;
  std::string_view text;
};

constexpr ErrorText kErrorTexts[] = {
    {0, "Success."},
    {2, "File not found."},
    {3, "Path not found."},
    {5, "Access denied."},
    {6, "Invalid handle."},
    {8, "Not enough memory."},
    {32, "Sharing violation."},
    {87, "Invalid parameter."},
    {112, "Disk full."},
    {183, "Cannot create file.  File already exists."},
    {234, "More data available."},
    {1223, "Cancelled."},
};

std::string Hex(std::uint32_t number) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text;
  for (int shift = 28; shift >= 0; shift -= 4) text += kDigits[number >> shift & 0xF];
  return text;
}

}  // namespace

ServiceState MemoryServices::State(std::string_view name, ServiceAccess access) {
  if (world_.gate.Fails("services.State", name)) return ServiceState::kUnknown;
  if (access == ServiceAccess::kAll && denies_all_) return ServiceState::kUnknown;
  return Get(name);
}

void MemoryServices::Set(std::string_view name, ServiceState state) {
  services_.insert_or_assign(std::string(name), state);
}

ServiceState MemoryServices::Get(std::string_view name) const {
  const auto found = services_.find(name);
  return found == services_.end() ? ServiceState::kUnknown : found->second;
}

LocalTime MemoryClock::Now() {
  world_.gate.Fails("clock.Now");
  return world_.timeline.LocalNow();
}

std::uint64_t MemoryClock::Milliseconds() {
  world_.gate.Fails("clock.Milliseconds");
  return world_.timeline.now();
}

void MemoryClock::Sleep(std::uint32_t milliseconds) {
  world_.gate.Fails("clock.Sleep");
  world_.timeline.Sleep(milliseconds);
}

TimerId MemoryEvents::StartTimer(std::uint32_t period, std::function<void()> tick) {
  if (world_.gate.Fails("events.StartTimer")) return kNoTimer;
  return world_.timeline.StartTimer(period, std::move(tick));
}

void MemoryEvents::StopTimer(TimerId timer) {
  world_.gate.Fails("events.StopTimer");
  world_.timeline.StopTimer(timer);
}

void MemoryEvents::Pump() {
  world_.gate.Fails("events.Pump");
  world_.timeline.Pump();
}

void MemoryEvents::RunUntil(const std::function<bool()>& done) {
  world_.gate.Fails("events.RunUntil");
  world_.timeline.RunUntil(done);
}

void MemoryEvents::Quit() {
  world_.gate.Fails("events.Quit");
  world_.Note("exit", "quit");
  world_.timeline.Quit();
}

bool MemoryEvents::HasQuit() {
  world_.gate.Fails("events.HasQuit");
  return world_.timeline.HasQuit();
}

WaitResult MemoryEvents::WaitForProcess(ProcessHandle process, std::uint32_t milliseconds) {
  if (world_.gate.Fails("events.WaitForProcess")) return WaitResult::kFailed;
  const ProcessId id = processes_.OfHandle(process);
  if (id == 0 && process != kNoProcess) return WaitResult::kFailed;
  const bool ended = world_.timeline.Wait(
      milliseconds, [this, id] { return id != 0 && !processes_.Find(id)->running; });
  return ended ? WaitResult::kSignalled : WaitResult::kTimedOut;
}

bool MemoryPower::SetThreadExecutionState(std::uint32_t flags) {
  const bool done = !world_.gate.Fails("power.SetThreadExecutionState");
  if (done) state_ = flags;
  world_.Note("power", "state " + Hex(flags) + (done ? "" : " failed"));
  return done;
}

std::string MemoryLocale::Item(std::uint32_t item) {
  if (world_.gate.Fails("locale.Item")) return {};
  const auto found = items_.find(item);
  return found == items_.end() ? std::string() : found->second;
}

std::uint32_t MemoryLocale::AnsiCodePage() {
  world_.gate.Fails("locale.AnsiCodePage");
  return code_page_;
}

std::u16string MemoryLocale::ToWide(std::string_view text) {
  if (world_.gate.Fails("locale.ToWide")) return {};
  return WideOf(text);
}

std::string MemoryLocale::FromWide(std::u16string_view text) {
  if (world_.gate.Fails("locale.FromWide")) return {};
  return AnsiOf(text);
}

std::string MemoryLocale::SystemErrorText(std::uint32_t error) {
  if (world_.gate.Fails("locale.SystemErrorText")) return {};
  for (const ErrorText& entry : kErrorTexts) {
    if (entry.error == error) return std::string(entry.text);
  }
  return {};
}

std::string MemoryLibraries::ReadString(std::string_view path, std::uint32_t id) {
  if (world_.gate.Fails("libraries.ReadString", path)) return {};
  const Library* library = Load(path);
  if (library == nullptr) return {};
  const auto found = library->strings.find(id);
  return found == library->strings.end() ? std::string() : found->second;
}

std::optional<std::int32_t> MemoryLibraries::Call(std::string_view path, std::string_view function,
                                                  std::int32_t argument) {
  if (world_.gate.Fails("libraries.Call", function)) return std::nullopt;
  const Library* library = Load(path);
  if (library == nullptr) return std::nullopt;
  const auto found = library->functions.find(function);
  if (found == library->functions.end()) return std::nullopt;
  world_.Note("library", "call " + std::string(NameOfPath(path)) + "." + std::string(function) +
                             "(" + std::to_string(argument) + ")");
  return found->second(argument);
}

bool MemoryLibraries::CallWithText(std::string_view path, std::string_view function,
                                   std::string_view text) {
  if (world_.gate.Fails("libraries.CallWithText", function)) return false;
  const Library* library = Load(path);
  if (library == nullptr || text.size() >= kTextBuffer) return false;
  const auto found = library->text_functions.find(function);
  if (found == library->text_functions.end()) return false;
  world_.Note("library", "call " + std::string(NameOfPath(path)) + "." + std::string(function) +
                             "(" + std::string(text) + ")");
  // What the library does is not the agent's doing: it passes no gate.
  world_.timeline.ActAs(NameOfPath(path), [&] { found->second(text); });
  return true;
}

void MemoryLibraries::PutString(std::string_view path, std::uint32_t id, std::string_view text) {
  Make(path).strings.insert_or_assign(id, std::string(text));
}

void MemoryLibraries::PutFunction(std::string_view path, std::string_view name, Function function) {
  Make(path).functions.insert_or_assign(std::string(name), std::move(function));
}

void MemoryLibraries::PutTextFunction(std::string_view path, std::string_view name,
                                      TextFunction function) {
  Make(path).text_functions.insert_or_assign(std::string(name), std::move(function));
}

const MemoryLibraries::Library* MemoryLibraries::Load(std::string_view path) {
  // Nothing is searched for: the path must be full.
  if (path.find(":\\") != 1 && !path.starts_with("\\\\")) return nullptr;
  if (disk_.FindReadable(path) == nullptr) return nullptr;
  const auto found = libraries_.find(disk_.Normalise(path));
  return found == libraries_.end() ? nullptr : &found->second;
}

MemoryLibraries::Library& MemoryLibraries::Make(std::string_view path) {
  const std::string full = disk_.Normalise(path);
  disk_.MakeFolders(FolderOfPath(full));
  if (disk_.FindFile(full) == nullptr) disk_.SetContent(full, "MZ");
  return libraries_[full];
}

bool MemoryInternet::RefreshSettings() {
  if (world_.gate.Fails("internet.RefreshSettings")) return false;
  world_.Note("internet", "refresh settings");
  return true;
}

double MemoryRandom::Next() {
  world_.gate.Fails("random.Next");
  if (!scripted_.empty()) {
    const double draw = scripted_.front();
    scripted_.pop_front();
    return draw;
  }
  // One step of SplitMix64; the upper 53 bits make the fraction.
  std::uint64_t mixed = state_ += 0x9E3779B97F4A7C15;
  mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9;
  mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
  mixed ^= mixed >> 31;
  return static_cast<double>(mixed >> 11) * 0x1.0p-53;
}

}  // namespace platform::memory
