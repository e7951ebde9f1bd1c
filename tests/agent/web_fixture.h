// A user who switches web management, and what its plug-in leaves for the agent.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "shared/keys.h"
#include "tests/agent/installed_agent.h"

namespace agent::testing {

inline constexpr std::string_view kAlert = "frmWelcome";

class WebFixture : public ::testing::Test {
 protected:
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.journal().Clear();
  }
  void SetError(std::string_view value) {
    agent_.SetProfile(shared::sections::kOlwa, shared::keys::kWebPluginError, value);
  }
  std::string Profile(std::string_view section, std::string_view key) {
    return agent_.machine.files().IniValue(agent_.UserPath("SorvaneE.ini"), section, key);
  }
  void Click(const char* answer) {
    agent_.host.AnswerWith(answer);
    agent_.agent().form().commands().WebPluginClick();
  }
  bool AlertIsShown() {
    const auto* alert = agent_.host.Find(kAlert);
    return alert != nullptr && alert->Visible();
  }
  forms::MenuItem& Item() { return agent_.Item("WebPlugin"); }
  TrayCommands& Commands() { return agent_.agent().form().commands(); }

  InstalledAgent agent_;
};

}  // namespace agent::testing
