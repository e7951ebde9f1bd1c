#include "forms/win32/child_kinds.h"

#include <commctrl.h>

#include "forms/controls.h"

namespace forms::win32 {
namespace {

// By TextBoxStyle.
constexpr DWORD kTextBoxStyles[] = {
    ES_AUTOHSCROLL,  // has its border from the theme
    WS_BORDER | WS_VSCROLL | ES_MULTILINE | ES_AUTOVSCROLL | ES_WANTRETURN,
    ES_MULTILINE | ES_READONLY,
    ES_READONLY,
};

// By DatePickerStyle.
constexpr DWORD kDatePickerStyles[] = {DTS_SHORTDATECENTURYFORMAT, DTS_TIMEFORMAT | DTS_UPDOWN};

}  // namespace

ChildKind KindOf(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::kLabel:
    case ControlKind::kPicture:
      return {WC_STATICA, SS_OWNERDRAW | SS_NOTIFY, 0};
    case ControlKind::kFrame:
      return {WC_STATICA, SS_OWNERDRAW, 0};
    case ControlKind::kButton:
      return {WC_BUTTONA, BS_OWNERDRAW | BS_NOTIFY, 0};
    case ControlKind::kCheckBox:
      return {WC_BUTTONA, BS_CHECKBOX, 0};
    case ControlKind::kRadioButton:
      return {WC_BUTTONA, BS_RADIOBUTTON, 0};
    case ControlKind::kTextBox:
      return {WC_EDITA,
              kTextBoxStyles[static_cast<int>(static_cast<const TextBox&>(control).Style())], 0};
    case ControlKind::kProgressBar:
      return {PROGRESS_CLASSA, 0, 0};
    case ControlKind::kSlider:
      return {TRACKBAR_CLASSA, TBS_HORZ | TBS_NOTICKS | TBS_BOTH, 0};
    case ControlKind::kComboBox:
      return {WC_COMBOBOXA,
              WS_VSCROLL | static_cast<DWORD>(static_cast<const ComboBox&>(control).Editable()
                                                  ? CBS_DROPDOWN | CBS_AUTOHSCROLL
                                                  : CBS_DROPDOWNLIST),
              0};
    case ControlKind::kListView:
      return {WC_LISTVIEWA, WS_BORDER | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS, 0};
    case ControlKind::kDatePicker:
      return {DATETIMEPICK_CLASSA,
              kDatePickerStyles[static_cast<int>(static_cast<const DatePicker&>(control).Style())],
              0};
  }
  return {WC_STATICA, 0, 0};
}

}  // namespace forms::win32
