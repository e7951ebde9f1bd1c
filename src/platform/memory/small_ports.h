// The ports of the machine in memory that need no more than a few lines: services, clock, events,
// power, locale, libraries, chance, internet.
//
// Gate names "<port>.<Function>", about the name asked for. Journal: categories "power" ("state
// <flags in hex>"), "library" ("call <file>.<function>(<argument>)"), "exit" ("quit") and
// "internet"
// ("refresh settings").
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/events.h"
#include "platform/internet.h"
#include "platform/libraries.h"
#include "platform/locale.h"
#include "platform/memory/disk.h"
#include "platform/memory/memory_processes.h"
#include "platform/memory/world.h"
#include "platform/power.h"
#include "platform/random.h"
#include "platform/services.h"

namespace platform::memory {

class MemoryServices : public Services {
 public:
  explicit MemoryServices(World& world) : world_(world) {}

  ServiceState State(std::string_view name, ServiceAccess access) override;

  // kUnknown takes the service off the machine.
  void Set(std::string_view name, ServiceState state);
  ServiceState Get(std::string_view name) const;
  // The user may read, but asking for all rights fails.
  void DenyAll(bool denied) { denies_all_ = denied; }

 private:
  World& world_;
  std::map<std::string, ServiceState, IgnoreCaseLess> services_;
  bool denies_all_ = false;
};

class MemoryClock : public Clock {
 public:
  explicit MemoryClock(World& world) : world_(world) {}

  LocalTime Now() override;
  std::uint64_t Milliseconds() override;
  void Sleep(std::uint32_t milliseconds) override;

 private:
  World& world_;
};

class MemoryEvents : public Events {
 public:
  MemoryEvents(World& world, MemoryProcesses& processes) : world_(world), processes_(processes) {}

  TimerId StartTimer(std::uint32_t period, std::function<void()> tick) override;
  void StopTimer(TimerId timer) override;
  void Pump() override;
  void RunUntil(const std::function<bool()>& done) override;
  void Quit() override;
  bool HasQuit() override;
  WaitResult WaitForProcess(ProcessHandle process, std::uint32_t milliseconds) override;

 private:
  World& world_;
  MemoryProcesses& processes_;
};

class MemoryPower : public Power {
 public:
  explicit MemoryPower(World& world) : world_(world) {}

  bool SetThreadExecutionState(std::uint32_t flags) override;

  // The flags of the last call that held; 0 at first.
  std::uint32_t state() const { return state_; }

 private:
  World& world_;
  std::uint32_t state_ = 0;
};

class MemoryLocale : public Locale {
 public:
  explicit MemoryLocale(World& world) : world_(world) {}

  std::string Item(std::uint32_t item) override;
  std::uint32_t AnsiCodePage() override;
  std::u16string ToWide(std::string_view text) override;
  std::string FromWide(std::u16string_view text) override;
  std::string SystemErrorText(std::uint32_t error) override;

  void SetItem(std::uint32_t item, std::string_view text) { items_[item] = text; }
  void SetAnsiCodePage(std::uint32_t code_page) { code_page_ = code_page; }

 private:
  World& world_;
  std::map<std::uint32_t, std::string> items_{{kLocaleDecimalSeparator, "."},
                                              {kLocaleShortDate, "M/d/yyyy"},
                                              {kLocaleTimeFormat, "h:mm:ss tt"}};
  std::uint32_t code_page_ = 1252;
};

class MemoryLibraries : public Libraries {
 public:
  using Function = std::function<std::int32_t(std::int32_t)>;
  using TextFunction = std::function<void(std::string_view)>;

  MemoryLibraries(World& world, Disk& disk) : world_(world), disk_(disk) {}

  std::string ReadString(std::string_view path, std::uint32_t id) override;
  std::optional<std::int32_t> Call(std::string_view path, std::string_view function,
                                   std::int32_t argument) override;
  bool CallWithText(std::string_view path, std::string_view function,
                    std::string_view text) override;

  // They make the file where it is missing; a library whose file is deleted cannot be loaded.
  void PutString(std::string_view path, std::uint32_t id, std::string_view text);
  void PutFunction(std::string_view path, std::string_view name, Function function);
  void PutTextFunction(std::string_view path, std::string_view name, TextFunction function);

 private:
  struct Library {
    std::map<std::uint32_t, std::string> strings;
    std::map<std::string, Function, std::less<>> functions;
    std::map<std::string, TextFunction, std::less<>> text_functions;
  };
  const Library* Load(std::string_view path);
  Library& Make(std::string_view path);

  World& world_;
  Disk& disk_;
  std::map<std::string, Library, IgnoreCaseLess> libraries_;
};

class MemoryInternet : public Internet {
 public:
  explicit MemoryInternet(World& world) : world_(world) {}

  bool RefreshSettings() override;

 private:
  World& world_;
};

class MemoryRandom : public Random {
 public:
  MemoryRandom(World& world, std::uint64_t seed) : world_(world), seed_(seed), state_(seed) {}

  double Next() override;

  // The next draws, before chance goes on.
  void Script(std::initializer_list<double> draws) {
    scripted_.insert(scripted_.end(), draws.begin(), draws.end());
  }
  std::uint64_t seed() const { return seed_; }

 private:
  World& world_;
  std::uint64_t seed_;
  std::uint64_t state_;
  std::deque<double> scripted_;
};

}  // namespace platform::memory
