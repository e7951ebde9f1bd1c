#include "bench/recording_platform.h"

namespace bench {

using platform::Clock;
using platform::Events;
using platform::Files;
using platform::Libraries;
using platform::Locale;
using platform::ProfileFiles;
using platform::Registry;

bool RecordedFiles::Exists(std::string_view path) {
  return recorder_.Pass(files_, &Files::Exists, path);
}

bool RecordedFiles::FolderExists(std::string_view path) {
  return recorder_.Pass(files_, &Files::FolderExists, path);
}

std::optional<std::string> RecordedFiles::Read(std::string_view path, std::size_t limit) {
  return recorder_.Pass(files_, &Files::Read, path, limit);
}

bool RecordedFiles::Replace(std::string_view path, std::string_view bytes) {
  return recorder_.Pass(files_, &Files::Replace, path, bytes);
}

bool RecordedFiles::AppendUtf16Line(std::string_view path, std::string_view line) {
  return recorder_.Pass(files_, &Files::AppendUtf16Line, path, line);
}

std::optional<std::uint64_t> RecordedFiles::Size(std::string_view path) {
  return recorder_.Pass(files_, &Files::Size, path);
}

bool RecordedFiles::Remove(std::string_view path) {
  return recorder_.Pass(files_, &Files::Remove, path);
}

bool RecordedFiles::Copy(std::string_view from, std::string_view to) {
  return recorder_.Pass(files_, &Files::Copy, from, to);
}

bool RecordedFiles::MakeFolder(std::string_view path) {
  return recorder_.Pass(files_, &Files::MakeFolder, path);
}

bool RecordedFiles::RemoveFolder(std::string_view path) {
  return recorder_.Pass(files_, &Files::RemoveFolder, path);
}

std::vector<platform::FileEntry> RecordedFiles::List(std::string_view folder,
                                                     std::string_view pattern) {
  return recorder_.Pass(files_, &Files::List, folder, pattern);
}

std::uint32_t RecordedFiles::ChangeDirectory(std::string_view folder) {
  return recorder_.Pass(files_, &Files::ChangeDirectory, folder);
}

std::string RecordedProfileFiles::ReadText(std::string_view file, std::string_view section,
                                           std::string_view key, std::size_t buffer) {
  return recorder_.Pass(files_, &ProfileFiles::ReadText, file, section, key, buffer);
}

std::int32_t RecordedProfileFiles::ReadInt(std::string_view file, std::string_view section,
                                           std::string_view key) {
  return recorder_.Pass(files_, &ProfileFiles::ReadInt, file, section, key);
}

bool RecordedProfileFiles::WriteText(std::string_view file, std::string_view section,
                                     std::string_view key, std::string_view value) {
  return recorder_.Pass(files_, &ProfileFiles::WriteText, file, section, key, value);
}

platform::RegistryResult RecordedRegistry::Read(platform::Hive hive, std::string_view key,
                                                std::string_view name, std::size_t buffer,
                                                platform::RegistryAccess access) {
  return recorder_.Pass(registry_, &Registry::Read, hive, key, name, buffer, access);
}

std::uint32_t RecordedRegistry::CreateKey(platform::Hive hive, std::string_view key) {
  return recorder_.Pass(registry_, &Registry::CreateKey, hive, key);
}

std::uint32_t RecordedRegistry::Write(platform::Hive hive, std::string_view key,
                                      std::string_view name, const platform::RegistryValue& value) {
  return recorder_.Pass(registry_, &Registry::Write, hive, key, name, value);
}

std::uint32_t RecordedRegistry::Flush(platform::Hive hive, std::string_view key) {
  return recorder_.Pass(registry_, &Registry::Flush, hive, key);
}

platform::LocalTime RecordedClock::Now() {
  return recorder_.Pass(clock_, &Clock::Now);
}

std::uint64_t RecordedClock::Milliseconds() {
  return recorder_.Pass(clock_, &Clock::Milliseconds);
}

void RecordedClock::Sleep(std::uint32_t milliseconds) {
  recorder_.Pass(clock_, &Clock::Sleep, milliseconds);
}

void RecordedEvents::Pump() {
  recorder_.Pass(events_, &Events::Pump);
}

bool RecordedEvents::HasQuit() {
  return recorder_.Pass(events_, &Events::HasQuit);
}

platform::WaitResult RecordedEvents::WaitForProcess(platform::ProcessHandle process,
                                                    std::uint32_t milliseconds) {
  return recorder_.Pass(events_, &Events::WaitForProcess, process, milliseconds);
}

std::string RecordedLocale::Item(std::uint32_t item) {
  return recorder_.Pass(locale_, &Locale::Item, item);
}

std::uint32_t RecordedLocale::AnsiCodePage() {
  return recorder_.Pass(locale_, &Locale::AnsiCodePage);
}

std::u16string RecordedLocale::ToWide(std::string_view text) {
  return recorder_.Pass(locale_, &Locale::ToWide, text);
}

std::string RecordedLocale::FromWide(std::u16string_view text) {
  return recorder_.Pass(locale_, &Locale::FromWide, text);
}

std::string RecordedLocale::SystemErrorText(std::uint32_t error) {
  return recorder_.Pass(locale_, &Locale::SystemErrorText, error);
}

std::string RecordedLibraries::ReadString(std::string_view path, std::uint32_t id) {
  return recorder_.Pass(libraries_, &Libraries::ReadString, path, id);
}

std::optional<std::int32_t> RecordedLibraries::Call(std::string_view path,
                                                    std::string_view function,
                                                    std::int32_t argument) {
  return recorder_.Pass(libraries_, &Libraries::Call, path, function, argument);
}

bool RecordedLibraries::CallWithText(std::string_view path, std::string_view function,
                                     std::string_view text) {
  return recorder_.Pass(libraries_, &Libraries::CallWithText, path, function, text);
}

RecordingPlatform::RecordingPlatform(platform::Platform& machine, Recorder& recorder)
    : files_(machine.files, recorder),
      profile_files_(machine.profile_files, recorder),
      registry_(machine.registry, recorder),
      clock_(machine.clock, recorder),
      events_(machine.events, recorder),
      locale_(machine.locale, recorder),
      libraries_(machine.libraries, recorder),
      platform_{.files = files_,
                .profile_files = profile_files_,
                .registry = registry_,
                .processes = machine.processes,
                .services = machine.services,
                .shell = machine.shell,
                .other_windows = machine.other_windows,
                .clock = clock_,
                .events = events_,
                .power = machine.power,
                .locale = locale_,
                .libraries = libraries_,
                .random = machine.random,
                .internet = machine.internet} {}

}  // namespace bench
