// A person's eyes and hands at the windows of the agent: the real mouse and keyboard. A busy
// desktop loses a click now and then; a person then presses again, and so do these hands.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "lab/screen/window_list.h"

inline constexpr std::string_view kStatusWindowClass = "frmStatus";
inline constexpr std::string_view kQuestionClass = "frmGeneralMessage";

inline constexpr DWORD kBeforeActingAgain = 6'000;  // milliseconds

// Acts until `done`, each time after some seconds without it. False when it does not come.
bool ActUntil(const std::function<void()>& act, const std::function<bool()>& done);

// The visible window of this class; without one, `window` is null.
lab::WindowInfo WindowOf(std::string_view class_name);
// The visible control of the window whose text begins so; without one, `window` is null.
lab::ControlInfo ControlOf(std::string_view class_name, std::string_view text);
bool Shows(std::string_view class_name, std::string_view text);

bool WaitForWindow(std::string_view class_name);
bool WaitUntilClosed(std::string_view class_name);
bool WaitForText(std::string_view class_name, std::string_view text);

// Clicks the control with the mouse until `done`; a control that has gone is not looked for again.
bool Press(std::string_view class_name, std::string_view text, const std::function<bool()>& done);
// Clicks a button that closes its window.
bool CloseWith(std::string_view class_name, std::string_view button);
// The class of the control that has the keyboard in the window; "" when none has.
std::string KeyboardIn(std::string_view class_name);
// Presses the key while the window has the keyboard, until `done`.
bool PressKeyIn(std::string_view class_name, WORD key, const std::function<bool()>& done);
