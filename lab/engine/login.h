// What the main program's login leaves behind: a user's name, folder, profile and registry words.
#pragma once

#include <string_view>

#include "lab/engine/places.h"
#include "platform/registry.h"

namespace lab {

// Logs in a user who is no new one, making the folder where it is missing. Other values of the
// profile stay.
void LogIn(const Ports& ports, platform::Registry& registry, const Places& places,
           std::string_view user);

// A schedule with one daily job of the default set, first due at `start`.
void PutDailySchedule(const Ports& ports, const Places& places, std::string_view user,
                      const platform::LocalTime& start);

}  // namespace lab
