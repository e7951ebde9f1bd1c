// Sections, keys and registry names of the shared state, each once, with its meaning.
//
// A value is text; a missing one reads as "" and means "not set". "Shifted" keys and values pass
// through the profile shift on their way to the file, "plain" ones stand as written; where only the
// value is shifted, the comment says so. Several programs share these files, and the misspelt names
// are the ones that all of them use.
#pragma once

#include <string_view>

namespace shared::sections {

// Of the profile.
inline constexpr std::string_view kTolvex = "Tolvex";  // also of UserName.ini and the search file
inline constexpr std::string_view kProxy = "Proxy";
inline constexpr std::string_view kDateFormat = "DateFormat";
inline constexpr std::string_view kBackupStatus = "BackupStatus";
inline constexpr std::string_view kQuotaStatus = "QuotaStatus";
inline constexpr std::string_view kWeb = "Web";
inline constexpr std::string_view kOlwa = "OLWA";
inline constexpr std::string_view kPcInfo = "PCInfo";  // also of UserName.ini
inline constexpr std::string_view kMpc = "MPC";
inline constexpr std::string_view kScanType = "ScanType";
inline constexpr std::string_view kFile = "File";
inline constexpr std::string_view kRealTime = "REALTIME";

// Of UserName.ini.
inline constexpr std::string_view kRegistry = "Registry";
inline constexpr std::string_view kRdPlugin = "RDPlugin";

// Of the search file.
inline constexpr std::string_view kSearchEnable = "SearchEnable";

// Of SimpleAutoPath.ini.
inline constexpr std::string_view kAutoFilePaths = "AUTOFILEPATHS";

}  // namespace shared::sections

