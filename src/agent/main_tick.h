// The agent's heartbeat, every 3000 ms: turns what the other programs leave in the shared files
// into the icon's picture and into the acknowledgements that the engine waits for.
//
// All is derived anew from the files on each tick; between ticks only the flags of AgentState live.
// No job is started here. Several steps may set the picture: the last one wins, and it is shown at
// the end of the tick and before each pause within it, when the icon stands still for a while.
//
// Touches: QuotaExceeded.txt; `Paused`, `StatusWindow`, `Status` and `DLLStatus` of BackupStatus;
// TVVSSCommonStatus.txt and TVVSSCommonStatusDll.txt.
#pragma once

#include <cstdint>
#include <optional>

#include "agent/tray_icon.h"
#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"
#include "shared/profile_store.h"
#include "shared/registry_store.h"
#include "status/progress_channel.h"

namespace agent {

inline constexpr std::uint32_t kTrayTickPeriod = 3000;

// Job codes of AgentState::JobState that the tick itself gives a meaning.
inline constexpr std::int16_t kJobRunning = 1;
inline constexpr std::int16_t kJobEnded = 2;
// From here on: 10 and the code of continuous backup.
inline constexpr std::int16_t kContinuousBase = 10;
inline constexpr std::int16_t kContinuousRunning = 11;
inline constexpr std::int16_t kContinuousCancelled = 14;
inline constexpr std::int16_t kContinuousQuota = 16;
inline constexpr std::int16_t kContinuousLast = 20;

// JobState for a code of continuous backup: 1 to 10 have one.
std::optional<std::int16_t> ContinuousJobState(std::int16_t code);

// True for the codes of continuous backup that show a failure: all but running, cancelled by the
// user and an exceeded quota.
bool IsContinuousFailure(std::int16_t job_state);

class MainTick {
 public:
  MainTick(platform::Platform& machine, shared::AgentState& state, TrayIcon& icon,
           shared::AgentCommands& commands);

  void TrayTick();

 private:
  void ReleaseQuota();
  void ReleaseKeepAwake();
  void KeepAwake();
  void ClearStalePause();
  void ShowJobIcon();
  void ShowEndOfJobIcon();
  void OpenEndOfJobWindow();
  void AcknowledgeJobStart();
  void AcknowledgeJobEnd();
  void ReadContinuousCode();
  void ShowContinuousIcon();
  void ShowQuotaBlink();

  void ShowNormalIcon();
  void ShowStateIcon(StatePicture picture);
  void Alternate(bool& phase, StatePicture first, StatePicture second);
  void ReadJobStateFromDllStatus();
  void Pause(std::uint32_t milliseconds);

  platform::Platform& machine_;
  shared::AgentState& state_;
  TrayIcon& icon_;
  shared::AgentCommands& commands_;
  shared::ProfileStore profile_;
  shared::RegistryStore registry_;
  status::ProgressChannel channel_;
};

}  // namespace agent
