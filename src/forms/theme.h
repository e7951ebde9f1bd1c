// The look of every window, in one place: colours, fonts, spacing and the faces of buttons.
// Lengths are units (see geometry.h).
#pragma once

#include <cstdint>

namespace forms {

// Red in the lowest byte, then green, then blue.
using Colour = std::uint32_t;

constexpr Colour Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | green << 8 | blue << 16;
}

struct Font {
  int points = 9;
  bool bold = false;
  bool underline = false;
  friend bool operator==(const Font&, const Font&) = default;
};

namespace theme {

inline constexpr Colour kAccent = Rgb(0x1B, 0x74, 0xD0);
inline constexpr Colour kAccentHover = Rgb(0x15, 0x66, 0xBA);
inline constexpr Colour kAccentPressed = Rgb(0x10, 0x52, 0x98);
inline constexpr Colour kWindow = Rgb(0xFF, 0xFF, 0xFF);
inline constexpr Colour kFooter = Rgb(0xF3, 0xF5, 0xF8);
inline constexpr Colour kBorder = Rgb(0xA8, 0xB2, 0xBF);
inline constexpr Colour kLine = Rgb(0xDF, 0xE4, 0xEA);
inline constexpr Colour kText = Rgb(0x1F, 0x29, 0x33);
inline constexpr Colour kMutedText = Rgb(0x5A, 0x67, 0x75);
inline constexpr Colour kDisabledText = Rgb(0x9A, 0xA5, 0xB1);
inline constexpr Colour kOnAccent = Rgb(0xFF, 0xFF, 0xFF);
inline constexpr Colour kAlert = Rgb(0xFF, 0x00, 0x00);
inline constexpr Colour kGood = Rgb(0x43, 0xA9, 0x21);
inline constexpr Colour kBad = Rgb(0xEF, 0x28, 0x25);
inline constexpr Colour kTrack = Rgb(0xE3, 0xE8, 0xEE);

inline constexpr Font kBodyFont = {9, false, false};
inline constexpr Font kTitleFont = {11, true, false};
inline constexpr Font kStrongFont = {9, true, false};
inline constexpr Font kLinkFont = {9, false, true};

inline constexpr int kMargin = 16;        // between a window's edge and what is in it
inline constexpr int kGap = 8;            // between neighbours
inline constexpr int kWidestText = 440;   // a longer line wraps unless its window is wider anyway
inline constexpr int kCornerRadius = 10;  // of windows
inline constexpr int kButtonRadius = 5;
inline constexpr int kButtonHeight = 30;
inline constexpr int kButtonWidth = 92;  // the least; a longer caption widens it
inline constexpr int kButtonPadding = 14;
inline constexpr int kFieldHeight = 24;
inline constexpr int kFieldPadding = 4;
inline constexpr int kBarHeight = 10;
inline constexpr int kMarkSize = 16;  // of a check box or a radio button
inline constexpr int kFocusWidth = 2;

// The face of a button in one of its states.
struct ButtonFace {
  Colour fill;
  Colour border;
  Colour text;
};

enum class ButtonState { kNormal, kHover, kPressed, kDisabled };

// By state: of an ordinary button, and of the default or highlighted one.
inline constexpr ButtonFace kPlainButton[] = {
    {Rgb(0xFF, 0xFF, 0xFF), Rgb(0xB4, 0xBE, 0xCA), kText},
    {Rgb(0xEA, 0xF2, 0xFB), kAccent, kText},
    {Rgb(0xD3, 0xE5, 0xF7), kAccentPressed, kText},
    {Rgb(0xF3, 0xF5, 0xF8), kLine, kDisabledText},
};
inline constexpr ButtonFace kStrongButton[] = {
    {kAccent, kAccent, kOnAccent},
    {kAccentHover, kAccentHover, kOnAccent},
    {kAccentPressed, kAccentPressed, kOnAccent},
    {Rgb(0xF3, 0xF5, 0xF8), kLine, kDisabledText},
};

}  // namespace theme
}  // namespace forms
