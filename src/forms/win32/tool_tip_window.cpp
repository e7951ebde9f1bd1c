#include "forms/win32/tool_tip_window.h"

#include <commctrl.h>

#include <algorithm>

#include "forms/win32/scale.h"

namespace forms::win32 {
namespace {

constexpr std::size_t kMostText = 1024;

// The control takes the lower half of the number: a longer delay would come out as a short one.
constexpr std::int32_t kLongestDelay = 0x7FFF;

HWND ToWindow(platform::WindowId window) {
  return reinterpret_cast<HWND>(window);
}

DWORD StyleBits(TipStyle style) {
  return WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX | (style.balloon ? TTS_BALLOON : 0);
}

// A tool that is a window. The short form of the record is known to every version of the control.
TTTOOLINFOA Tool(HWND owner, platform::WindowId tool) {
  TTTOOLINFOA info = {};
  info.cbSize = TTTOOLINFOA_V2_SIZE;
  info.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  info.hwnd = owner;
  info.uId = tool;
  return info;
}

}  // namespace

LRESULT ToolTipWindow::Send(UINT message, WPARAM wparam, const void* lparam) const {
  return SendMessageA(window_.get(), message, wparam, reinterpret_cast<LPARAM>(lparam));
}

bool ToolTipWindow::Create(platform::WindowId owner, TipStyle style) {
  screen_.controls.Require();
  owner_ = ToWindow(owner);
  window_ = platform::win32::ScopedWindow(
      CreateWindowExA(WS_EX_TOPMOST | (style.right_to_left ? WS_EX_LAYOUTRTL : 0), TOOLTIPS_CLASSA,
                      nullptr, StyleBits(style), CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                      CW_USEDEFAULT, owner_, nullptr, GetModuleHandleA(nullptr), nullptr));
  return static_cast<bool>(window_);
}

platform::WindowId ToolTipWindow::Handle() const {
  return reinterpret_cast<platform::WindowId>(window_.get());
}

bool ToolTipWindow::AddTool(platform::WindowId tool, std::string_view text, std::uint32_t flags) {
  std::string whole(text);
  TTTOOLINFOA info = Tool(owner_, tool);
  info.uFlags |= flags;
  info.lpszText = whole.data();
  if (Send(TTM_ADDTOOLA, 0, &info) == 0) return false;
  RelayMouse(ToWindow(tool));
  return true;
}

// The control counts from a move of the mouse over the tool, and the one that added it is past: the
// tip of a mouse that rests from then on would never come.
void ToolTipWindow::RelayMouse(HWND tool) const {
  MSG move = {};
  if (!GetCursorPos(&move.pt) || WindowFromPoint(move.pt) != tool) return;
  POINT place = move.pt;
  ScreenToClient(tool, &place);
  move.hwnd = tool;
  move.message = WM_MOUSEMOVE;
  move.lParam = MAKELPARAM(place.x, place.y);
  Send(TTM_RELAYEVENT, 0, &move);
}

void ToolTipWindow::RemoveTool(platform::WindowId tool) {
  const TTTOOLINFOA info = Tool(owner_, tool);
  Send(TTM_DELTOOLA, 0, &info);
}

void ToolTipWindow::SetToolText(platform::WindowId tool, std::string_view text) {
  std::string whole(text);
  TTTOOLINFOA info = Tool(owner_, tool);
  info.lpszText = whole.data();
  Send(TTM_UPDATETIPTEXTA, 0, &info);
}

std::string ToolTipWindow::ToolText(platform::WindowId tool) {
  std::string text(kMostText, '\0');
  TTTOOLINFOA info = Tool(owner_, tool);
  info.lpszText = text.data();
  Send(TTM_GETTEXTA, kMostText, &info);
  text.resize(text.find('\0') == std::string::npos ? text.size() : text.find('\0'));
  return text;
}

int ToolTipWindow::ToolCount() {
  return static_cast<int>(Send(TTM_GETTOOLCOUNT, 0, nullptr));
}

void ToolTipWindow::SetTitle(TipIcon icon, std::string_view title) {
  const std::string whole(title);
  Send(TTM_SETTITLEA, static_cast<WPARAM>(icon), whole.c_str());
}

void ToolTipWindow::SetBackColour(Colour colour) {
  Send(TTM_SETTIPBKCOLOR, colour, nullptr);
}

void ToolTipWindow::SetTextColour(Colour colour) {
  Send(TTM_SETTIPTEXTCOLOR, colour, nullptr);
}

void ToolTipWindow::SetFont(Font font) {
  const HFONT made = screen_.fonts.Get(font, screen_.Dpi(owner_));
  Send(WM_SETFONT, reinterpret_cast<WPARAM>(made), nullptr);
}

void ToolTipWindow::SetDelay(TipDelay kind, std::int32_t milliseconds) {
  SendMessageA(window_.get(), TTM_SETDELAYTIME, static_cast<WPARAM>(kind),
               std::min(milliseconds, kLongestDelay));
}

std::int32_t ToolTipWindow::Delay(TipDelay kind) {
  return static_cast<std::int32_t>(Send(TTM_GETDELAYTIME, static_cast<WPARAM>(kind), nullptr));
}

void ToolTipWindow::SetMargins(const TipMargins& margins) {
  const RECT edges = {margins.left, margins.top, margins.right, margins.bottom};
  Send(TTM_SETMARGIN, 0, &edges);
}

void ToolTipWindow::SetMaxWidth(std::int32_t width) {
  // A width below zero means that lines do not wrap.
  const int pixels = width < 0 ? width : ToPixels(width, screen_.Dpi(owner_));
  SendMessageA(window_.get(), TTM_SETMAXTIPWIDTH, 0, pixels);
}

void ToolTipWindow::SetStyle(TipStyle style) {
  SetWindowLongPtrA(window_.get(), GWL_STYLE, static_cast<LONG_PTR>(StyleBits(style)));
  const LONG_PTR extended = GetWindowLongPtrA(window_.get(), GWL_EXSTYLE) & ~WS_EX_LAYOUTRTL;
  SetWindowLongPtrA(window_.get(), GWL_EXSTYLE,
                    extended | (style.right_to_left ? WS_EX_LAYOUTRTL : 0));
}

void ToolTipWindow::Hide() {
  Send(TTM_POP, 0, nullptr);
}

}  // namespace forms::win32
