// The fixture of the contract suites.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tests/platform/contract_machine.h"

class ContractTest : public testing::Test {
 protected:
  // A path in the machine's folder.
  std::string In(const std::string& name) { return machine_->Folder() + "\\" + name; }

  platform::Platform& ports() { return machine_->platform(); }

  std::unique_ptr<ContractMachine> machine_ = MakeContractMachine();
};
