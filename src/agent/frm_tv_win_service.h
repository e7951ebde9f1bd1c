// The hidden main form: owner of the notification icon, the menu, the two ticks and the procedure
// through which the rest of Windows talks to the agent.
//
// It is a real top-level window, because only such windows hear that the task bar was made anew.
// It is loaded once and lives until the process ends.
#pragma once

#include "agent/housekeeping_tick.h"
#include "agent/icon_events.h"
#include "agent/main_tick.h"
#include "agent/shared_texts.h"
#include "agent/tray_commands.h"
#include "agent/tray_icon.h"
#include "agent/tray_menu.h"
#include "agent/tray_tip.h"
#include "agent/tray_window.h"
#include "forms/form.h"
#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/messages.h"
#include "shared/texts.h"

namespace agent {

class frmTVWinService : public forms::Form {
 public:
  frmTVWinService(forms::FormHost& host, platform::Platform& machine, shared::AgentState& state,
                  shared::Texts& texts, const SharedTexts& shared_texts,
                  status::ScheduleTexts& schedule, shared::Messages& messages);

  // Hides the window, with `MnuOpen` enabled.
  void MinimiseToTray();

  // Listens to the window's messages and puts the icon in.
  void AddTrayIcon();
  // Takes the icon out and leaves the messages to the window.
  void RemoveTrayIcon();

  TrayIcon& icon() { return icon_; }
  TrayMenu& menu() { return menu_; }
  TrayCommands& commands() { return commands_; }
  MainTick& tick() { return tick_; }

  // The one-shot continuations of two switches, and the look at the clock after a wake-up.
  forms::Timer WebMTimer{*this, "WebMTimer", 100, false};
  forms::Timer CDPTimer{*this, "CDPTimer", 100, false};
  forms::Timer chkHibernationTimeOut{*this, "chkHibernationTimeOut", 1000, false};
  // Has no handler: the quota is looked at by the tick.
  forms::Timer CheckQuotaOut{*this, "CheckQuotaOut", 60000, true};

 private:
  void Form_Load();
  void PrepareForPartner();
  void CompletePassword();
  void MarkWebPluginAtStart();
  void TellWebManagerError();
  void InitialiseScheduleDisable();
  void InstallService();
  void MoveMisspeltKey();
  void KeepCompanionsAlive();
  // Starts a tick whose timer the system has refused so far. Each tick looks after the other.
  void StartTrayTick();
  void StartHousekeepingTick();

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::Texts& texts_;
  TrayIcon icon_;
  TrayTip tip_;
  TrayMenu menu_;
  TrayCommands commands_;
  IconEvents icon_events_;
  TrayWindow window_;
  platform::TimerId tray_timer_ = platform::kNoTimer;
  bool keeps_house_ = false;  // the load has come to the slow tick
  platform::TimerId housekeeping_timer_ = platform::kNoTimer;
  MainTick tick_;
  Housekeeping housekeeping_;
};

}  // namespace agent
