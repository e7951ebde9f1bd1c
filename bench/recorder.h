// Notes the port calls of a stretch of work, with their arguments, so that the same calls can be
// made again without the work around them.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace bench {

// What of an argument outlives its call.
template <class T>
struct KeptArgument {
  using Type = std::decay_t<T>;
};
template <>
struct KeptArgument<std::string_view> {
  using Type = std::string;
};
template <>
struct KeptArgument<std::u16string_view> {
  using Type = std::u16string;
};

class Recorder {
 public:
  void Start() {
    calls_.clear();
    recording_ = true;
  }
  void Stop() { recording_ = false; }

  std::size_t Count() const { return calls_.size(); }

  // Makes all noted calls again, in their order. What they give is dropped.
  void Replay() const {
    for (const auto& call : calls_) call();
  }

  // Makes one call of a port, noting it while recording.
  template <class Port, class Result, class... Parameters>
  Result Pass(Port& port, Result (Port::*method)(Parameters...),
              std::type_identity_t<Parameters>... arguments) {
    if (recording_) {
      using Kept = std::tuple<typename KeptArgument<Parameters>::Type...>;
      Note([&port, method, kept = Kept(arguments...)] {
        std::apply([&](const auto&... values) { static_cast<void>((port.*method)(values...)); },
                   kept);
      });
    }
    return (port.*method)(std::forward<Parameters>(arguments)...);
  }

 private:
  void Note(std::function<void()> call) { calls_.push_back(std::move(call)); }

  bool recording_ = false;
  std::vector<std::function<void()>> calls_;
};

}  // namespace bench
