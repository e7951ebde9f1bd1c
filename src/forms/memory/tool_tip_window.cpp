#include "forms/memory/tool_tip_window.h"

namespace forms::memory {

bool ToolTipWindow::Create(platform::WindowId owner, TipStyle style) {
  owner_ = owner;
  style_ = style;
  return owner != platform::kNoWindow;
}

bool ToolTipWindow::AddTool(platform::WindowId tool, std::string_view text, std::uint32_t) {
  if (tool == platform::kNoWindow) return false;
  tools_[tool] = text;
  journal_("tip \"" + tools_[tool] + "\"");
  return true;
}

void ToolTipWindow::SetToolText(platform::WindowId tool, std::string_view text) {
  const auto found = tools_.find(tool);
  if (found != tools_.end()) found->second = text;
}

std::string ToolTipWindow::ToolText(platform::WindowId tool) {
  const auto found = tools_.find(tool);
  return found == tools_.end() ? std::string() : found->second;
}

std::int32_t ToolTipWindow::Delay(TipDelay kind) {
  const auto found = delays_.find(kind);
  return found == delays_.end() ? 0 : found->second;
}

void ToolTipWindow::Hide() {
  journal_("hide tip");
}

}  // namespace forms::memory
