#include "agent/partner_edition.h"

#include <string>
#include <string_view>

#include "agent/executable_names.h"
#include "shared/convert.h"
#include "shared/file_names.h"
#include "shared/paths.h"
#include "shared/text_file.h"

namespace agent {
namespace {

using shared::files::kPartnerConfig;

constexpr std::string_view kPartnerFolder = "Tolvex Professional";
// Three short lines; whatever a larger file holds behind them is not read.
constexpr std::size_t kMostBytes = 4096;

}  // namespace

bool HasPartnerMarker(platform::Files& files, const shared::AgentState& state) {
  return files.Exists(shared::InInstallFolder(state, kPartnerConfig));
}

void ApplyPartnerEdition(platform::Files& files, shared::AgentState& state) {
  if (!HasPartnerMarker(files, state)) return;
  const auto text = files.Read(shared::InInstallFolder(state, kPartnerConfig), kMostBytes);
  const std::string lines = text.value_or(std::string());
  if (const auto name = shared::FindLine(lines, 0)) state.ProductName = *name;
  if (const auto icon = shared::FindLine(lines, 2)) state.BrandIconFile = *icon;
  state.ProductCaption = state.ProductName;
  state.ProductFolder = kPartnerFolder;
  state.ProductNumber = kPartnerEdition;
}

StatePicture FormPicture(platform::Files& files, const shared::AgentState& state) {
  const bool branded =
      !state.BrandIconFile.empty() && files.Exists(PicturePath(StatePicture::kBrand, state));
  return branded ? StatePicture::kBrand : StatePicture::kNormal;
}

void NameBlankProduct(shared::AgentState& state) {
  if (!shared::Trim(state.ProductName).empty()) return;
  state.ProductName = kPartnerFolder;
  state.ProductCaption = kPartnerFolder;
  state.ProductFolder = kPartnerFolder;
}

}  // namespace agent
