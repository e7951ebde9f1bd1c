#include "shared/paths.h"

#include <gtest/gtest.h>

namespace shared {
namespace {

AgentState StateOf(std::string_view user) {
  AgentState state;
  state.InstallFolder = "C:\\Sorvane";
  state.ProductFolder = "SorvaneE";
  state.CurrentUser = user;
  return state;
}

TEST(PathsTest, JoinsTheProductWordAndTheUserWithoutASeparator) {
  const AgentState state = StateOf("anna");
  EXPECT_EQ(UserFolder(state), "C:\\Sorvane\\SorvaneEanna");
  EXPECT_EQ(ProfileIni(state), "C:\\Sorvane\\SorvaneEanna\\SorvaneE.ini");
  EXPECT_EQ(RelativeProfileIni(state), "SorvaneEanna\\SorvaneE.ini");
  EXPECT_EQ(LogFolder(state), "C:\\Sorvane\\SorvaneEanna\\SorvaneELog");
  EXPECT_EQ(InUserFolder(state, "x.txt"), "C:\\Sorvane\\SorvaneEanna\\x.txt");
}

TEST(PathsTest, FallsIntoTheCommonFolderWithNobodyLoggedIn) {
  const AgentState state = StateOf("");
  EXPECT_EQ(UserFolder(state), CommonFolder(state));
  EXPECT_EQ(CommonFolder(state), "C:\\Sorvane\\SorvaneE");
  EXPECT_EQ(ProfileIni(state), "C:\\Sorvane\\SorvaneE\\SorvaneE.ini");
}

TEST(PathsTest, PutsTheFilesOfTheMachineIntoTheInstallationFolder) {
  const AgentState state = StateOf("anna");
  EXPECT_EQ(UserNameIni(state), "C:\\Sorvane\\UserName.ini");
  EXPECT_EQ(InInstallFolder(state, "localhost.txt"), "C:\\Sorvane\\localhost.txt");
  EXPECT_EQ(InCommonFolder(state, "TrayTraceFile.txt"), "C:\\Sorvane\\SorvaneE\\TrayTraceFile.txt");
}

}  // namespace
}  // namespace shared
