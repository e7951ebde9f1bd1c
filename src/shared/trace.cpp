#include "shared/trace.h"

#include <cstdio>

#include "shared/file_names.h"
#include "shared/paths.h"
#include "shared/profile_store.h"

namespace shared {
namespace {

// The trace of the installation folder starts anew once it is larger.
constexpr std::uint64_t kInstallTraceCap = 2097152;

}  // namespace

Trace::Trace(platform::Platform& machine, AgentState& state) : machine_(machine), state_(state) {}

void Trace::WriteTrace(std::string_view text) {
  machine_.files.AppendUtf16Line(InUserFolder(state_, files::kTrayTrace), text);
}

void Trace::WriteStamped(std::string_view text) {
  WriteTrace(FormatStamp(machine_.clock.Now()).append(text));
}

void Trace::WriteSerTrace(std::string_view text) {
  ProfileStore(machine_, state_).RefreshCurrentUser();
  machine_.files.AppendUtf16Line(InUserFolder(state_, files::kSerTrace), text);
}

void Trace::WriteInstallTrace(std::string_view text) {
  const std::string path = InInstallFolder(state_, files::kTrayTrace);
  machine_.files.AppendUtf16Line(path,
                                 FormatStamp(machine_.clock.Now()).append(" : ").append(text));
  if (machine_.files.Size(path).value_or(0) > kInstallTraceCap) machine_.files.Remove(path);
}

void Trace::WriteGeneralMessage(std::string_view text) {
  const std::string blanks(42, ' ');
  const std::string rule(72, '-');
  for (const std::string_view line : {std::string_view(blanks), std::string_view(rule), text,
                                      std::string_view(rule), std::string_view(blanks)}) {
    WriteTrace(line);
  }
}

std::string FormatStamp(const platform::LocalTime& time) {
  char stamp[80];
  const int length = std::snprintf(stamp, sizeof stamp, "%02d-%02d-%04d %02d:%02d:%02d", time.month,
                                   time.day, time.year, time.hour, time.minute, time.second);
  return std::string(stamp, static_cast<std::size_t>(length));
}

}  // namespace shared
