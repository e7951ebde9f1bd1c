#include "lab/engine/background_model.h"

#include <utility>

#include "lab/engine/schedule_file.h"
#include "shared/file_names.h"
#include "shared/keys.h"

namespace lab {
namespace {

constexpr std::uint32_t kPeriod = 1000;  // milliseconds

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
  return Readable(ports_.profile_files.ReadText(places_.Profile(user), shared::sections::kTolvex,
                                                Stored(shared::keys::kScheduleDisable))) == "TRUE";
}

}  // namespace lab
