// Numbers of the window messages that other programs and the system send to the hidden window.
#pragma once

#include <cstdint>

namespace agent {

inline constexpr std::uint32_t kWmClose = 16;
inline constexpr std::uint32_t kWmEndSession = 0x16;
inline constexpr std::uint32_t kWmPowerBroadcast = 0x218;
inline constexpr std::uint32_t kOutsideIconEvent = 0x7E9;  // the icon's events, told by a program
inline constexpr std::uint32_t kServiceEndOfSession = 1034;

// What the mouse did on the icon.
inline constexpr std::uint32_t kLeftDoubleClick = 0x203;
inline constexpr std::uint32_t kRightButtonUp = 0x205;

}  // namespace agent
