// The pictures of the notification icon: files of the folder Images of InstallFolder.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "shared/agent_state.h"

namespace agent {

enum class StatePicture {
  kNormal,
  kRunning,
  kRunningPartner,  // the running picture of the partner edition
  kFailed,          // cancelled or failed
  kFinished,
  kContinuousBackup1,
  kContinuousBackup2,
  kQuotaExceeded1,
  kQuotaExceeded2,
  kBrand,  // the partner's own file
};
inline constexpr std::size_t kStatePictures = 10;

// File name below Images; the partner's file for kBrand.
std::string_view PictureFile(StatePicture picture, const shared::AgentState& state);

// Its full path.
std::string PicturePath(StatePicture picture, const shared::AgentState& state);

}  // namespace agent
