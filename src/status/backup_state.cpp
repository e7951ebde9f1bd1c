#include "status/backup_state.h"

#include <string>

#include "shared/convert.h"
#include "shared/paths.h"
#include "shared/profile_store.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"

namespace status {

std::int16_t ReadJobStatus(platform::Platform& machine, shared::AgentState& state) {
  // 1.
  shared::ProfileStore(machine, state).RefreshCurrentUser();
  state.last_return_value = 0;
  // 2.
  if (!machine.files.Exists(shared::InUserFolder(state, kScheduleInfoFile))) return 0;
  // 3.
  ProgressChannel channel(machine, state);
  const std::int16_t status = shared::ToInt16(channel.ReadBackupStatus(kStatus)).value_or(0);
  if (auto result = shared::ToDouble(channel.ReadBackupStatus(kRetValue))) {
    state.last_return_value = *result;
  }
  // 4.
  return status;
}

}  // namespace status
