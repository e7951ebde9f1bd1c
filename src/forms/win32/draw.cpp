#include "forms/win32/draw.h"

#include <algorithm>

#include "forms/form.h"
#include "forms/win32/canvas.h"

namespace forms::win32 {
namespace {

int Width(const RECT& place) {
  return place.right - place.left;
}
int Height(const RECT& place) {
  return place.bottom - place.top;
}

void Fill(HDC dc, const RECT& place, Colour colour) {
  const ScopedBrush brush(CreateSolidBrush(colour));
  FillRect(dc, &place, brush.get());
}

void DrawTextIn(HDC dc, const Control& control, RECT place, Colour colour, UINT format,
                const Face& face, Screen& screen) {
  const Selection font(dc, screen.fonts.Get(control.TextFont(), face.dpi));
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, colour);
  DrawTextA(dc, control.Text().c_str(), static_cast<int>(control.Text().size()), &place, format);
}

void DrawLabel(HDC dc, const Label& label, const Face& face, Screen& screen) {
  Fill(dc, face.place, GroundOf(label));
  const bool is_link = label.Style() == LabelStyle::kLink;
  Colour colour = face.enabled ? label.TextColour() : theme::kDisabledText;
  if (is_link && face.enabled && face.hover) colour = theme::kAccentPressed;
  DrawTextIn(dc, label, face.place, colour, kTextFormat, face, screen);
  if (is_link && face.focused) DrawFocusRect(dc, &face.place);
}

theme::ButtonState StateOf(const Face& face) {
  if (!face.enabled) return theme::ButtonState::kDisabled;
  if (face.pressed) return theme::ButtonState::kPressed;
  return face.hover ? theme::ButtonState::kHover : theme::ButtonState::kNormal;
}

void DrawButton(HDC dc, const Button& button, const Face& face, Screen& screen) {
  const auto state = static_cast<std::size_t>(StateOf(face));
  const bool strong = button.Highlighted();
  const theme::ButtonFace& look = strong ? theme::kStrongButton[state] : theme::kPlainButton[state];
  const int width = Width(face.place);
  const int height = Height(face.place);
  const double line = std::max(1.0, face.dpi / 96.0);
  const double radius = ToPixels(theme::kButtonRadius, face.dpi);
  Canvas canvas(width, height, GroundOf(button));
  if (face.focused || strong) {
    // A ring around the button, a thin gap inside, says where the keyboard is.
    const double ring = ToPixels(theme::kFocusWidth, face.dpi);
    canvas.Outline(0, 0, width, height, radius + ring, line, theme::kAccent, GroundOf(button));
    canvas.Outline(ring, ring, width - ring, height - ring, radius, line, look.border, look.fill);
  } else {
    canvas.Outline(0, 0, width, height, radius, line, look.border, look.fill);
  }
  canvas.CopyTo(dc, 0, 0);
  DrawTextIn(dc, button, face.place, look.text,
             DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX, face, screen);
}

void DrawPicture(HDC dc, const Picture& picture, const Face& face, Screen& screen) {
  Fill(dc, face.place, GroundOf(picture));
  const int size = std::min(Width(face.place), Height(face.place));
  if (picture.on_click && face.hover) {
    Canvas canvas(Width(face.place), Height(face.place), GroundOf(picture));
    canvas.Box(0, 0, Width(face.place), Height(face.place),
               ToPixels(theme::kButtonRadius, face.dpi), theme::kTrack);
    canvas.CopyTo(dc, 0, 0);
  }
  const HICON icon = screen.pictures.Get(picture.PictureKey(), size);
  if (icon == nullptr) return;
  DrawIconEx(dc, (Width(face.place) - size) / 2, (Height(face.place) - size) / 2, icon, size, size,
             0, nullptr, DI_NORMAL);
}

void DrawProgressBar(HDC dc, const ProgressBar& bar, const Face& face) {
  const double width = Width(face.place);
  const double height = Height(face.place);
  Canvas canvas(Width(face.place), Height(face.place), GroundOf(bar));
  canvas.Box(0, 0, width, height, height / 2, theme::kTrack);
  const double filled = width * bar.Value() / bar.Maximum();
  // A little is shown as a dot, not as a sliver.
  if (bar.Value() > 0) {
    canvas.Box(0, 0, std::max(filled, height), height, height / 2, bar.BarColour());
  }
  canvas.CopyTo(dc, 0, 0);
}

void DrawTick(Canvas& canvas, double top, double size) {
  const double width = size / 8;
  canvas.Line({size * 0.26, top + size * 0.52}, {size * 0.43, top + size * 0.69}, width,
              theme::kOnAccent);
  canvas.Line({size * 0.43, top + size * 0.69}, {size * 0.75, top + size * 0.33}, width,
              theme::kOnAccent);
}

// A check box, and with `round` a radio button.
void DrawMarked(HDC dc, const Control& control, bool checked, bool round, const Face& face,
                Screen& screen) {
  const Colour ground = GroundOf(control);
  Fill(dc, face.place, ground);
  const int size = ToPixels(theme::kMarkSize, face.dpi);
  const double line = std::max(1.0, face.dpi / 96.0);
  const double radius = round ? size / 2.0 : size / 5.0;
  const Colour edge = !face.enabled           ? theme::kLine
                      : checked || face.hover ? theme::kAccent
                                              : theme::kBorder;
  Canvas canvas(size, size, ground);
  canvas.Outline(0, 0, size, size, radius, line, edge,
                 checked && face.enabled ? theme::kAccent : theme::kWindow);
  if (checked && round) {
    canvas.Box(size * 0.3, size * 0.3, size * 0.7, size * 0.7, size,
               face.enabled ? theme::kOnAccent : theme::kDisabledText);
  } else if (checked) {
    DrawTick(canvas, 0, size);
  }
  // The mark stands beside the first line of the text.
  const Selection font(dc, screen.fonts.Get(control.TextFont(), face.dpi));
  TEXTMETRICA metric = {};
  GetTextMetricsA(dc, &metric);
  canvas.CopyTo(dc, 0, std::max(0L, (metric.tmHeight - size) / 2));

  RECT place = face.place;
  place.left += size + ToPixels(theme::kGap, face.dpi);
  place.top += std::max(0L, (size - metric.tmHeight) / 2);
  DrawTextIn(dc, control, place, face.enabled ? control.TextColour() : theme::kDisabledText,
             kTextFormat, face, screen);
  if (face.focused) DrawFocusRect(dc, &place);
}

void DrawFrame(HDC dc, const Frame& frame, const Face& face) {
  Fill(dc, face.place, GroundOf(frame));
  if (!frame.Fill() || *frame.Fill() == theme::kWindow) return;
  const RECT line = {face.place.left, face.place.top, face.place.right, face.place.top + 1};
  Fill(dc, line, theme::kLine);
}

}  // namespace

