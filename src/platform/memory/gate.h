// The gate that every port call of the agent passes: it counts, records, and lets chosen calls fail
// as the real call fails (an empty value, false, an error's number).
//
// Closed calls have no effect. Calls of actors and of the machine itself do not pass. A call that
// cannot fail (Now, Sleep, ...) is counted, and failing it changes nothing. The gate is off until
// Start, and costs one test then.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace platform::memory {

struct GateCall {
  std::string name;      // "files.Read"
  std::string argument;  // the path, key or name that the call is about
};

class Gate {
 public:
  // Counts from zero; with `record` also keeps name and argument of each call.
  void Start(bool record = false);
  // Lets all calls through uncounted again. What was counted stays.
  void Stop();

  // Makes the n-th call (from 1) since Start fail, whatever it is. Starts the gate when it is off.
  void FailCall(std::uint64_t n);
  // Makes the n-th call of this name since Start fail.
  void FailCall(std::string_view name, std::uint64_t n);
  // Makes every call of this name fail, only those about `argument` when it is not empty.
  void FailAll(std::string_view name, std::string_view argument = {});
  // Takes the faults back; counting goes on.
  void Heal();

  std::uint64_t total() const { return total_; }
  std::uint64_t Count(std::string_view name) const;
  const std::map<std::string, std::uint64_t, std::less<>>& counts() const { return counts_; }
  const std::vector<GateCall>& calls() const { return calls_; }
  // Calls that were made to fail, in order.
  const std::vector<GateCall>& failed() const { return failed_; }

  // For the ports: true when this call is to fail.
  bool Fails(std::string_view name, std::string_view argument = {}) {
    return on() && Passes(name, argument);
  }
  bool on() const { return on_ && !aside_; }
  // Calls made while aside (by actors) do not pass the gate.
  void SetAside(bool aside) { aside_ = aside; }

 private:
  struct Fault {
    std::string name;       // any when empty
    std::uint64_t nth = 0;  // every when 0
    std::string argument;   // any when empty
  };
  bool Passes(std::string_view name, std::string_view argument);
  void TurnOn();

  bool on_ = false;
  bool aside_ = false;
  bool record_ = false;
  std::uint64_t total_ = 0;
  std::map<std::string, std::uint64_t, std::less<>> counts_;
  std::vector<GateCall> calls_;
  std::vector<GateCall> failed_;
  std::vector<Fault> faults_;
};

}  // namespace platform::memory
