#include "platform/memory/gate.h"

#include <algorithm>

#include "platform/memory/text.h"

namespace platform::memory {

void Gate::Start(bool record) {
  on_ = true;
  record_ = record;
  total_ = 0;
  counts_.clear();
  calls_.clear();
  failed_.clear();
}

void Gate::Stop() {
  on_ = false;
}

void Gate::FailCall(std::uint64_t n) {
  FailCall({}, n);
}

void Gate::FailCall(std::string_view name, std::uint64_t n) {
  TurnOn();
  faults_.push_back({std::string(name), n, {}});
}

void Gate::FailAll(std::string_view name, std::string_view argument) {
  TurnOn();
  faults_.push_back({std::string(name), 0, std::string(argument)});
}

void Gate::Heal() {
  faults_.clear();
}

std::uint64_t Gate::Count(std::string_view name) const {
  const auto found = counts_.find(name);
  return found == counts_.end() ? 0 : found->second;
}

void Gate::TurnOn() {
  if (!on_) Start();
}

bool Gate::Passes(std::string_view name, std::string_view argument) {
  ++total_;
  auto counted = counts_.find(name);
  if (counted == counts_.end()) counted = counts_.emplace(std::string(name), 0).first;
  const std::uint64_t of_this_name = ++counted->second;
  if (record_) calls_.push_back({std::string(name), std::string(argument)});
  const bool fails = std::any_of(faults_.begin(), faults_.end(), [&](const Fault& fault) {
    if (!fault.name.empty() && fault.name != name) return false;
    if (!fault.argument.empty() && !EqualIgnoreCase(fault.argument, argument)) return false;
    return fault.nth == 0 || fault.nth == (fault.name.empty() ? total_ : of_this_name);
  });
  if (fails) failed_.push_back({std::string(name), std::string(argument)});
  return fails;
}

}  // namespace platform::memory
