// What the engine client can be asked, as it takes it on its command line, and what it answers.
#pragma once

#include <string_view>

namespace shared {

struct EngineCommand {
  std::string_view argument;  // exactly so: a leading blank, the number, the payload in brackets
  int attempts;               // runs until the agent gives up
  bool waits;                 // whether the agent waits for the end of a run
};

namespace commands {
inline constexpr EngineCommand kCheckServer{" 23< >", 10, true};
inline constexpr EngineCommand kCheckAccount{" 9< >", 10, true};
inline constexpr EngineCommand kRegisterRandom{" 5< >", 10, true};
inline constexpr EngineCommand kRefreshQuota{" 7< >", 1, false};  // not while the result is -432
inline constexpr EngineCommand kDailySync{" 20", 1, false};
inline constexpr EngineCommand kCheckUserType{" 38", 10, true};
inline constexpr EngineCommand kReadMailAddress{" 105<>", 3, true};
}  // namespace commands

// Values of `RetValue`. Any other value is a failure of the one request.
namespace results {
inline constexpr double kSuccess = 402;
inline constexpr double kRandomAccepted = -414;
inline constexpr double kRandomUnknown = -505;  // the server does not know this machine
inline constexpr double kGiveUp = -40;
inline constexpr double kServerUnreachable = -416;
inline constexpr double kServerRefused = -405;
inline constexpr double kProxyFailures[] = {-12008, -12009, -12010};
}  // namespace results

}  // namespace shared
