// The switch of web management, and the alert when its plug-in reports an error.
#include <gtest/gtest.h>

#include "lab/engine/program_names.h"
#include "tests/windows/story.h"

namespace {

namespace keys = shared::keys;
namespace sections = shared::sections;

constexpr std::string_view kPlugin = "SorvanePlugin.exe";
constexpr std::string_view kAlertClass = "frmWelcome";
constexpr std::string_view kItem = "Web Management";

std::string Switch(Story& story) {
  return story.PlainSetting(keys::kWebPlugin, sections::kWeb);
}

void ReportError(Story& story, std::string_view error) {
  story.Start(kPlugin, "error " + std::string(error));
}

TEST(WebManagementStory, IsSwitchedOnAndOffWithItsQuestions) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.Choose(kItem, [] { return Shows(kQuestionClass, "On enabling this option"); }));
  ASSERT_TRUE(CloseWith(kQuestionClass, "Proceed"));
  EXPECT_TRUE(WaitUntil([&] { return Switch(story) == "1"; }));
  EXPECT_EQ(1, story.Traced("Enabling WebPlugin"));
  story.Start(kPlugin);
  ASSERT_TRUE(WaitUntil([&] { return story.IsRunning(kPlugin); }));

  ASSERT_TRUE(
      story.Choose(kItem, [] { return Shows(kQuestionClass, "On disabling this feature"); }));
  ASSERT_TRUE(CloseWith(kQuestionClass, "Proceed"));
  EXPECT_TRUE(WaitUntil([&] { return Switch(story) == "0"; }));
  EXPECT_TRUE(WaitUntil([&] { return !story.IsRunning(kPlugin); }));
}

TEST(WebManagementStory, AChangedPasswordEndsTheSessionAndAsksForTheLogin) {
  Story story;
  story.SetPlainSetting(keys::kWebPlugin, "1", sections::kWeb);
  ASSERT_TRUE(story.StartAgent());
  ReportError(story, "-1");
  ASSERT_TRUE(WaitForText(kAlertClass,
                          "Web Manager is disabled as your password has been changed. Login with "
                          "your new password to continue."));
  EXPECT_EQ(0, story.ConnectionStatus());
  EXPECT_EQ("0", Switch(story));
  EXPECT_FALSE(story.IsRunning(lab::kMainProgram));
  ASSERT_TRUE(CloseWith(kAlertClass, "Close"));
  EXPECT_TRUE(WaitUntil([&] { return story.IsRunning(lab::kMainProgram); }));
}

TEST(WebManagementStory, AnErrorIsToldWithoutALogout) {
  Story story;
  story.SetPlainSetting(keys::kWebPlugin, "1", sections::kWeb);
  ASSERT_TRUE(story.StartAgent());
  ReportError(story, "-3");
  ASSERT_TRUE(WaitForText(kAlertClass, "Web Manager is disabled as an error has occured"));
  EXPECT_EQ(1, story.ConnectionStatus());
  ASSERT_TRUE(CloseWith(kAlertClass, "Close"));
  ASSERT_TRUE(story.WaitForTick());
  EXPECT_FALSE(story.IsRunning(lab::kMainProgram));
}

}  // namespace