namespace shared::keys {

// The profile, section Tolvex, shifted.
inline constexpr std::string_view kUserName = "username";        // account name
inline constexpr std::string_view kPassword = "password";        // account password
inline constexpr std::string_view kEncPassword = "encpassword";  // password in the engine's form
inline constexpr std::string_view kServerIp = "serverip";  // server in use; twin kPlainAddress
inline constexpr std::string_view kPort = "port";          // its port; twin kPlainPort
inline constexpr std::string_view kRandom = "random";      // this client's random digits
inline constexpr std::string_view kAuthenticated = "Authenticated";  // "1" after a good login
inline constexpr std::string_view kAutoReconnect = "AutoReconnect";  // traced at start only
inline constexpr std::string_view kAutoConnect = "AutoConnect";      // "1": dial up by itself
inline constexpr std::string_view kIspName = "ISPName";              // the dial-up entry
inline constexpr std::string_view kFirstUser = "FirstUser";          // "TRUE" on a user's first run
inline constexpr std::string_view kClientPid = "ClientPID";          // running backup client
inline constexpr std::string_view kClientPidRestore = "ClientPIDR";  // running restore client
inline constexpr std::string_view kShutdown = "SHUTDOWN";  // power off after a scheduled backup
inline constexpr std::string_view kStartMissedSchedule = "STARTMISSEDSCH";  // also in UserName.ini
inline constexpr std::string_view kScheduleDisable = "ScheduleDisable";     // "TRUE": scheduler off
inline constexpr std::string_view kScheduleType = "Schedule Type";          // written by the wizard
inline constexpr std::string_view kBackupIdle = "BackupIdle";  // "1": when idle; also UserName.ini
inline constexpr std::string_view kBandwidth = "Bandwidth";    // limit; also in UserName.ini
inline constexpr std::string_view kBandwidthIdleState = "BandwidthIdleState";  // likewise

// The profile, section Tolvex, plain key and shifted value.
inline constexpr std::string_view kEncPasswordNew = "encpasswordnew";  // before kEncPassword

// The profile, section Tolvex, plain.
inline constexpr std::string_view kPlainPassword = "User Password";  // tested by web management
inline constexpr std::string_view kPlainAddress = "IPAddres";        // kServerIp for the engine
inline constexpr std::string_view kPlainPort = "OutPort";            // kPort for the engine
inline constexpr std::string_view kRealTimeBackup =
    "RealTimeBackup";  // "1": continuous backup on; also in UserName.ini
inline constexpr std::string_view kCdpRetry = "CDP_RETRY";  // retries of continuous backup
inline constexpr std::string_view kAutoSync = "AutoSync";
inline constexpr std::string_view kMailId = "Mail-ID";           // address of notifications
inline constexpr std::string_view kRecommended = "Recomended";   // recommended settings, "0": not
inline constexpr std::string_view kProxySetPlain = "Proxy set";  // "0": direct connection
inline constexpr std::string_view kShortcutPath = "ShortcutPath";
inline constexpr std::string_view kSyncDay = "TID";  // next daily synchronisation
inline constexpr std::string_view kSyncMonth = "TIM";
inline constexpr std::string_view kSyncYear = "TIY";

// The profile, section Proxy, shifted.
inline constexpr std::string_view kProxySet = "Proxyset";  // "1": a proxy is used; empty is "0"
inline constexpr std::string_view kProxyTypeHttp = "proxytypehttp";
inline constexpr std::string_view kProxyTypeSocks = "proxytypesocks";
inline constexpr std::string_view kProxyName = "ProxyName";
inline constexpr std::string_view kProxyPort = "ProxyPort";
inline constexpr std::string_view kProxyAuthOn = "ProxyAuthOn";  // whether the next two apply
inline constexpr std::string_view kProxyUser = "ProxyUser";
inline constexpr std::string_view kProxyPass = "ProxyPass";

// The profile, section BackupStatus, plain: the hand-shake with the engine.
inline constexpr std::string_view kReturnValue = "RetValue";  // the engine's last result
inline constexpr std::string_view kDllStatus = "DLLStatus";   // the engine's life cycle
inline constexpr std::string_view kStatus = "Status";         // the agent's job request
inline constexpr std::string_view kProgStatus = "ProgStatus";
inline constexpr std::string_view kPaused = "Paused";              // "1" asks the engine to pause
inline constexpr std::string_view kCancel = "Cancel";              // "1" asks the engine to end
inline constexpr std::string_view kStatusWindow = "StatusWindow";  // 1: show the end of a job
inline constexpr std::string_view kStatusMessage = "StatusMessageIndicaton";
inline constexpr std::string_view kStatusMessageAtStart =
    "StausMessageIndicaton";  // a key of its own, read and zeroed at start
inline constexpr std::string_view kDesktopNotification = "DesktopNotification";
inline constexpr std::string_view kScheduleEndTime = "SchEndTime";
inline constexpr std::string_view kBackupNowTray = "BackupNowTray";
inline constexpr std::string_view kBackupFailureDays = "BackupFailureDays";
inline constexpr std::string_view kUserDays = "UserDays";
inline constexpr std::string_view kUserDaysEnabled = "UserDaysEnabled";

// The profile, section QuotaStatus, plain: bytes as decimal text.
inline constexpr std::string_view kQuotaUsed = "Used";
inline constexpr std::string_view kQuotaMax = "Max";

// The profile, sections Web and OLWA, plain.
inline constexpr std::string_view kWebPlugin = "WebPlugin";    // "1": web management on
inline constexpr std::string_view kWebPluginError = "ErrVal";  // last error of the plug-in

// The profile, plain, written by the engine and only shown.
inline constexpr std::string_view kHostConfigName = "HostConfigName";  // PCInfo
inline constexpr std::string_view kHostIdConfig = "HostIDConfig";
inline constexpr std::string_view kAccess = "Access";
inline constexpr std::string_view kList = "List";  // MPC
inline constexpr std::string_view kHosts = "Hosts";
inline constexpr std::string_view kScanDb = "DB";  // ScanType
inline constexpr std::string_view kScanTrash = "Trash";
inline constexpr std::string_view kMainSucceeded = "MainSucc";  // File
inline constexpr std::string_view kDualSucceeded = "DualSucc";
inline constexpr std::string_view kScanStatus = "scanStatus";  // REALTIME
inline constexpr std::string_view kScannerId = "ScannerID";
inline constexpr std::string_view kWatcherStatus = "WatcherStatus";
inline constexpr std::string_view kFreeSpace = "FreeSpace";

// UserName.ini, section Registry.
inline constexpr std::string_view kDefaultUserName =
    "Default User name";  // value shifted; the one logged-in user, empty for nobody
inline constexpr std::string_view kCurrentUser = "CurrentUser";  // its plain copy
inline constexpr std::string_view kTray = "Tray";      // "0" or empty: supervision runs; "3": ended
inline constexpr std::string_view kLogOff = "LogOff";  // "1": the session ends
inline constexpr std::string_view kStandbyBackup = "StandbyBackup";  // "1": backups in standby
inline constexpr std::string_view kBackupIdleState = "BackupIdleState";
inline constexpr std::string_view kStopSchedule = "StopSchedule";  // cut-off of a job: the flag
inline constexpr std::string_view kStopScheduleTime = "StopScheduleTime";  // and the time
inline constexpr std::string_view kNextTransfer = "NextTransfer";          // time of the next job
inline constexpr std::string_view kMappedDriveError = "MappedDriveError";
inline constexpr std::string_view kShareCount = "UNCCount";  // number of records of shares
inline constexpr std::string_view kSharePrefix = "UNC";      // UNC1, UNC2, ...: the records
inline constexpr std::string_view kSharesEncrypted = "UNCEncrypted";  // "1": they are shifted
inline constexpr std::string_view kSystemRandomSuffix =
    " client system random number";  // after the product's folder word: the machine's random digits

// UserName.ini, section Tolvex, plain.
inline constexpr std::string_view kInteractive = "Interactive";  // user whom the client acts for
inline constexpr std::string_view kInteractiveLists = "InteractiveLists";  // account's address
inline constexpr std::string_view kScheduled = "Scheduled";                // only shown
inline constexpr std::string_view kStandard = "Standard";  // "1" before the login program starts
inline constexpr std::string_view kStarted = "Started";    // "0" or "1"
inline constexpr std::string_view kRtBackup = "RTBackup";  // continuous backup: its state
inline constexpr std::string_view kRtPausedBySchedule = "RTBPausedBySch";
inline constexpr std::string_view kShowWelcome = "ShowWelcome";  // "1" asks for the welcome window
inline constexpr std::string_view kTrayIconDay = "TrayIconDay";  // stamp of the daily step
inline constexpr std::string_view kTrayIconMonth = "TrayIconMonth";
inline constexpr std::string_view kTrayIconYear = "TrayIconYear";
inline constexpr std::string_view kTrayIconHour = "TrayIconHour";
inline constexpr std::string_view kTrayIconMinute = "TrayIconMinute";

// UserName.ini, sections PCInfo and RDPlugin.
inline constexpr std::string_view kMacAddress = "MACAddress";
inline constexpr std::string_view kWindowsAccount = "UserName";
inline constexpr std::string_view kPluginAuth = "Auth";  // whole number, polled

// The search file, section Tolvex.
inline constexpr std::string_view kStartMissedJob = "StartMissedJob";  // "1" or "0"

}  // namespace shared::keys