Colour GroundOf(const Control& control) {
  if (control.Kind() == ControlKind::kFrame) {
    if (const auto fill = static_cast<const Frame&>(control).Fill()) return *fill;
  }
  return control.Container() ? GroundOf(*control.Container()) : theme::kWindow;
}

void DrawControl(HDC dc, const Control& control, const Face& face, Screen& screen) {
  switch (control.Kind()) {
    case ControlKind::kLabel:
      return DrawLabel(dc, static_cast<const Label&>(control), face, screen);
    case ControlKind::kButton:
      return DrawButton(dc, static_cast<const Button&>(control), face, screen);
    case ControlKind::kPicture:
      return DrawPicture(dc, static_cast<const Picture&>(control), face, screen);
    case ControlKind::kProgressBar:
      return DrawProgressBar(dc, static_cast<const ProgressBar&>(control), face);
    case ControlKind::kCheckBox:
      return DrawMarked(dc, control, static_cast<const CheckBox&>(control).Checked(), false, face,
                        screen);
    case ControlKind::kRadioButton:
      return DrawMarked(dc, control, static_cast<const RadioButton&>(control).Checked(), true, face,
                        screen);
    case ControlKind::kFrame:
      return DrawFrame(dc, static_cast<const Frame&>(control), face);
    case ControlKind::kTextBox:
    case ControlKind::kSlider:
    case ControlKind::kComboBox:
    case ControlKind::kListView:
    case ControlKind::kDatePicker:
      return;
  }
}

void DrawWindowEdge(HDC dc, SIZE size, POINT seen_from, int radius, int dpi) {
  const int line = std::max(1, ToPixels(1, dpi));
  const ScopedBrush brush(CreateSolidBrush(theme::kBorder));
  const int corner = 2 * ToPixels(radius, dpi);
  // One more, because the system leaves the last row and column of a round box out.
  const ScopedRegion edge(CreateRoundRectRgn(-seen_from.x, -seen_from.y, size.cx - seen_from.x + 1,
                                             size.cy - seen_from.y + 1, corner, corner));
  FrameRgn(dc, edge.get(), brush.get(), line, line);
}

}  // namespace forms::win32
