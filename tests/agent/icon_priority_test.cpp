// Crosses the states that the icon's picture depends on and compares what is shown after each of
// several ticks with the order of priority, told once as a list of rules.

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <string_view>

#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::InstalledAgent;
namespace keys = shared::keys;

enum class Edition { kSorvane, kPartner, kPartnerWithoutPicture };

struct World {
  Edition edition = Edition::kSorvane;
  bool quota = false;
  bool logged_in = true;
  int continuous = 0;  // RTBackup
  std::string_view result = "";
  std::string_view engine = "";    // DLLStatus
  std::string_view schedule = "";  // first line; "none": no file
  bool running = false;
};

// "" stands for: the picture before stays.
struct Expected {
  std::string_view first;
  std::string_view second;
};

Expected StatePictureOf(const World& world, std::string_view name) {
  if (world.edition == Edition::kSorvane) return {name, name};
  if (world.edition == Edition::kPartner) return {"acme.ico", "acme.ico"};
  return {"", ""};
}

std::string_view NormalOf(const World& world) {
  return StatePictureOf(world, "tvlog.ico").first;
}

bool IsEnded(const World& world) {
  return !world.result.empty() && !world.engine.empty() && world.engine != "0";
}

// A rule whose picture is not there gives way to the next one.
bool Applies(const World& world) {
  return world.edition != Edition::kPartnerWithoutPicture;
}

// The highest rule that matches; pictures of odd and even ticks.
Expected ByPriority(const World& world) {
  const bool quota = world.quota || world.continuous == 6;
  if (world.logged_in && quota) return {"QExceed1.ico", "QExceed2.ico"};
  if (world.continuous == 1) return {"CDPBlue1.ico", "CDPBlue2.ico"};
  const bool failed = world.continuous >= 2 && world.continuous <= 10 && world.continuous != 6;
  if (failed && Applies(world)) {
    return StatePictureOf(world, "tvlogred.ico");
  }
  if (IsEnded(world) && Applies(world) && world.engine == "3")
    return StatePictureOf(world, "tvlogred.ico");
  if (IsEnded(world) && Applies(world) && world.engine != "3" &&
      (world.schedule == "0" || world.schedule == "none")) {
    return StatePictureOf(world, "tvloggreen.ico");
  }
  if (world.running) {
    const bool partner = world.edition != Edition::kSorvane;
    return {partner ? "tvlogyellowp.ico" : "tvlogyellow.ico", NormalOf(world)};
  }
  return {NormalOf(world), NormalOf(world)};
}

std::string Name(const World& world) {
  return "edition " + std::to_string(static_cast<int>(world.edition)) +
         (world.quota ? " quota" : "") + (world.logged_in ? "" : " logged out") + " continuous " +
         std::to_string(world.continuous) + " result '" + std::string(world.result) + "' engine '" +
         std::string(world.engine) + "' schedule '" + std::string(world.schedule) + "'" +
         (world.running ? " running" : "");
}

void Arrange(InstalledAgent& agent, const World& world) {
  if (world.edition != Edition::kSorvane) agent.MakePartner(world.edition == Edition::kPartner);
  // Used above allowed: the tick does not release the quota.
  agent.SetProfile(shared::sections::kQuotaStatus, keys::kQuotaUsed, "9");
  agent.SetProfile(shared::sections::kQuotaStatus, keys::kQuotaMax, "5");
  agent.SetShifted(keys::kAuthenticated, "1");
  ASSERT_TRUE(agent.Start());
  agent.StopTimers();
  agent.SetConnectionStatus(world.logged_in ? 1 : 0);
  if (world.quota) agent.PutUserFile(status::kQuotaExceededFile);
  agent.SetShared(keys::kRtBackup, std::to_string(world.continuous));
  agent.SetStatus(status::kRetValue, world.result);
  if (world.schedule != "none") {
    agent.PutUserFile(status::kScheduleDataFile, std::string(world.schedule) + "\r\n");
  }
  if (world.running) agent.PutUserFile(status::kScheduleInfoFile);
}

void ExpectPriority(const World& world) {
  InstalledAgent agent;
  Arrange(agent, world);
  const Expected expected = ByPriority(world);
  std::string before = agent.Picture();
  for (int tick = 0; tick < 4; ++tick) {
    // The engine's words as they were: the tick answers some of them.
    agent.SetStatus(status::kDllStatus, world.engine);
    agent.SetStatus(status::kStatus, world.running ? "1" : "0");
    agent.Tick();
    const std::string_view picture = tick % 2 == 0 ? expected.first : expected.second;
    ASSERT_EQ(agent.Picture(), picture.empty() ? before : std::string(picture))
        << Name(world) << ", tick " << tick;
    before = agent.Picture();
  }
}

TEST(IconPriority, FollowsTheOrderForEveryCrossingOfTheStates) {
  constexpr std::array kEngine = {"", "0", "1", "2", "3", "4", "7"};
  constexpr std::array kSchedule = {"0", "2", "none"};
  int crossings = 0;
  for (const Edition edition :
       {Edition::kSorvane, Edition::kPartner, Edition::kPartnerWithoutPicture}) {
    for (int flags = 0; flags < 16; ++flags) {
      for (int continuous = -1; continuous <= 11; ++continuous) {
        for (const char* engine : kEngine) {
          for (const char* schedule : kSchedule) {
            World world;
            world.edition = edition;
            world.quota = (flags & 1) != 0;
            world.logged_in = (flags & 2) != 0;
            world.running = (flags & 4) != 0;
            world.result = (flags & 8) != 0 ? "-416" : "";
            world.continuous = continuous;
            world.engine = engine;
            world.schedule = schedule;
            ExpectPriority(world);
            if (::testing::Test::HasFailure()) return;
            ++crossings;
          }
        }
      }
    }
  }
  EXPECT_EQ(crossings, 3 * 16 * 13 * 7 * 3);
}

}  // namespace
}  // namespace agent
