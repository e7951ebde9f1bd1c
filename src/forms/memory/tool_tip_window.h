// The window of a tool tip in memory: a record of what it was given.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "forms/tool_tip.h"

namespace forms::memory {

class ToolTipWindow final : public forms::ToolTipWindow {
 public:
  using Journal = std::function<void(const std::string&)>;

  ToolTipWindow(platform::WindowId handle, Journal journal)
      : handle_(handle), journal_(std::move(journal)) {}

  bool Create(platform::WindowId owner, TipStyle style) override;
  platform::WindowId Handle() const override { return handle_; }
  bool AddTool(platform::WindowId tool, std::string_view text, std::uint32_t flags) override;
  void RemoveTool(platform::WindowId tool) override { tools_.erase(tool); }
  void SetToolText(platform::WindowId tool, std::string_view text) override;
  std::string ToolText(platform::WindowId tool) override;
  int ToolCount() override { return static_cast<int>(tools_.size()); }
  void SetTitle(TipIcon, std::string_view) override {}
  void SetBackColour(Colour) override {}
  void SetTextColour(Colour) override {}
  void SetFont(Font) override {}
  void SetDelay(TipDelay kind, std::int32_t milliseconds) override { delays_[kind] = milliseconds; }
  std::int32_t Delay(TipDelay kind) override;
  void SetMargins(const TipMargins&) override {}
  void SetMaxWidth(std::int32_t) override {}
  void SetStyle(TipStyle style) override { style_ = style; }
  void Hide() override;

 private:
  const platform::WindowId handle_;
  const Journal journal_;
  platform::WindowId owner_ = platform::kNoWindow;
  TipStyle style_;
  std::map<platform::WindowId, std::string> tools_;
  std::map<TipDelay, std::int32_t> delays_;
};

}  // namespace forms::memory
