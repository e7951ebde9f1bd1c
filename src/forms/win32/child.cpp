#include "forms/win32/child.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "forms/form.h"
#include "forms/win32/child_kinds.h"
#include "forms/win32/child_values.h"
#include "forms/win32/draw.h"

namespace forms::win32 {
namespace {

// The part of a combo box that is not its field: the list that drops down.
constexpr int kDropHeight = 200;

bool IsTextBox(const Control& control, TextBoxStyle style) {
  return control.Kind() == ControlKind::kTextBox &&
         static_cast<const TextBox&>(control).Style() == style;
}

bool IsCatcher(const Control& control) {
  return IsTextBox(control, TextBoxStyle::kFocusCatcher);
}

Child* ChildOf(HWND window) {
  return reinterpret_cast<Child*>(GetWindowLongPtrA(window, GWLP_USERDATA));
}

}  // namespace

void Child::Close() {
  if (!window_) return;
  SetWindowLongPtrA(window_.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(system_procedure_));
  SetWindowLongPtrA(window_.get(), GWLP_USERDATA, 0);
  window_.Reset();
}

bool Child::Create(HWND form) {
  const ChildKind kind = KindOf(control_);
  window_ = platform::win32::ScopedWindow(
      CreateWindowExA(kind.extended_style, kind.window_class, control_.Text().c_str(),
                      WS_CHILD | WS_CLIPSIBLINGS | WS_TABSTOP | kind.style, 0, 0, 0, 0, form,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(control_.Id())),
                      GetModuleHandleA(nullptr), nullptr));
  if (!window_) return false;
  SetWindowLongPtrA(window_.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  system_procedure_ = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(
      window_.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Child::Procedure)));
  if (control_.Kind() == ControlKind::kListView) {
    SendMessageA(window_.get(), LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_FULLROWSELECT,
                 LVS_EX_FULLROWSELECT);
  }
  UpdateAll();
  return true;
}

void Child::UpdateAll() {
  for (const Property property : {Property::kLook, Property::kBounds, Property::kEnabled,
                                  Property::kItems, Property::kValue, Property::kVisible}) {
    Update(property);
  }
}

