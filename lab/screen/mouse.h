// The mouse of the machine, moved and pressed as a person's hand does it.
#pragma once

#include <windows.h>

namespace lab {

enum class MouseButton { kLeft, kRight };

void MoveMouse(POINT place);
void ClickMouse(POINT place, MouseButton button = MouseButton::kLeft);
void DoubleClickMouse(POINT place);
// Presses the left button at one place and lets it go at the other.
void DragMouse(POINT from, POINT to);

// Presses and releases one key (a virtual-key code).
void PressKey(WORD key);

POINT MiddleOf(const RECT& place);

}  // namespace lab
