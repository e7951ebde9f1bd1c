#include "forms/win32/child_values.h"

#include <commctrl.h>

namespace forms::win32 {
namespace {

constexpr int kListPictureSize = 16;

SYSTEMTIME ToSystemTime(const platform::LocalTime& time) {
  SYSTEMTIME system_time = {};
  system_time.wYear = static_cast<WORD>(time.year);
  system_time.wMonth = static_cast<WORD>(time.month);
  system_time.wDay = static_cast<WORD>(time.day);
  system_time.wHour = static_cast<WORD>(time.hour);
  system_time.wMinute = static_cast<WORD>(time.minute);
  system_time.wSecond = static_cast<WORD>(time.second);
  return system_time;
}

platform::LocalTime ToLocalTime(const SYSTEMTIME& time) {
  return {time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond};
}

int SelectedRow(HWND window) {
  return static_cast<int>(
      SendMessageA(window, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
}

void SelectRow(HWND window, int row) {
  if (SelectedRow(window) == row) return;
  LVITEMA state = {};
  state.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
  SendMessageA(window, LVM_SETITEMSTATE, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&state));
  if (row < 0) return;
  state.state = state.stateMask;
  SendMessageA(window, LVM_SETITEMSTATE, static_cast<WPARAM>(row),
               reinterpret_cast<LPARAM>(&state));
}

void ShowColumns(HWND window, const ListView& list, int dpi) {
  while (SendMessageA(window, LVM_DELETECOLUMN, 0, 0)) {
  }
  int place = 0;
  for (const Column& column : list.Columns()) {
    LVCOLUMNA system_column = {};
    system_column.mask = LVCF_TEXT | LVCF_WIDTH;
    system_column.cx = ToPixels(column.width, dpi);
    system_column.pszText = const_cast<char*>(column.header.c_str());
    SendMessageA(window, LVM_INSERTCOLUMNA, static_cast<WPARAM>(place++),
                 reinterpret_cast<LPARAM>(&system_column));
  }
}

// The list owns the image list that it is given.
int AddPicture(HIMAGELIST images, const std::string& key, Screen& screen, int size) {
  const HICON picture = screen.pictures.Get(key, size);
  return picture ? screen.controls.AddPicture(images, picture) : -1;
}

void ShowRow(HWND window, int place, const Row& row, int image) {
  LVITEMA item = {};
  item.mask = LVIF_TEXT | LVIF_IMAGE;
  item.iItem = place;
  item.iImage = image;
  item.pszText = const_cast<char*>(row.cells.empty() ? "" : row.cells[0].c_str());
  SendMessageA(window, LVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&item));
  item.mask = LVIF_TEXT;
  for (std::size_t cell = 1; cell < row.cells.size(); ++cell) {
    item.iSubItem = static_cast<int>(cell);
    item.pszText = const_cast<char*>(row.cells[cell].c_str());
    SendMessageA(window, LVM_SETITEMA, 0, reinterpret_cast<LPARAM>(&item));
  }
}

void ShowList(HWND window, const ListView& list, Screen& screen, int dpi) {
  SendMessageA(window, WM_SETREDRAW, FALSE, 0);
  SendMessageA(window, LVM_DELETEALLITEMS, 0, 0);
  ShowColumns(window, list, dpi);
  const int size = ToPixels(kListPictureSize, dpi);
  const HIMAGELIST images = screen.controls.CreateImageList(size);
  const auto before = reinterpret_cast<HIMAGELIST>(
      SendMessageA(window, LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(images)));
  if (before) screen.controls.DestroyImageList(before);
  int place = 0;
  for (const Row& row : list.Rows()) {
    ShowRow(window, place++, row,
            row.picture.empty() ? -1 : AddPicture(images, row.picture, screen, size));
  }
  SendMessageA(window, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(window, nullptr, TRUE);
}

void ShowChoices(HWND window, const ComboBox& combo) {
  SendMessageA(window, CB_RESETCONTENT, 0, 0);
  for (const std::string& item : combo.Items()) {
    SendMessageA(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
  }
}

// A typed text that is no item stays.
void ShowChoice(HWND window, const ComboBox& combo) {
  SendMessageA(window, CB_SETCURSEL, static_cast<WPARAM>(combo.Selected()), 0);
  if (combo.Selected() < 0) SetWindowTextA(window, combo.Text().c_str());
}

void ShowProgress(HWND window, const ProgressBar& bar) {
  SendMessageA(window, PBM_SETRANGE32, 0, bar.Maximum());
  SendMessageA(window, PBM_SETPOS, static_cast<WPARAM>(bar.Value()), 0);
}

}  // namespace

std::string TextOf(HWND window) {
  std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
  const int length = GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

void ShowValue(HWND window, const Control& control) {
  switch (control.Kind()) {
    case ControlKind::kProgressBar:
      return ShowProgress(window, static_cast<const ProgressBar&>(control));
    case ControlKind::kSlider:
      SendMessageA(window, TBM_SETPOS, TRUE, static_cast<const Slider&>(control).Value());
      return;
    case ControlKind::kCheckBox:
      SendMessageA(window, BM_SETCHECK, static_cast<const CheckBox&>(control).Checked(), 0);
      return;
    case ControlKind::kRadioButton:
      SendMessageA(window, BM_SETCHECK, static_cast<const RadioButton&>(control).Checked(), 0);
      return;
    case ControlKind::kComboBox:
      return ShowChoice(window, static_cast<const ComboBox&>(control));
    case ControlKind::kListView:
      return SelectRow(window, static_cast<const ListView&>(control).Selected());
    case ControlKind::kDatePicker: {
      const SYSTEMTIME time = ToSystemTime(static_cast<const DatePicker&>(control).Value());
      SendMessageA(window, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&time));
      return;
    }
    case ControlKind::kLabel:
    case ControlKind::kButton:
    case ControlKind::kTextBox:
    case ControlKind::kPicture:
    case ControlKind::kFrame:
      return;
  }
}

void ShowItems(HWND window, const Control& control, Screen& screen, int dpi) {
  if (control.Kind() == ControlKind::kComboBox) {
    ShowChoices(window, static_cast<const ComboBox&>(control));
  }
  if (control.Kind() == ControlKind::kListView) {
    ShowList(window, static_cast<const ListView&>(control), screen, dpi);
  }
}

void TakeText(HWND window, Control& control) {
  if (control.Kind() == ControlKind::kTextBox) static_cast<TextBox&>(control).Type(TextOf(window));
  if (control.Kind() == ControlKind::kComboBox) {
    static_cast<ComboBox&>(control).Type(TextOf(window));
  }
}

void TakeChoice(HWND window, ComboBox& combo) {
  combo.Choose(static_cast<int>(SendMessageA(window, CB_GETCURSEL, 0, 0)));
}

void TakeSelection(HWND window, ListView& list) {
  list.Choose(SelectedRow(window));
}

void TakePosition(HWND window, Slider& slider) {
  slider.Move(static_cast<int>(SendMessageA(window, TBM_GETPOS, 0, 0)));
}

void TakeDate(HWND window, DatePicker& picker) {
  SYSTEMTIME time = {};
  if (SendMessageA(window, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&time)) == GDT_VALID) {
    picker.Choose(ToLocalTime(time));
  }
}

}  // namespace forms::win32