void Child::Update(Property property) {
  const bool was_updating = updating_;
  updating_ = true;
  const HWND window = window_.get();
  switch (property) {
    case Property::kText:
      if (TextOf(window) != control_.Text()) SetWindowTextA(window, control_.Text().c_str());
      InvalidateRect(window, nullptr, FALSE);
      break;
    case Property::kVisible:
      ShowWindow(window, control_.Shown() ? SW_SHOWNA : SW_HIDE);
      break;
    case Property::kEnabled:
      EnableWindow(window, control_.Enabled());
      InvalidateRect(window, nullptr, FALSE);
      break;
    case Property::kBounds:
      Place();
      break;
    case Property::kLook:
      SendMessageA(window, WM_SETFONT,
                   reinterpret_cast<WPARAM>(screen_.fonts.Get(control_.TextFont(), Dpi())), TRUE);
      // Text without a border stands in one line with the labels around it.
      if (IsTextBox(control_, TextBoxStyle::kReadOnly)) {
        SendMessageA(window, EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, 0);
      }
      SetWindowPos(window, nullptr, 0, 0, 0, 0,
                   SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
      InvalidateRect(window, nullptr, FALSE);
      break;
    case Property::kItems:
      ShowItems(window, control_, screen_, Dpi());
      ShowValue(window, control_);
      break;
    case Property::kValue:
      ShowValue(window, control_);
      InvalidateRect(window, nullptr, FALSE);
      break;
  }
  updating_ = was_updating;
}

void Child::Place() const {
  const Rect& bounds = control_.Bounds();
  const int dpi = Dpi();
  const bool drops = control_.Kind() == ControlKind::kComboBox;
  const int left = ToPixels(bounds.left, dpi);
  const int top = ToPixels(bounds.top, dpi);
  SetWindowPos(window_.get(), nullptr, left, top, ToPixels(bounds.Right(), dpi) - left,
               ToPixels(bounds.Bottom() + (drops ? kDropHeight : 0), dpi) - top,
               SWP_NOZORDER | SWP_NOACTIVATE);
}

bool Child::DrawsItself() const {
  return control_.Kind() == ControlKind::kCheckBox ||
         control_.Kind() == ControlKind::kRadioButton ||
         control_.Kind() == ControlKind::kProgressBar;
}

bool Child::LooksClickable() const {
  if (control_.Kind() == ControlKind::kPicture) return static_cast<bool>(control_.on_click);
  return control_.Kind() == ControlKind::kLabel &&
         static_cast<const Label&>(control_).Style() == LabelStyle::kLink;
}

void Child::Draw(HDC dc, bool pressed) {
  Face face = {};
  GetClientRect(window_.get(), &face.place);
  face.dpi = Dpi();
  face.hover = hover_;
  face.pressed = pressed;
  face.focused = GetFocus() == window_.get();
  face.enabled = control_.Enabled();
  DrawControl(dc, control_, face, screen_);
}

void Child::Paint() {
  PAINTSTRUCT paint;
  const HDC dc = BeginPaint(window_.get(), &paint);
  Draw(dc, false);
  EndPaint(window_.get(), &paint);
}

bool Child::IsField() const {
  return IsTextBox(control_, TextBoxStyle::kOneLine);
}

// The system writes a line at the top of its field: the field is made as high as the line, in the
// middle of the window.
void Child::InsetField(RECT& inside) const {
  const WindowDc dc(window_.get());
  const Selection font(dc.get(), screen_.fonts.Get(control_.TextFont(), Dpi()));
  TEXTMETRICA metric = {};
  GetTextMetricsA(dc.get(), &metric);
  const LONG above = (inside.bottom - inside.top - metric.tmHeight) / 2;
  InflateRect(&inside, -ToPixels(theme::kFieldPadding, Dpi()), -std::max(above, 1L));
}

// The thin border of fields, in the colour that says where the keyboard is.
void Child::DrawFieldBorder() const {
  const HDC dc = GetWindowDC(window_.get());
  RECT place;
  GetWindowRect(window_.get(), &place);
  OffsetRect(&place, -place.left, -place.top);
  if (IsField()) {
    RECT inside = place;
    InsetField(inside);
    ExcludeClipRect(dc, inside.left, inside.top, inside.right, inside.bottom);
    FillRect(dc, &place, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  }
  const bool focused = GetFocus() == window_.get();
  const ScopedBrush brush(CreateSolidBrush(focused ? theme::kAccent : theme::kBorder));
  FrameRect(dc, &place, brush.get());
  ReleaseDC(window_.get(), dc);
}

bool Child::HandleCommand(UINT code) {
  if (updating_) return false;
  switch (control_.Kind()) {
    case ControlKind::kLabel:
    case ControlKind::kPicture:
      if (code == STN_CLICKED) control_.Click();
      if (code == STN_DBLCLK) control_.DoubleClick();
      return code == STN_CLICKED || code == STN_DBLCLK;
    case ControlKind::kButton:
    case ControlKind::kCheckBox:
    case ControlKind::kRadioButton:
      if (code == BN_CLICKED) control_.Click();
      return code == BN_CLICKED;
    case ControlKind::kTextBox:
      if (code == EN_CHANGE) TakeText(window_.get(), control_);
      return code == EN_CHANGE;
    case ControlKind::kComboBox:
      if (code == CBN_SELCHANGE) TakeChoice(window_.get(), static_cast<ComboBox&>(control_));
      if (code == CBN_EDITCHANGE) TakeText(window_.get(), control_);
      return code == CBN_SELCHANGE || code == CBN_EDITCHANGE;
    default:
      return false;
  }
}

bool Child::HandleNotification(const NMHDR& notification) {
  if (updating_) return false;
  if (control_.Kind() == ControlKind::kListView) {
    auto& list = static_cast<ListView&>(control_);
    if (notification.code == static_cast<UINT>(LVN_ITEMCHANGED)) {
      TakeSelection(window_.get(), list);
    }
    if (notification.code == static_cast<UINT>(NM_CLICK)) list.Click();
    if (notification.code == static_cast<UINT>(NM_DBLCLK)) list.DoubleClick();
    return true;
  }
  if (control_.Kind() == ControlKind::kDatePicker &&
      notification.code == static_cast<UINT>(DTN_DATETIMECHANGE)) {
    TakeDate(window_.get(), static_cast<DatePicker&>(control_));
    return true;
  }
  return false;
}

void Child::HandleScroll() {
  if (!updating_ && control_.Kind() == ControlKind::kSlider) {
    TakePosition(window_.get(), static_cast<Slider&>(control_));
  }
}

Point Child::UnitsAt(LPARAM lparam) const {
  const int dpi = Dpi();
  return {MulDiv(GET_X_LPARAM(lparam), kUnitsPerInch, dpi),
          MulDiv(GET_Y_LPARAM(lparam), kUnitsPerInch, dpi)};
}

void Child::TrackMouse(UINT message, LPARAM lparam) {
  if (message == WM_MOUSELEAVE) {
    hover_ = false;
    InvalidateRect(window_.get(), nullptr, FALSE);
    if (control_.on_mouse_leave) control_.on_mouse_leave();
    return;
  }
  if (!hover_) {
    hover_ = true;
    TRACKMOUSEEVENT track = {sizeof(track), TME_LEAVE, window_.get(), 0};
    TrackMouseEvent(&track);
    InvalidateRect(window_.get(), nullptr, FALSE);
  }
  if (control_.on_mouse_move) control_.on_mouse_move(UnitsAt(lparam));
}

LRESULT Child::PassOn(UINT message, WPARAM wparam, LPARAM lparam) {
  // A handler may have closed the form.
  if (!window_) return 0;
  return CallWindowProcA(system_procedure_, window_.get(), message, wparam, lparam);
}

LRESULT CALLBACK Child::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  Child* const child = ChildOf(window);
  if (child == nullptr) return DefWindowProcA(window, message, wparam, lparam);
  int& under_way = child->messages_under_way_;
  ++under_way;
  const LRESULT result = child->HandleMessage(message, wparam, lparam);
  --under_way;
  return result;
}

LRESULT Child::HandleMessage(UINT message, WPARAM wparam, LPARAM lparam) {
  const HWND window = window_.get();
  switch (message) {
    case WM_MOUSEMOVE:
    case WM_MOUSELEAVE:
      TrackMouse(message, lparam);
      break;
    case WM_LBUTTONDOWN:
      if (control_.Kind() == ControlKind::kLabel &&
          static_cast<const Label&>(control_).DragsWindow()) {
        control_.Owner().Host().StartDrag(control_.Owner());
        return 0;
      }
      if (control_.on_mouse_down) {
        SetCapture(window);
        control_.on_mouse_down(UnitsAt(lparam));
      }
      break;
    case WM_LBUTTONUP:
      if (control_.on_mouse_up) {
        ReleaseCapture();
        control_.on_mouse_up(UnitsAt(lparam));
      }
      break;
    case WM_SETFOCUS: {
      const LRESULT result = PassOn(message, wparam, lparam);
      if (IsCatcher(control_)) HideCaret(window);
      InvalidateRect(window, nullptr, FALSE);
      RedrawWindow(window, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
      if (control_.on_focus) control_.on_focus();
      return result;
    }
    case WM_KILLFOCUS:
      InvalidateRect(window, nullptr, FALSE);
      RedrawWindow(window, nullptr, nullptr, RDW_FRAME | RDW_INVALIDATE);
      if (control_.on_blur) control_.on_blur();
      break;
    case WM_SETCURSOR:
      if (LooksClickable() && control_.Enabled() &&
          control_.Owner().MousePointer() == Pointer::kDefault) {
        SetCursor(LoadCursorA(nullptr, IDC_HAND));
        return TRUE;
      }
      break;
    case WM_NCCALCSIZE:
      if (IsField()) {
        const LRESULT result = PassOn(message, wparam, lparam);
        InsetField(*reinterpret_cast<RECT*>(lparam));
        return result;
      }
      break;
    case WM_NCPAINT:
      if (IsField() || (GetWindowLongPtrA(window, GWL_STYLE) & WS_BORDER)) {
        const LRESULT result = PassOn(message, wparam, lparam);
        DrawFieldBorder();
        return result;
      }
      break;
    case WM_ERASEBKGND:
      if (DrawsItself()) return TRUE;
      break;
    case WM_PAINT:
      if (!DrawsItself()) break;
      Paint();
      return 0;
    case WM_ENABLE:
    case BM_SETSTATE:
    case BM_SETCHECK:
      if (!DrawsItself()) break;
      PassOn(message, wparam, lparam);
      // The system has drawn its own look at once.
      InvalidateRect(window, nullptr, FALSE);
      return 0;
    default:
      break;
  }
  return PassOn(message, wparam, lparam);
}

}  // namespace forms::win32
