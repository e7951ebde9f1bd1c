#include "agent/menu_items.h"

namespace agent {
namespace {

using shared::AgentCommands;
using enum ItemDesign;

constexpr MenuItemRow kTrayMenu[] = {
    {"MnuQuotaExceeded", "Quota Exceeded. Upgrade Now!", kHidden,
     &AgentCommands::MnuQuotaExceededClick},
    {"mnuStatus", "Status", kShown, &AgentCommands::OpenStatusWindow},
    {"BLLine", "-", kHidden},
    {"MnuOptions", "&SorvaneE Classic - Schedule Backup", kShown, &AgentCommands::MnuOptionsClick},
    {"MnuOpenDrive", "&SorvaneE Drive", kShown, &AgentCommands::MnuOpenDriveClick},
    {"blankline10", "-"},
    {"MnuViewLog", "&Activity Log", kShown, &AgentCommands::OpenSessionLog},
    {"mnuSession", "&Session Log", kHiddenDisabled, &AgentCommands::OpenSessionLog},
    {"blaknline11", "-"},
    {"WebPlugin", "&Web Management", kShown, &AgentCommands::WebPluginClick},
    {"menuDesktop", "&Enable Desktop Search", kHiddenDisabled},
    {"mnuCDP", "", kShown, &AgentCommands::MnuCdpClick},
    {"mnuStop", "&Stop Scheduled Backup", kShown, &AgentCommands::StopClick},
    {"MnuDisableAutobkup", "&Disable Automatic Backup", kShown,
     &AgentCommands::MnuDisableAutobkupClick},
    {"mnuschinfo", "&Manage all the Scheduled Jobs", kShown, &AgentCommands::OpenManageJobs},
    {"mnuBackupNowSVE", "&Backup Now", kShown, &AgentCommands::MnuBackupNowClick},
    {"blankline3", "-"},
    {"mnuVersionUpdate", "Check for Updates", kShown, &AgentCommands::MnuVersionUpdateClick},
    {"blankline2", "-"},
    {"MnuAbout", "&About", kHidden, &AgentCommands::MnuAboutClick},
    {"MnuSendReport", "&Send Error Report", kShown, &AgentCommands::OpenErrorReport},
    {"MnuHelp", "&Help", kShown, &AgentCommands::MnuHelpClick},
    {"blnklin3", "-", kHidden},
    {"MnuLogin", "&Logout", kHidden, &AgentCommands::MnuLoginClick},
    {"blnklin4", "-"},
    {"MnuExit", "&Exit", kShown, &AgentCommands::MnuExitClick},
    {"mnuStatusPrompt", "Status Prompt", kHidden, &AgentCommands::OpenStatusPrompt},
    {"MnuSessionlog", "&View Session Log", kHidden},
};

constexpr MenuItemRow kOldMenu[] = {
    {"MnuOpen", "&Recent log", kShown, &AgentCommands::MnuOpenClick},
    {"mnuStop1", "&Stop"},
    {"mnuBackupNow", "&Backup Now"},
    {"mnuschinfo1", ""},
    {"mnuEnableScheduleBackup", "&Enable Scheduled Backup"},
    {"mnuschinfo11", "&Scheduler information"},
    {"mnuShutdown", "&Exit", kShown, &AgentCommands::MnuExitClick},
};

constexpr CaptionRow kCaptions[] = {
    {"mnuCDP", 972, "Continuous Backup"},
    {"MnuViewLog", 409, "Activity Log"},
    {"mnuBackupNowSVE", 421, "Backup Now"},
    {"MnuSendReport", 451, "Send Error Report"},
    {"MnuExit", 433, "Exit"},
    {"mnuStatus", 1440, "Status"},
    {"WebPlugin", 1442, "Web Management"},
    {"mnuStop", 1443, "Stop Scheduled Backup"},
    {"mnuschinfo", 1444, "Manage all the Scheduled Jobs"},
    {"mnuVersionUpdate", 1445, "Check for Updates"},
};

}  // namespace

std::span<const MenuItemRow> TrayMenuRows() {
  return kTrayMenu;
}
std::span<const MenuItemRow> OldMenuRows() {
  return kOldMenu;
}
std::span<const CaptionRow> LocalisedCaptions() {
  return kCaptions;
}

}  // namespace agent
