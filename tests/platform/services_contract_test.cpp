// States of services.
#include "tests/platform/contract_test.h"

namespace {

using platform::ServiceAccess;
using platform::ServiceState;

constexpr char kService[] = "SorvaneContract";

class ServicesContract : public ContractTest {
 protected:
  ServiceState State(std::string_view name, ServiceAccess access = ServiceAccess::kRead) {
    return ports().services.State(name, access);
  }
};

TEST_F(ServicesContract, KnowsNothingOfAServiceThatIsNotInstalled) {
  EXPECT_EQ(State("SorvaneMissing"), ServiceState::kUnknown);
  EXPECT_EQ(State("SorvaneMissing", ServiceAccess::kAll), ServiceState::kUnknown);
  EXPECT_EQ(State(""), ServiceState::kUnknown);
}

TEST_F(ServicesContract, TellsARunningService) {
  machine_->PutService(kService, ServiceState::kRunning);
  EXPECT_EQ(State(kService), ServiceState::kRunning);
  EXPECT_EQ(State(kService, ServiceAccess::kAll), ServiceState::kRunning);
}

TEST_F(ServicesContract, TellsAStoppedService) {
  machine_->PutService(kService, ServiceState::kStopped);
  EXPECT_EQ(State(kService), ServiceState::kStopped);
  EXPECT_EQ(State(kService, ServiceAccess::kAll), ServiceState::kStopped);
}

TEST_F(ServicesContract, TellsTheNewStateAtOnce) {
  machine_->PutService(kService, ServiceState::kRunning);
  EXPECT_EQ(State(kService), ServiceState::kRunning);
  machine_->PutService(kService, ServiceState::kStopped);
  EXPECT_EQ(State(kService), ServiceState::kStopped);
}

TEST_F(ServicesContract, FindsAServiceInAnyCase) {
  machine_->PutService(kService, ServiceState::kStopped);
  EXPECT_EQ(State("SORVANEcontract"), ServiceState::kStopped);
}

}  // namespace
