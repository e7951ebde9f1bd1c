// A machine whose calls are noted by a recorder on their way to another machine.
//
// Only the ports that the measured work goes to are noted; calls of the others are left out, which
// makes a comparison with the noted calls stricter. No timer starts: what ticks is called by hand.
#pragma once

#include "bench/recorder.h"
#include "platform/platform.h"

namespace bench {

class RecordedFiles final : public platform::Files {
 public:
  RecordedFiles(platform::Files& files, Recorder& recorder) : files_(files), recorder_(recorder) {}

  bool Exists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  std::optional<std::string> Read(std::string_view path, std::size_t limit) override;
  bool Replace(std::string_view path, std::string_view bytes) override;
  bool AppendUtf16Line(std::string_view path, std::string_view line) override;
  std::optional<std::uint64_t> Size(std::string_view path) override;
  bool Remove(std::string_view path) override;
  bool Copy(std::string_view from, std::string_view to) override;
  bool MakeFolder(std::string_view path) override;
  bool RemoveFolder(std::string_view path) override;
  std::vector<platform::FileEntry> List(std::string_view folder, std::string_view pattern) override;
  std::uint32_t ChangeDirectory(std::string_view folder) override;

 private:
  platform::Files& files_;
  Recorder& recorder_;
};

class RecordedProfileFiles final : public platform::ProfileFiles {
 public:
  RecordedProfileFiles(platform::ProfileFiles& files, Recorder& recorder)
      : files_(files), recorder_(recorder) {}

  std::string ReadText(std::string_view file, std::string_view section, std::string_view key,
                       std::size_t buffer) override;
  std::int32_t ReadInt(std::string_view file, std::string_view section,
                       std::string_view key) override;
  bool WriteText(std::string_view file, std::string_view section, std::string_view key,
                 std::string_view value) override;

 private:
  platform::ProfileFiles& files_;
  Recorder& recorder_;
};

class RecordedRegistry final : public platform::Registry {
 public:
  RecordedRegistry(platform::Registry& registry, Recorder& recorder)
      : registry_(registry), recorder_(recorder) {}

  platform::RegistryResult Read(platform::Hive hive, std::string_view key, std::string_view name,
                                std::size_t buffer, platform::RegistryAccess access) override;
  std::uint32_t CreateKey(platform::Hive hive, std::string_view key) override;
  std::uint32_t Write(platform::Hive hive, std::string_view key, std::string_view name,
                      const platform::RegistryValue& value) override;
  std::uint32_t Flush(platform::Hive hive, std::string_view key) override;

 private:
  platform::Registry& registry_;
  Recorder& recorder_;
};

class RecordedClock final : public platform::Clock {
 public:
  RecordedClock(platform::Clock& clock, Recorder& recorder) : clock_(clock), recorder_(recorder) {}

  platform::LocalTime Now() override;
  std::uint64_t Milliseconds() override;
  void Sleep(std::uint32_t milliseconds) override;

 private:
  platform::Clock& clock_;
  Recorder& recorder_;
};

class RecordedEvents final : public platform::Events {
 public:
  RecordedEvents(platform::Events& events, Recorder& recorder)
      : events_(events), recorder_(recorder) {}

  platform::TimerId StartTimer(std::uint32_t, std::function<void()>) override {
    return platform::kNoTimer;
  }
  void StopTimer(platform::TimerId) override {}
  void Pump() override;
  void RunUntil(const std::function<bool()>& done) override { events_.RunUntil(done); }
  void Quit() override { events_.Quit(); }
  bool HasQuit() override;
  platform::WaitResult WaitForProcess(platform::ProcessHandle process,
                                      std::uint32_t milliseconds) override;

 private:
  platform::Events& events_;
  Recorder& recorder_;
};

class RecordedLocale final : public platform::Locale {
 public:
  RecordedLocale(platform::Locale& locale, Recorder& recorder)
      : locale_(locale), recorder_(recorder) {}

  std::string Item(std::uint32_t item) override;
  std::uint32_t AnsiCodePage() override;
  std::u16string ToWide(std::string_view text) override;
  std::string FromWide(std::u16string_view text) override;
  std::string SystemErrorText(std::uint32_t error) override;

 private:
  platform::Locale& locale_;
  Recorder& recorder_;
};

class RecordedLibraries final : public platform::Libraries {
 public:
  RecordedLibraries(platform::Libraries& libraries, Recorder& recorder)
      : libraries_(libraries), recorder_(recorder) {}

  std::string ReadString(std::string_view path, std::uint32_t id) override;
  std::optional<std::int32_t> Call(std::string_view path, std::string_view function,
                                   std::int32_t argument) override;
  bool CallWithText(std::string_view path, std::string_view function,
                    std::string_view text) override;

 private:
  platform::Libraries& libraries_;
  Recorder& recorder_;
};

class RecordingPlatform {
 public:
  RecordingPlatform(platform::Platform& machine, Recorder& recorder);
  RecordingPlatform(const RecordingPlatform&) = delete;
  RecordingPlatform& operator=(const RecordingPlatform&) = delete;

  platform::Platform& platform() { return platform_; }

 private:
  RecordedFiles files_;
  RecordedProfileFiles profile_files_;
  RecordedRegistry registry_;
  RecordedClock clock_;
  RecordedEvents events_;
  RecordedLocale locale_;
  RecordedLibraries libraries_;
  platform::Platform platform_;
};

}  // namespace bench
