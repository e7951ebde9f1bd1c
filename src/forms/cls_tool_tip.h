// Tool tips for the controls of one window. Operations keep the names and the order that all
// windows use; before Create they keep their values and show nothing.
//
// A window creates one instance when it loads. On each mouse move over a control it removes the
// control's tip and adds it anew, so that the tip always has the control's text of that moment.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "forms/form_host.h"
#include "forms/tool_tip.h"

namespace forms {

class clsToolTip {
 public:
  explicit clsToolTip(FormHost& host) : host_(host) {}

  bool RightToLeft() const { return style_.right_to_left; }
  void SetRightToLeft(bool right_to_left);

  // Adds a tip to the control with this handle. A title or an icon, when given, becomes the title
  // of the whole window. False before Create, or when the system refuses.
  bool AddTool(platform::WindowId control, std::string_view text, std::string_view title = {},
               TipIcon icon = TipIcon::kNone, std::uint32_t flags = 0);

  Colour BackColor() const { return back_colour_; }
  void SetBackColor(Colour colour);

  bool Balloon() const { return style_.balloon; }
  void SetBalloon(bool balloon);

  // Makes the window for the tools of `owner`, with the properties set so far. False when refused.
  bool Create(platform::WindowId owner);

  // Milliseconds.
  std::int32_t DelayTime(TipDelay kind) const;
  void SetDelayTime(TipDelay kind, std::int32_t milliseconds);

  Font TextFont() const { return font_; }
  void SetFont(Font font);

  Colour ForeColor() const { return text_colour_; }
  void SetForeColor(Colour colour);

  // The text up to the NUL at `text`, in the system's narrow text; what has no narrow form becomes
  // '?'. Null gives "".
  static std::string PtrToStrW(const char16_t* text);

  // Hides the active tip.
  void Hide();

  std::int32_t Margin(TipSide side) const;
  void SetMargin(TipSide side, std::int32_t width);
  void Margins(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom);

  // Pixels at which lines wrap; -1: not.
  std::int32_t MaxTipWidth() const { return max_width_; }
  void SetMaxTipWidth(std::int32_t width);

  void RemoveToolTip(platform::WindowId control);

  // The text up to its first NUL.
  static std::string StripNull(std::string_view text);

  std::int32_t ToolTipCount() const;
  platform::WindowId ToolTipHandle() const;

  TipIcon ToolTipIcon() const { return icon_; }
  void SetToolTipIcon(TipIcon icon);

  std::string ToolTipText(platform::WindowId control) const;
  void SetToolTipText(platform::WindowId control, std::string_view text);

  const std::string& ToolTipTitle() const { return title_; }
  void SetToolTipTitle(std::string_view title);

 private:
  void ApplyProperties();

  FormHost& host_;
  std::unique_ptr<ToolTipWindow> window_;
  TipStyle style_;
  Colour back_colour_ = Rgb(0xFF, 0xFF, 0xFF);
  Colour text_colour_ = theme::kText;
  Font font_ = theme::kBodyFont;
  std::map<TipDelay, std::int32_t> delays_;
  TipMargins margins_;
  std::int32_t max_width_ = -1;
  TipIcon icon_ = TipIcon::kNone;
  std::string title_;
};

}  // namespace forms
