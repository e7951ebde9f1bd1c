#include "lab/engine/background_model.h"

#include <utility>

#include "lab/engine/schedule_file.h"
#include "shared/file_names.h"
#include "shared/keys.h"

namespace lab {
namespace {

constexpr std::uint32_t kPeriod = 1000;  // milliseconds

// The user's settings are stored with each character code, of key and value, raised by this.
constexpr int kProfileShift = 4;

std::string Shifted(std::string_view text, int by) {
  std::string result(text);
  for (char& c : result) c = static_cast<char>(c + by);
  return result;
}

}  // namespace

BackgroundModel::BackgroundModel(const Ports& ports, const Places& places, platform::Clock& clock,
                                 std::function<void()> start_engine)
    : ports_(ports), places_(places), clock_(clock), start_engine_(std::move(start_engine)) {}

std::uint32_t BackgroundModel::Step() {
  const std::string user = DefaultUser(ports_, places_);
  if (user.empty() || ScheduleDisabled(user)) return kPeriod;
  if (ports_.files.Exists(places_.InUserFolder(user, shared::files::kScheduleInfo))) return kPeriod;
  if (ScheduleFile(ports_, places_, user).Due(clock_.Now())) start_engine_();
  return kPeriod;
}

bool BackgroundModel::ScheduleDisabled(std::string_view user) const {
  const std::string stored =
      ports_.profile_files.ReadText(places_.Profile(user), shared::sections::kTolvex,
                                    Shifted(shared::keys::kScheduleDisable, kProfileShift));
  return Shifted(stored, -kProfileShift) == "TRUE";
}

}  // namespace lab
