#include "forms/win32/form_window.h"

#include <algorithm>
#include <string>

#include "forms/win32/draw.h"

namespace forms::win32 {
namespace {

constexpr UINT kArrangeMessage = WM_APP + 0x10;
constexpr UINT kDpiChanged = 0x02E0;  // WM_DPICHANGED, younger than the oldest system
constexpr int kScreenMargin = 12;     // units to the edges of the work area
constexpr char kIconName[] = "APP";

DWORD StyleOf(const FormDesign& design) {
  return design.framed ? WS_OVERLAPPED | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | WS_CLIPCHILDREN
                       : WS_POPUP | WS_CLIPCHILDREN;
}

DWORD ExtendedStyleOf(const FormDesign& design) {
  return WS_EX_CONTROLPARENT | (design.on_top ? WS_EX_TOPMOST : 0) |
         (design.layered ? WS_EX_LAYERED : 0) |
         (design.in_task_bar ? WS_EX_APPWINDOW : WS_EX_TOOLWINDOW);
}

RECT WorkArea() {
  RECT area = {};
  SystemParametersInfoA(SPI_GETWORKAREA, 0, &area, 0);
  return area;
}

Key ToKey(WPARAM wparam) {
  if (wparam == IDOK) return Key::kEnter;
  return wparam == IDCANCEL ? Key::kEscape : Key::kOther;
}

}  // namespace

FormWindow::FormWindow(Form& form, Screen& screen) : form_(form), screen_(screen) {}

FormWindow::~FormWindow() {
  Close();
}

bool FormWindow::Create() {
  const FormDesign& design = form_.Design();
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  WNDCLASSA window_class = {};
  window_class.style = CS_DBLCLKS;
  window_class.lpfnWndProc = &FormWindow::Procedure;
  window_class.hInstance = instance;
  window_class.hIcon = LoadIconA(instance, kIconName);
  window_class.hCursor = LoadCursorA(nullptr, IDC_ARROW);
  window_class.lpszClassName = form_.Name().c_str();
  RegisterClassA(&window_class);  // fails for the second window of a form, which shares it
  window_ = platform::win32::ScopedWindow(
      CreateWindowExA(ExtendedStyleOf(design), form_.Name().c_str(), form_.Caption().c_str(),
                      StyleOf(design), 0, 0, 0, 0, nullptr, nullptr, instance, nullptr));
  if (!window_) return false;
  SetWindowLongPtrA(window_.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  CreateChildren();
  Update(nullptr, Property::kEnabled);
  Update(nullptr, Property::kLook);
  return true;
}

// In the order of the members, which is from the top to the bottom; frames lie under all.
void FormWindow::CreateChildren() {
  if (form_.Controls().empty()) return;
  screen_.controls.Require();
  for (const bool frames : {false, true}) {
    for (Control* control : form_.Controls()) {
      if ((control->Kind() == ControlKind::kFrame) != frames) continue;
      children_.push_back(std::make_unique<Child>(*control, screen_, messages_under_way_));
      if (!children_.back()->Create(window_.get())) children_.pop_back();
    }
  }
}

void FormWindow::Close() {
  if (closed_) return;
  closed_ = true;
  if (!window_) return;
  SetWindowLongPtrA(window_.get(), GWLP_USERDATA, 0);
  ShowWindow(window_.get(), SW_HIDE);  // as one, not control by control
  for (const auto& child : children_) child->Close();
  window_.Reset();
}

Child* FormWindow::ChildFor(const Control& control) const {
  const auto found =
      std::find_if(children_.begin(), children_.end(),
                   [&control](const auto& child) { return &child->Model() == &control; });
  return found == children_.end() ? nullptr : found->get();
}

// Also for a window inside a control's window, such as the field of a combo box.
Child* FormWindow::ChildOf(HWND window) const {
  while (window != nullptr && GetParent(window) != window_.get()) window = GetParent(window);
  const auto found = std::find_if(children_.begin(), children_.end(), [window](const auto& child) {
    return window != nullptr && child->Handle() == window;
  });
  return found == children_.end() ? nullptr : found->get();
}

Control* FormWindow::ControlOf(HWND window) const {
  Child* const child = ChildOf(window);
  return child ? &child->Model() : nullptr;
}

HWND FormWindow::WindowOf(const Control& control) const {
  Child* const child = ChildFor(control);
  return child ? child->Handle() : nullptr;
}

void FormWindow::Update(const Control* control, Property property) {
  if (closed_) return;
  if (control) {
    if (Child* const child = ChildFor(*control)) child->Update(property);
    if (control->Kind() == ControlKind::kFrame && property == Property::kVisible) {
      for (const auto& child : children_) child->Update(Property::kVisible);
    }
    if (property == Property::kVisible || property == Property::kEnabled) RescueFocus();
  } else if (property == Property::kText) {
    SetWindowTextA(window_.get(), form_.Caption().c_str());
  } else if (property == Property::kEnabled) {
    EnableWindow(window_.get(), form_.Enabled());
  } else if (property == Property::kLook) {
    if (form_.Design().layered) {
      SetLayeredWindowAttributes(window_.get(), 0, static_cast<BYTE>(form_.Alpha()), LWA_ALPHA);
    }
    ShowPointer();
  }
  if (form_.NeedsArranging() && form_.Visible()) ArrangeSoon();
}

void FormWindow::ShowPointer() {
  if (shown_pointer_ == form_.MousePointer()) return;
  shown_pointer_ = form_.MousePointer();
  // The window under the mouse is asked for its pointer when the mouse is set to where it is.
  POINT mouse;
  if (GetCursorPos(&mouse)) SetCursorPos(mouse.x, mouse.y);
}

// Once for all properties that one handler sets.
void FormWindow::ArrangeSoon() {
  if (arrange_posted_) return;
  arrange_posted_ = PostMessageA(window_.get(), kArrangeMessage, 0, 0);
}

void FormWindow::Arrange() {
  arrange_posted_ = false;
  const Size size = form_.Arrange();
  const int dpi = Dpi();
  Resize({ToPixels(size.width, dpi), ToPixels(size.height, dpi)});
}

void FormWindow::Resize(SIZE size) {
  RECT outer = {0, 0, size.cx, size.cy};
  AdjustWindowRectEx(&outer, StyleOf(form_.Design()), FALSE, ExtendedStyleOf(form_.Design()));
  const SIZE outer_size = {outer.right - outer.left, outer.bottom - outer.top};
  RECT now;
  GetWindowRect(window_.get(), &now);
  const bool same_size =
      now.right - now.left == outer_size.cx && now.bottom - now.top == outer_size.cy;
  if (same_size && placed_) return;
  const bool stays = placed_ && form_.Design().placement != Placement::kLowerRight;
  const POINT place = stays ? POINT{now.left, now.top} : PlaceFor(outer_size);
  placed_ = true;
  SetWindowPos(window_.get(), nullptr, place.x, place.y, outer_size.cx, outer_size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  CutCorners(outer_size);
  InvalidateRect(window_.get(), nullptr, TRUE);
}

POINT FormWindow::PlaceFor(SIZE size) const {
  const RECT area = WorkArea();
  if (form_.Design().placement == Placement::kLowerRight) {
    const int margin = ToPixels(kScreenMargin, Dpi());
    return {area.right - size.cx - margin, area.bottom - size.cy - margin};
  }
  RECT over = area;
  const HWND owner = GetWindow(window_.get(), GW_OWNER);
  if (owner != nullptr && IsWindowVisible(owner) && !IsIconic(owner)) GetWindowRect(owner, &over);
  const LONG left = (over.left + over.right - size.cx) / 2;
  const LONG top = (over.top + over.bottom - size.cy) / 2;
  // An owner at the edge of the screen does not push the window over it.
  return {std::max(area.left, std::min(left, area.right - size.cx)),
          std::max(area.top, std::min(top, area.bottom - size.cy))};
}

void FormWindow::CutCorners(SIZE size) {
  if (form_.Design().corner_radius == 0) return;
  const int corner = 2 * ToPixels(form_.Design().corner_radius, Dpi());
  // The system owns the region from now on.
  SetWindowRgn(window_.get(), CreateRoundRectRgn(0, 0, size.cx + 1, size.cy + 1, corner, corner),
               TRUE);
}

void FormWindow::SetState(WindowState state) {
  const HWND window = window_.get();
  switch (state) {
    case WindowState::kHidden:
      ShowWindow(window, SW_HIDE);
      return;
    case WindowState::kMinimised:
      // Whoever works in another window keeps the keyboard.
      ShowWindow(window, SW_SHOWMINNOACTIVE);
      return;
    case WindowState::kShown:
    case WindowState::kInFront:
      if (form_.NeedsArranging() || !placed_) Arrange();
      if (state == WindowState::kShown && form_.Design().quiet) {
        ShowWindow(window, SW_SHOWNOACTIVATE);
        return;
      }
      ShowWindow(window, IsIconic(window) ? SW_RESTORE : SW_SHOW);
      if (state == WindowState::kInFront) SetForegroundWindow(window);
      GiveFirstFocus();
      return;
  }
}

void FormWindow::SetOwner(HWND owner) {
  SetWindowLongPtrA(window_.get(), GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owner));
}

void FormWindow::GiveFirstFocus() {
  if (ChildOf(GetFocus()) != nullptr) return;
  const bool knows_last = last_focus_ && last_focus_->Shown() && last_focus_->Enabled();
  if (const Control* first = knows_last ? last_focus_ : form_.FirstStop()) SetFocus(*first);
}

// A control that goes or is disabled must not take the keyboard with it: no key would reach the
// window any more, Escape included.
void FormWindow::RescueFocus() {
  if (GetActiveWindow() != window_.get()) return;
  const Control* const control = ControlOf(GetFocus());
  if (control && control->Shown() && control->Enabled()) return;
  if (const Control* first = form_.FirstStop()) SetFocus(*first);
}

void FormWindow::NoteFocus() {
  if (const Control* const control = ControlOf(GetFocus())) last_focus_ = control;
}

void FormWindow::SetFocus(const Control& control) {
  if (const HWND child = WindowOf(control)) ::SetFocus(child);
}

void FormWindow::Paint() {
  PAINTSTRUCT paint;
  const HDC dc = BeginPaint(window_.get(), &paint);
  RECT inside;
  GetClientRect(window_.get(), &inside);
  const ScopedBrush ground(CreateSolidBrush(theme::kWindow));
  FillRect(dc, &inside, ground.get());
  if (!form_.Design().framed) {
    DrawWindowEdge(dc, {inside.right, inside.bottom}, {0, 0}, form_.Design().corner_radius, Dpi());
  }
  EndPaint(window_.get(), &paint);
}

void FormWindow::DrawItem(const DRAWITEMSTRUCT& item) {
  Child* const child = ChildOf(item.hwndItem);
  if (child == nullptr) return;
  child->Draw(item.hDC, (item.itemState & ODS_SELECTED) != 0);
  if (child->Model().Kind() != ControlKind::kFrame || form_.Design().framed) return;
  // A ground that reaches the edge of the window must not hide it.
  RECT inside;
  GetClientRect(window_.get(), &inside);
  POINT place = {0, 0};
  MapWindowPoints(child->Handle(), window_.get(), &place, 1);
  DrawWindowEdge(item.hDC, {inside.right, inside.bottom}, place, form_.Design().corner_radius,
                 Dpi());
}

LRESULT FormWindow::ColourOfChild(HDC dc, HWND child) {
  const Control* const control = ControlOf(child);
  if (control == nullptr) return 0;
  const Colour ground = GroundOf(*control);
  SetTextColor(dc, control->Enabled() ? control->TextColour() : theme::kDisabledText);
  SetBkColor(dc, ground);
  // A solid brush of the device context needs no owner.
  SetDCBrushColor(dc, ground);
  return reinterpret_cast<LRESULT>(GetStockObject(DC_BRUSH));
}

void FormWindow::ChangeDpi(const RECT& suggested) {
  SetWindowPos(window_.get(), nullptr, suggested.left, suggested.top,
               suggested.right - suggested.left, suggested.bottom - suggested.top,
               SWP_NOZORDER | SWP_NOACTIVATE);
  for (const auto& child : children_) child->UpdateAll();
  Arrange();
}

LRESULT FormWindow::HandleCommand(WPARAM wparam, LPARAM lparam) {
  const int id = LOWORD(wparam);
  if (lparam == 0 && (id == IDOK || id == IDCANCEL)) {
    form_.PressKey(ControlOf(GetFocus()), ToKey(wparam));
    return 0;
  }
  Control* const control = form_.Find(id);
  Child* const child = control ? ChildFor(*control) : nullptr;
  if (child != nullptr) child->HandleCommand(HIWORD(wparam));
  return 0;
}

LRESULT CALLBACK FormWindow::Procedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* const form = reinterpret_cast<FormWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (form == nullptr) return DefWindowProcA(window, message, wparam, lparam);
  ++form->messages_under_way_;
  const LRESULT result = form->Handle(message, wparam, lparam);
  --form->messages_under_way_;
  return result;
}

LRESULT FormWindow::Handle(UINT message, WPARAM wparam, LPARAM lparam) {
  if (form_.on_message) {
    // A copy, because the handler may take itself away.
    const auto on_message = form_.on_message;
    if (const auto answer = on_message(message, wparam, lparam)) return *answer;
    if (closed_) return 0;
  }
  return HandleOwn(message, wparam, lparam);
}

LRESULT FormWindow::HandleOwn(UINT message, WPARAM wparam, LPARAM lparam) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return TRUE;
    case WM_DRAWITEM:
      DrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lparam));
      return TRUE;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
      return ColourOfChild(reinterpret_cast<HDC>(wparam), reinterpret_cast<HWND>(lparam));
    case WM_COMMAND:
      return HandleCommand(wparam, lparam);
    case WM_NOTIFY: {
      const NMHDR& notification = *reinterpret_cast<const NMHDR*>(lparam);
      Child* const child = ChildOf(notification.hwndFrom);
      if (child != nullptr) child->HandleNotification(notification);
      return 0;
    }
    case WM_HSCROLL:
      if (Child* const child = ChildOf(reinterpret_cast<HWND>(lparam))) child->HandleScroll();
      return 0;
    case WM_MOUSEMOVE:
      if (form_.on_mouse_move) form_.on_mouse_move({});
      return 0;
    case WM_SETCURSOR:
      if (form_.MousePointer() != Pointer::kBusy) break;
      SetCursor(LoadCursorA(nullptr, IDC_WAIT));
      return TRUE;
    case WM_ACTIVATE:
      if (LOWORD(wparam) == WA_INACTIVE) NoteFocus();
      break;
    case WM_SETFOCUS:
      GiveFirstFocus();
      return 0;
    case WM_CLOSE:
      form_.CloseByUser();
      return 0;
    case kArrangeMessage:
      Arrange();
      return 0;
    case kDpiChanged:
      ChangeDpi(*reinterpret_cast<const RECT*>(lparam));
      return 0;
    case WM_NCDESTROY:
      // Taken away by the system, with its owner for instance.
      form_.Unload();
      return 0;
    default:
      break;
  }
  return DefWindowProcA(window_.get(), message, wparam, lparam);
}

}  // namespace forms::win32
