// The files through which the engine and the agent tell each other what goes on, key by key.
//
// Names that other rooms use too have their text in shared/keys.h and shared/file_names.h; what the
// values mean stands here.
//
// All values are text. A missing file, section or key reads as "", and every reader copes with
// that. No process locks anything: each write is one key, and any mix of old and new may be read.
#pragma once

#include <string_view>

#include "shared/file_names.h"
#include "shared/keys.h"

namespace status {

// UserFolder: the running transfer.
inline constexpr std::string_view kProgressFile = shared::files::kBackupProgressIni;

// --- BackupProgress.ini -------------------------------------------------------------------------

// Progress of a backup and of a restore. The engine writes, the agent only clears. The two sections
// have the same keys but for the first of each.
inline constexpr std::string_view kBackupProgressSection = "BackupProgressInfo";
inline constexpr std::string_view kRestoreProgressSection = "RestoreProgressInfo";

// "1" while the transfer runs, else "0" or empty.
inline constexpr std::string_view kBackupInProgress = "BackupInProgress";
inline constexpr std::string_view kRestoreInProgress = "RestoreInProgress";
// A whole number and exactly one further character, the percent sign.
inline constexpr std::string_view kPercentage = "Percentage";
// Full path of the current file.
inline constexpr std::string_view kFileName = "FileName";
// Texts that are shown as they are, behind a label.
inline constexpr std::string_view kFileCount = "Backedup Files";
inline constexpr std::string_view kTotalProgress = "Total Progress";
inline constexpr std::string_view kTimeElapsed = "Time Elapsed";
inline constexpr std::string_view kEstimatedTime = "Est Time";
inline constexpr std::string_view kTransferRate = "Tans Rate";  // spelled so by every program
// Path and percentage of a single file and of a second one beside it; the agent only clears them.
inline constexpr std::string_view kFilePath = "FilePath";
inline constexpr std::string_view kFilePercent = "FilePer";
inline constexpr std::string_view kFilePathDual = "FilePath Dual";
inline constexpr std::string_view kFilePercentDual = "FilePer Dual";

// The engine's own progress window.
inline constexpr std::string_view kProgWndSection = "ProgWnd";
// Engine; the agent writes "0": the window's handle as a whole number, above 0 while it exists.
inline constexpr std::string_view kProgWndValue = "VALUE";
// Engine: "1" while that window is on the screen, "0" while it is hidden.
inline constexpr std::string_view kProgWndStatus = "Status";
// Engine; the agent writes "": which job runs, one of the values below, "0" or empty for none.
inline constexpr std::string_view kProgWndJob = "Job";
inline constexpr std::string_view kJobInteractive = "1";
inline constexpr std::string_view kJobScheduled = "2";
inline constexpr std::string_view kJobRestore = "3";

// The continuous-backup supervisor's request to the engine: `Cancel` "1". Never read here.
inline constexpr std::string_view kProgressRequestSection = "ProgressInfo";
inline constexpr std::string_view kProgressCancel = "Cancel";

// --- the user's profile ini, section BackupStatus -----------------------------------------------

inline constexpr std::string_view kBackupStatusSection = shared::sections::kBackupStatus;

// Agent: the job's request state. "0" idle, "1" the engine reported a start, "5" stop requested.
inline constexpr std::string_view kStatus = shared::keys::kStatus;
inline constexpr std::string_view kStatusIdle = "0";
inline constexpr std::string_view kStatusRunning = "1";
inline constexpr std::string_view kStatusStopRequested = "5";
// Engine, reset by the agent: empty or "0" nothing to do, "1" a job begins, "2" a job has ended,
// "3" and "4" ended and not yet looked at ("3" also when the agent stopped the engine).
inline constexpr std::string_view kDllStatus = shared::keys::kDllStatus;
inline constexpr std::string_view kDllNothing = "0";
inline constexpr std::string_view kDllStopped = "3";
inline constexpr std::string_view kDllEnded = "4";
// Engine: the last result code as decimal text; see result_codes.h.
inline constexpr std::string_view kRetValue = shared::keys::kReturnValue;
// Agent: "1" a pause is requested, "0" or empty none. The engine polls it. Readers trim it.
inline constexpr std::string_view kPaused = shared::keys::kPaused;
// Agent: "1" asks the engine to end the job; written together with `Paused` "0", and then the agent
// waits kCancelWait milliseconds. The engine consumes it.
inline constexpr std::string_view kCancel = shared::keys::kCancel;
inline constexpr unsigned kCancelWait = 1000;
// Engine: "2" makes login and logoff take the stop path.
inline constexpr std::string_view kProgStatus = shared::keys::kProgStatus;
// Engine and agent: how SchStatus.txt is meant; the spelling is fixed.
inline constexpr std::string_view kMessageIndicator = shared::keys::kStatusMessage;
inline constexpr int kIndicatorNone = 0;
inline constexpr int kIndicatorQuota = 2;    // the file holds the quota message
inline constexpr int kIndicatorAccount = 4;  // the file holds an account notice
// Agent: the same with another slip, read and zeroed once at start-up.
inline constexpr std::string_view kMessageIndicatorMisspelt = shared::keys::kStatusMessageAtStart;
// Engine and agent: "1" asks the agent to open a status window because a job has ended.
inline constexpr std::string_view kStatusWindow = shared::keys::kStatusWindow;
// Engine: the end of the last run, "mm-dd-yyyy HH:mm:ss".
inline constexpr std::string_view kScheduleEndTime = shared::keys::kScheduleEndTime;
// Agent: "1" or "0", the box "Show this dialog after each schedule backup". Whoever sets
// StatusWindow acts on it.
inline constexpr std::string_view kDesktopNotification = shared::keys::kDesktopNotification;
// Engine counts, agent zeroes: days without a scheduled backup. Settings: the threshold and switch.
inline constexpr std::string_view kBackupFailureDays = shared::keys::kBackupFailureDays;
inline constexpr std::string_view kUserDays = shared::keys::kUserDays;
inline constexpr std::string_view kUserDaysEnabled = shared::keys::kUserDaysEnabled;
// Agent: "1" when the tray's Backup Now started the engine.
inline constexpr std::string_view kBackupNowTray = shared::keys::kBackupNowTray;

// --- plain status files -------------------------------------------------------------------------

// UserFolder, engine; the agent clears or writes: one line, the last job's outcome as people read
// it.
inline constexpr std::string_view kOutcomeFile = shared::files::kScheduleStatus;
// UserFolder, engine: its existence alone means that the last scheduled job failed.
inline constexpr std::string_view kOutcomeErrorFile = shared::files::kScheduleStatusError;
// UserFolder, agent: an empty marker; its existence means that the quota is exceeded.
inline constexpr std::string_view kQuotaExceededFile = shared::files::kQuotaExceeded;
// UserFolder, engine: the schedule's records, first line the kind of the running job; and the
// marker that a scheduled job is under way.
inline constexpr std::string_view kScheduleDataFile = shared::files::kScheduleData;
inline constexpr std::string_view kScheduleInfoFile = shared::files::kScheduleInfo;
// InstallFolder, service: its existence selects the paused-job tip.
inline constexpr std::string_view kServiceRunningFile = shared::files::kServiceRunning;
// InstallFolder, agent and engine: "0" at the start of a job; the shadow-copy module owns the rest.
inline constexpr std::string_view kShadowCopyFile = shared::files::kVssStatus;
inline constexpr std::string_view kShadowCopyDllFile = shared::files::kVssStatusDll;

}  // namespace status
