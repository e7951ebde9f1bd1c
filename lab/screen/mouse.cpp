#include "lab/screen/mouse.h"

namespace lab {
namespace {

void SendMouse(DWORD flags) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = flags;
  SendInput(1, &input, sizeof(input));
}

void SendKey(WORD key, DWORD flags) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.dwFlags = flags;
  SendInput(1, &input, sizeof(input));
}

}  // namespace

POINT MiddleOf(const RECT& place) {
  return {(place.left + place.right) / 2, (place.top + place.bottom) / 2};
}

void MoveMouse(POINT place) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  // Absolute places are counted in 65536ths of the screen.
  input.mi.dx = MulDiv(place.x, 65536, GetSystemMetrics(SM_CXSCREEN)) + 1;
  input.mi.dy = MulDiv(place.y, 65536, GetSystemMetrics(SM_CYSCREEN)) + 1;
  input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
  SendInput(1, &input, sizeof(input));
}

void ClickMouse(POINT place, MouseButton button) {
  MoveMouse(place);
  const bool left = button == MouseButton::kLeft;
  SendMouse(left ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_RIGHTDOWN);
  SendMouse(left ? MOUSEEVENTF_LEFTUP : MOUSEEVENTF_RIGHTUP);
}

void DoubleClickMouse(POINT place) {
  ClickMouse(place);
  ClickMouse(place);
}

void DragMouse(POINT from, POINT to) {
  MoveMouse(from);
  SendMouse(MOUSEEVENTF_LEFTDOWN);
  MoveMouse(to);
  SendMouse(MOUSEEVENTF_LEFTUP);
}

void PressKey(WORD key) {
  SendKey(key, 0);
  SendKey(key, KEYEVENTF_KEYUP);
}

}  // namespace lab
