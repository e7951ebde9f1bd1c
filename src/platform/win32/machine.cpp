#include "platform/win32/machine.h"

namespace platform::win32 {

Machine::Machine()
    : platform_{.files = files_,
                .profile_files = profile_files_,
                .registry = registry_,
                .processes = processes_,
                .services = services_,
                .shell = shell_,
                .other_windows = other_windows_,
                .clock = clock_,
                .events = events_,
                .power = power_,
                .locale = locale_,
                .libraries = libraries_,
                .random = random_,
                .internet = internet_} {}

}  // namespace platform::win32
