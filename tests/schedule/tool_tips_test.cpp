#include "schedule/tool_tips.h"

#include <gtest/gtest.h>

namespace schedule {
namespace {

TEST(ToolTips, EachControlHasItsText) {
  const std::string_view rows[][2] = {
      {"frmErrorReport1.cmdSend", "Avail technical support"},
      {"frmErrorReport1.cmdExit", "Exit this screen"},
      {"SchedulerFrm.Pic_Edit", "Edit the selected backup job"},
      {"SchedulerFrm.Pic_Delete",
       "Delete the selected backup job; not possible if the status indicates 'In Progress"},
      {"SchedulerFrm.Pic_Sttrf", "Stop the backup job immediately"},
      {"SchedulerFrm.Pic_Refresh", "Update the scheduled job list with the latest changes"},
      {"frmSchStart1.btnRemove", "Click here to remove the selected email ID"},
      {"frmSchStart1.btnAdd",
       "Provide additional email addresses on which you want to receive the notifications"},
      {"frmSchStart1.Sch_Start4_Next", "Save the information and parameters provided"},
      {"frmSchStart1.Sch_Start6_Help", "Access the Help Guide"},
      {"frmSchStart1.wiz_back", "Go to the next page"},
      {"frmSchStart1.chkBackupIdle", "Halt the backups in case any user activity is detected"},
      {"frmSessionLog.cmdDelete",
       "Delete the log file for the selected backup/restore/delete session"},
      {"frmSessionLog.cmdView", "View log for the selected backup/restore/delete session"},
      {"frmSessionLog.PrevImg", "Go to the previous page"},
  };
  for (const auto& [control, text] : rows) EXPECT_EQ(GetToolTipText(control), text) << control;
}

TEST(ToolTips, TheButtonsOfTheStatusWindowsHaveTipsToo) {
  for (const std::string_view window : {"frmStatus", "frmStatusPrompt"}) {
    EXPECT_EQ(GetToolTipText(std::string(window) + ".Cmd_Yes"), "View the log");
    EXPECT_EQ(GetToolTipText(std::string(window) + ".Cmd_No"), "Close");
  }
}

TEST(ToolTips, TheOtherClosingControlsHaveTipsToo) {
  EXPECT_EQ(GetToolTipText("SchedulerFrm.cmdCancel"), "Exit this screen");
  EXPECT_EQ(GetToolTipText("frmStatus.imgViewLog"), "View the log");
  EXPECT_EQ(GetToolTipText("frmStatus.imgClose"), "Close");
  EXPECT_EQ(GetToolTipText("frmStatus.Image2"), "Close");
  EXPECT_EQ(GetToolTipText("frmStatusPrompt.imgFormClose"), "Close");
}

TEST(ToolTips, AnUnknownControlHasNone) {
  EXPECT_EQ(GetToolTipText(""), "");
  EXPECT_EQ(GetToolTipText("frmStatus"), "");
}

}  // namespace
}  // namespace schedule
