// Services that stand in one state, for the contract suites.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/services.h"

class ContractServices {
 public:
  // `companion` is the program that serves.
  explicit ContractServices(std::string companion) : companion_(std::move(companion)) {}
  ContractServices(const ContractServices&) = delete;
  ContractServices& operator=(const ContractServices&) = delete;
  ~ContractServices();

  void Put(const std::string& name, platform::ServiceState state);

 private:
  void Remove(const std::string& name);

  std::string companion_;
  std::vector<std::string> names_;
};
