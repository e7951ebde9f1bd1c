// Values between controls and the system's windows for them.
#pragma once

#include <windows.h>

#include <string>

#include "forms/controls.h"
#include "forms/win32/screen.h"

namespace forms::win32 {

// Brings the value, or the items and the value, of a control to its window.
void ShowValue(HWND window, const Control& control);
void ShowItems(HWND window, const Control& control, Screen& screen, int dpi);

// The text of a window, whole.
std::string TextOf(HWND window);

// What the user chose or typed, brought to the control.
void TakeText(HWND window, Control& control);
void TakeChoice(HWND window, ComboBox& combo);
void TakeSelection(HWND window, ListView& list);
void TakePosition(HWND window, Slider& slider);
void TakeDate(HWND window, DatePicker& picker);

}  // namespace forms::win32
