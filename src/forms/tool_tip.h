// The window of a tool tip, as the host makes it. See cls_tool_tip.h for what forms use.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "forms/control.h"
#include "forms/theme.h"

namespace forms {

enum class TipDelay { kAutomatic, kReshow, kAutoPop, kInitial };  // numbered as the system does
enum class TipIcon { kNone, kInfo, kWarning, kError };
enum class TipSide { kLeft, kTop, kRight, kBottom };

struct TipStyle {
  bool balloon = false;
  bool right_to_left = false;
};

struct TipMargins {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  friend bool operator==(const TipMargins&, const TipMargins&) = default;
};

class ToolTipWindow {
 public:
  virtual ~ToolTipWindow() = default;  // takes the window away

  // Makes the window, always on top, for tools in the window `owner`. False when refused. All other
  // calls need it and do nothing before.
  virtual bool Create(platform::WindowId owner, TipStyle style) = 0;
  virtual platform::WindowId Handle() const = 0;

  // A tool is the child window that the tip belongs to. `flags` are the system's, added to those
  // that make a tool of a window.
  virtual bool AddTool(platform::WindowId tool, std::string_view text, std::uint32_t flags) = 0;
  virtual void RemoveTool(platform::WindowId tool) = 0;
  virtual void SetToolText(platform::WindowId tool, std::string_view text) = 0;
  virtual std::string ToolText(platform::WindowId tool) = 0;
  virtual int ToolCount() = 0;

  virtual void SetTitle(TipIcon icon, std::string_view title) = 0;
  virtual void SetBackColour(Colour colour) = 0;
  virtual void SetTextColour(Colour colour) = 0;
  virtual void SetFont(Font font) = 0;
  virtual void SetDelay(TipDelay kind, std::int32_t milliseconds) = 0;
  virtual std::int32_t Delay(TipDelay kind) = 0;
  virtual void SetMargins(const TipMargins& margins) = 0;
  virtual void SetMaxWidth(std::int32_t width) = 0;
  virtual void SetStyle(TipStyle style) = 0;
  virtual void Hide() = 0;
};

}  // namespace forms
