#include "forms/cls_tool_tip.h"

namespace forms {
namespace {

constexpr char16_t kLastNarrow = 0xFF;

std::int32_t* SideOf(TipMargins& margins, TipSide side) {
  switch (side) {
    case TipSide::kLeft:
      return &margins.left;
    case TipSide::kTop:
      return &margins.top;
    case TipSide::kRight:
      return &margins.right;
    case TipSide::kBottom:
      return &margins.bottom;
  }
  return &margins.left;
}

}  // namespace

void clsToolTip::SetRightToLeft(bool right_to_left) {
  style_.right_to_left = right_to_left;
  if (window_) window_->SetStyle(style_);
}

bool clsToolTip::AddTool(platform::WindowId control, std::string_view text, std::string_view title,
                         TipIcon icon, std::uint32_t flags) {
  if (!window_) return false;
  if (!title.empty() || icon != TipIcon::kNone) {
    title_ = title;
    icon_ = icon;
    window_->SetTitle(icon_, title_);
  }
  return window_->AddTool(control, text, flags);
}

void clsToolTip::SetBackColor(Colour colour) {
  back_colour_ = colour;
  if (window_) window_->SetBackColour(colour);
}

void clsToolTip::SetBalloon(bool balloon) {
  style_.balloon = balloon;
  if (window_) window_->SetStyle(style_);
}

bool clsToolTip::Create(platform::WindowId owner) {
  window_ = host_.MakeToolTip();
  if (!window_->Create(owner, style_)) {
    window_.reset();
    return false;
  }
  ApplyProperties();
  return true;
}

void clsToolTip::ApplyProperties() {
  window_->SetBackColour(back_colour_);
  window_->SetTextColour(text_colour_);
  window_->SetFont(font_);
  window_->SetMargins(margins_);
  window_->SetMaxWidth(max_width_);
  for (const auto& [kind, milliseconds] : delays_) window_->SetDelay(kind, milliseconds);
  if (!title_.empty() || icon_ != TipIcon::kNone) window_->SetTitle(icon_, title_);
}

std::int32_t clsToolTip::DelayTime(TipDelay kind) const {
  const auto found = delays_.find(kind);
  if (found != delays_.end()) return found->second;
  return window_ ? window_->Delay(kind) : 0;
}

void clsToolTip::SetDelayTime(TipDelay kind, std::int32_t milliseconds) {
  delays_[kind] = milliseconds;
  if (window_) window_->SetDelay(kind, milliseconds);
}

void clsToolTip::SetFont(Font font) {
  font_ = font;
  if (window_) window_->SetFont(font);
}

void clsToolTip::SetForeColor(Colour colour) {
  text_colour_ = colour;
  if (window_) window_->SetTextColour(colour);
}

std::string clsToolTip::PtrToStrW(const char16_t* text) {
  std::string narrow;
  for (; text && *text; ++text) {
    narrow += *text <= kLastNarrow ? static_cast<char>(*text) : '?';
  }
  return narrow;
}

void clsToolTip::Hide() {
  if (window_) window_->Hide();
}

std::int32_t clsToolTip::Margin(TipSide side) const {
  TipMargins margins = margins_;
  return *SideOf(margins, side);
}

void clsToolTip::SetMargin(TipSide side, std::int32_t width) {
  *SideOf(margins_, side) = width;
  if (window_) window_->SetMargins(margins_);
}

void clsToolTip::Margins(std::int32_t left, std::int32_t top, std::int32_t right,
                         std::int32_t bottom) {
  margins_ = {left, top, right, bottom};
  if (window_) window_->SetMargins(margins_);
}

void clsToolTip::SetMaxTipWidth(std::int32_t width) {
  max_width_ = width;
  if (window_) window_->SetMaxWidth(width);
}

void clsToolTip::RemoveToolTip(platform::WindowId control) {
  if (window_) window_->RemoveTool(control);
}

std::string clsToolTip::StripNull(std::string_view text) {
  return std::string(text.substr(0, text.find('\0')));
}

std::int32_t clsToolTip::ToolTipCount() const {
  return window_ ? window_->ToolCount() : 0;
}

platform::WindowId clsToolTip::ToolTipHandle() const {
  return window_ ? window_->Handle() : platform::kNoWindow;
}

void clsToolTip::SetToolTipIcon(TipIcon icon) {
  icon_ = icon;
  if (window_) window_->SetTitle(icon_, title_);
}

std::string clsToolTip::ToolTipText(platform::WindowId control) const {
  return window_ ? window_->ToolText(control) : std::string();
}

void clsToolTip::SetToolTipText(platform::WindowId control, std::string_view text) {
  if (window_) window_->SetToolText(control, text);
}

void clsToolTip::SetToolTipTitle(std::string_view title) {
  title_ = title;
  if (window_) window_->SetTitle(icon_, title_);
}

}  // namespace forms
