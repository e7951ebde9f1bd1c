#include "agent/state_pictures.h"

#include "shared/paths.h"

namespace agent {
namespace {

constexpr std::string_view kFiles[kStatePictures - 1] = {
    "tvlog.ico",         // kNormal
    "tvlogyellow.ico",   // kRunning
    "tvlogyellowp.ico",  // kRunningPartner
    "tvlogred.ico",      // kFailed
    "tvloggreen.ico",    // kFinished
    "CDPBlue1.ico",      // kContinuousBackup1
    "CDPBlue2.ico",      // kContinuousBackup2
    "QExceed1.ico",      // kQuotaExceeded1
    "QExceed2.ico",      // kQuotaExceeded2
};

}  // namespace

std::string_view PictureFile(StatePicture picture, const shared::AgentState& state) {
  if (picture == StatePicture::kBrand) return state.BrandIconFile;
  return kFiles[static_cast<std::size_t>(picture)];
}

std::string PicturePath(StatePicture picture, const shared::AgentState& state) {
  return shared::InInstallFolder(state,
                                 std::string("Images\\").append(PictureFile(picture, state)));
}

}  // namespace agent
