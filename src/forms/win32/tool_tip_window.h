// A tool tip: the system's own control.
#pragma once

#include <windows.h>

#include "forms/tool_tip.h"
#include "forms/win32/screen.h"
#include "platform/win32/scoped.h"

namespace forms::win32 {

class ToolTipWindow final : public forms::ToolTipWindow {
 public:
  explicit ToolTipWindow(Screen& screen) : screen_(screen) {}

  bool Create(platform::WindowId owner, TipStyle style) override;
  platform::WindowId Handle() const override;
  bool AddTool(platform::WindowId tool, std::string_view text, std::uint32_t flags) override;
  void RemoveTool(platform::WindowId tool) override;
  void SetToolText(platform::WindowId tool, std::string_view text) override;
  std::string ToolText(platform::WindowId tool) override;
  int ToolCount() override;
  void SetTitle(TipIcon icon, std::string_view title) override;
  void SetBackColour(Colour colour) override;
  void SetTextColour(Colour colour) override;
  void SetFont(Font font) override;
  void SetDelay(TipDelay kind, std::int32_t milliseconds) override;
  std::int32_t Delay(TipDelay kind) override;
  void SetMargins(const TipMargins& margins) override;
  void SetMaxWidth(std::int32_t width) override;
  void SetStyle(TipStyle style) override;
  void Hide() override;

 private:
  LRESULT Send(UINT message, WPARAM wparam, const void* lparam) const;
  void RelayMouse(HWND tool) const;

  Screen& screen_;
  HWND owner_ = nullptr;
  platform::win32::ScopedWindow window_;
};

}  // namespace forms::win32
