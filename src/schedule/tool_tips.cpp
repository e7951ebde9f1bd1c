#include "schedule/tool_tips.h"

#include <algorithm>
#include <array>

namespace schedule {
namespace {

struct ToolTip {
  std::string_view control;
  std::string_view text;
};

constexpr std::array kTips = {
    ToolTip{"frmErrorReport1.cmdSend", "Avail technical support"},
    ToolTip{"frmErrorReport1.cmdExit", "Exit this screen"},
    ToolTip{"SchedulerFrm.Pic_Edit", "Edit the selected backup job"},
    ToolTip{"SchedulerFrm.Pic_Delete",
            "Delete the selected backup job; not possible if the status indicates 'In Progress"},
    ToolTip{"SchedulerFrm.Pic_Sttrf", "Stop the backup job immediately"},
    ToolTip{"SchedulerFrm.Pic_Refresh", "Update the scheduled job list with the latest changes"},
    ToolTip{"SchedulerFrm.cmdCancel", "Exit this screen"},
    ToolTip{"frmSchStart1.btnRemove", "Click here to remove the selected email ID"},
    ToolTip{"frmSchStart1.btnAdd",
            "Provide additional email addresses on which you want to receive the notifications"},
    ToolTip{"frmSchStart1.Sch_Start4_Next", "Save the information and parameters provided"},
    ToolTip{"frmSchStart1.Sch_Start6_Help", "Access the Help Guide"},
    ToolTip{"frmSchStart1.wiz_back", "Go to the next page"},
    ToolTip{"frmSchStart1.chkBackupIdle", "Halt the backups in case any user activity is detected"},
    ToolTip{"frmSessionLog.cmdDelete",
            "Delete the log file for the selected backup/restore/delete session"},
    ToolTip{"frmSessionLog.cmdView", "View log for the selected backup/restore/delete session"},
    ToolTip{"frmSessionLog.PrevImg", "Go to the previous page"},
    ToolTip{"frmStatus.Cmd_Yes", "View the log"},
    ToolTip{"frmStatus.imgViewLog", "View the log"},
    ToolTip{"frmStatus.Cmd_No", "Close"},
    ToolTip{"frmStatus.imgClose", "Close"},
    ToolTip{"frmStatus.Image2", "Close"},
    ToolTip{"frmStatusPrompt.Cmd_Yes", "View the log"},
    ToolTip{"frmStatusPrompt.Cmd_No", "Close"},
    ToolTip{"frmStatusPrompt.imgFormClose", "Close"},
};

}  // namespace

std::string_view GetToolTipText(std::string_view name) {
  const auto found = std::ranges::find(kTips, name, &ToolTip::control);
  return found == kTips.end() ? std::string_view() : found->text;
}

}  // namespace schedule