namespace shared::registry {

// Keys: <root>\<ProductFolder>, and what stands below it.
inline constexpr std::string_view kRoot = "Software\\Bellwick-Labs\\";
inline constexpr std::string_view kOldRoot = "Software\\";  // only a fallback of reads
inline constexpr std::string_view kConnectionParameters = "\\Connection Parameters";
inline constexpr std::string_view kApplication = "\\Application";
inline constexpr std::string_view kDialUpProfiles = "RemoteAccess\\Profile\\";  // + dial-up entry

// Values of the root.
inline constexpr std::string_view kFirstTimeUser = "FirstTimeUser";    // "TRUE" once it was read
inline constexpr std::string_view kInstalledFirst = "InstalledFirst";  // empty: first start ever
inline constexpr std::string_view kPluginFlag = "PluginFlag";  // "1": the view module is installed

// Value of Connection Parameters.
inline constexpr std::string_view kConnectionStatus = "Status";  // 0 logged out, 1 or 2 logged in

// Values of Application: what is installed.
inline constexpr std::string_view kVersion = "Version";
inline constexpr std::string_view kReleaseDate = "Release Date";
inline constexpr std::string_view kExplorerVersion = "Explorer Version";
inline constexpr std::string_view kExplorerReleaseDate = "Explorer Release Date";

// Value of Software\<ProductFolder> of the machine: the engine's mode for open files.
inline constexpr std::string_view kOpenFileMode = "OpenFileMode";

// Value of a dial-up entry.
inline constexpr std::string_view kDialUpAutoConnect = "AutoConnect";

}  // namespace shared::registry
