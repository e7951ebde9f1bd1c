// The one record of the agent's memory. Everything else is read from the files at each use.
//
// Passed by reference; there are no other mutable globals. What a long handler must keep while it
// pumps messages lives here, so that a nested tick sees it. Each field names its width where the
// width is part of the behaviour.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "platform/processes.h"
#include "platform/shell.h"
#include "shared/schedule_record.h"

namespace shared {

// File names of the programs of the installation; fixed once at start-up from the product table.
struct ExecutableNames {
  std::string realtime_module;  // continuous-backup module
  std::string registry_converter;
  std::string background;    // background scheduler process
  std::string tray;          // this program
  std::string main_program;  // interactive main program
  std::string service;
  std::string set_size_helper;     // backup-set size helper
  std::string context_menu;        // context-menu helper
  std::string view_module;         // explorer view module; empty in the partner edition
  std::string explorer_extension;  // empty in the partner edition
  std::string drive_launcher;      // empty in the partner edition
  std::string web_plugin;          // web-management plug-in
  std::string service_batch_base;  // base word of the service's batch files
};

// Pages of the product's site, from the configuration file; fixed once at start-up.
struct WebLinks {
  std::string firewall;
  std::string upgrade;
  std::string account_upgrade;  // the user's name is put behind it
  std::string login;
  std::string forgotten_password;
  std::string features;
  std::string signup;
  std::string update;
  std::string support;
  std::string setup;
  std::string promote;
  std::string website;
};

struct AgentState {
  // Identity of the product.
  std::int16_t ProductNumber = 0;  // 1 partner edition, 2 this product
  std::string ProductName;         // word in captions
  std::string ProductFolder;       // folder below InstallFolder
  std::string ProductTreeViewName;
  std::string ProductCaption;  // long title; window-title searches use it
  std::string ExeGroup;        // stem of all executable names
  std::string Language;
  std::string DisplayName;    // word in messages
  std::string BrandIconFile;  // partner's icon below images; empty for this product
  std::string MutexName;
  std::string ClientProgram;  // engine client, in InstallFolder
  ExecutableNames executables;
  WebLinks links;
  std::string FailureCaption;       // captions of the boxes that report a failure
  std::string LogonFailureCaption;  // and a failed logon
  bool LargeFonts = false;

  // Places and the user.
  std::string InstallFolder;  // without a final backslash
  std::string CurrentUser;    // empty when nobody is logged in

  // Server pair in use and the deployment's defaults.
  std::string ServerAddress;
  std::string ServerPort;
  std::string PrimaryServerAddress;
  std::string SecondaryServerAddress;
  std::string DefaultPort;
  std::string DomainName;

  // The exchange with the engine client.
  std::string LoginUser;     // user of a login in progress, empty otherwise
  std::string ClientRandom;  // this client's random digits, held between calls
  platform::ProcessHandle ClientProcess = platform::kNoProcess;  // the last started client
  std::string CommandArgument;            // the last argument with a payload in brackets
  std::int16_t RandomRenewConfirmed = 0;  // -1: the user wants new random digits

  // The user's locale, read at start and by each window that shows dates.
  std::string ShortDateFormat;  // for instance "M/d/yyyy"; "d" in front means day first
  std::string TimeFormat;       // for instance "h:mm:ss tt"

  // The schedule: the file that was loaded last, its records and what the wizard edits. Only a copy
  // of the file at the last load.
  std::string ScheduleFilePath;
  std::vector<ScheduleRecord> ScheduleTable;  // ScheduleCount records and a spare one
  std::size_t ScheduleCount = 0;
  std::size_t CurrentRecordIndex = 0;  // the element of the table that is edited
  ScheduleRecord ScheduleDraft;        // values of the wizard before they go to the table
  std::int16_t ScheduleJobType = 0;    // 1 and 4 default set, 2 SQL, 5 system state, 6 Exchange

  // The tick.
  std::int16_t JobState = 0;  // job code of this tick
  bool BlinkPhase = false;    // false: the next running tick shows the yellow picture
  bool CdpBlinkPhase = false;
  bool QuotaBlinkPhase = false;
  bool CdpRunning = false;
  bool CdpIdle = false;
  bool KeepAwakeOn = false;
  bool LoggedOutMeanwhile = false;  // a logout ran; a long handler that clears it can tell
  bool WebSwitchUnderWay = false;   // the switch's timer waits until the item shows its new state
  bool ContinuousSwitchUnderWay = false;  // a long handler pumps: its timer's ticks wait
  bool ForceStatusRefresh = false;
  double last_return_value = 0;  // the engine's result as ReadJobStatus saw it last

  // Supervision.
  std::int16_t ServiceStartTries = 0;
  std::int16_t ServiceWaitTicks = 0;
  bool StartHelperLaunched = false;             // the elevated start was asked for once
  platform::ProcessId BackgroundProcessId = 0;  // as the last look found it

  // The main form.
  bool LoadingDone = false;          // the form has been loaded and the ticks are set
  bool RestartStatusWindow = false;  // the status window is to be opened anew when it closes

  // The web-management switch and the quota check.
  std::int16_t WebRetryCount = 0;  // 1: the alert was shown since the switch was used
  std::int16_t WebErrorTold = 0;   // the plug-in's error that was dealt with last; 0 none
  std::int16_t WebState = 0;       // 0: the plug-in has been ended
  std::int16_t QuotaCheck = 0;

  // Suspend and wake.
  bool CancelWakeWait = false;  // a new, earlier time has come: the running wait ends

  // The product's own question box.
  bool MessageAnswer = false;
};

}  // namespace shared
