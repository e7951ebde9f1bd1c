#include "agent/partner_edition.h"

#include <string>
#include <string_view>
#include <vector>

#include "agent/executable_names.h"
#include "shared/convert.h"
#include "shared/file_names.h"
#include "shared/paths.h"

namespace agent {
namespace {

using shared::files::kPartnerConfig;

constexpr std::string_view kPartnerFolder = "Tolvex Professional";
// Three short lines; whatever a larger file holds behind them is not read.
constexpr std::size_t kMostBytes = 4096;

std::vector<std::string_view> FirstLines(std::string_view text, std::size_t most) {
  std::vector<std::string_view> lines;
  while (!text.empty() && lines.size() < most) {
    const std::size_t end = text.find_first_of("\r\n");
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    const bool pair = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
    text.remove_prefix(end + (pair ? 2 : 1));
  }
  return lines;
}

}  // namespace

bool HasPartnerMarker(platform::Files& files, const shared::AgentState& state) {
  return files.Exists(shared::InInstallFolder(state, kPartnerConfig));
}

void ApplyPartnerEdition(platform::Files& files, shared::AgentState& state) {
  if (!HasPartnerMarker(files, state)) return;
  const auto text = files.Read(shared::InInstallFolder(state, kPartnerConfig), kMostBytes);
  const auto lines = FirstLines(text ? std::string_view(*text) : std::string_view(), 3);
  if (lines.size() > 0) state.ProductName = lines[0];
  if (lines.size() > 2) state.BrandIconFile = lines[2];
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
