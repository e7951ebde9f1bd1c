// File names of the other programs of an installation of this product.
#pragma once

#include <string_view>

namespace lab {

inline constexpr std::string_view kEngineClient = "SorvaneEClsClient.exe";
inline constexpr std::string_view kBackgroundProcess = "SorvaneEBackground.exe";
inline constexpr std::string_view kMainProgram = "SorvaneEClassic.exe";

}  // namespace lab
