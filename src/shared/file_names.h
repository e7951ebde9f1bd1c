// Names of the shared files, each once. The folder is told for each group.
#pragma once

#include <string_view>

namespace shared::files {

// In the installation folder.
inline constexpr std::string_view kUserNameIni = "UserName.ini";
inline constexpr std::string_view kConfigurationIni = "Configuration.ini";
inline constexpr std::string_view kPartnerConfig = "images\\Config.txt";  // partner edition's mark
inline constexpr std::string_view kServiceRunning = "ServiceRunning.txt";
inline constexpr std::string_view kVssStatus = "TVVSSCommonStatus.txt";
inline constexpr std::string_view kVssStatusDll = "TVVSSCommonStatusDll.txt";
inline constexpr std::string_view kVssTrace = "VSSTraceFile.txt";
inline constexpr std::string_view kLocalHost = "localhost.txt";  // its presence: server is local
inline constexpr std::string_view kSearchSuffix = "Search.ini";  // <brand>Search.ini
inline constexpr std::string_view kPartnerSearchIni = "Tolvex ProfessionalSearch.ini";

// In the user's folder: the engine.
inline constexpr std::string_view kBackupProgressIni = "BackupProgress.ini";
inline constexpr std::string_view kDllInput = "DLLInput.txt";
inline constexpr std::string_view kDllOutput = "DLLOutput.txt";
inline constexpr std::string_view kDllOutput1 = "DLLOutput1.txt";  // redirection: port, address
inline constexpr std::string_view kScheduleStatus = "SchStatus.txt";
inline constexpr std::string_view kScheduleStatusError = "SchStatusError.txt";
inline constexpr std::string_view kQuotaExceeded = "QuotaExceeded.txt";  // its presence is the sign
inline constexpr std::string_view kContextMenuRun = "ContextMenuRun.txt";
inline constexpr std::string_view kTempRecordValues = "TempRecVals.txt";
inline constexpr std::string_view kWebManagementLog = "WebMgmt.Log";

// In the user's folder: the schedule.
inline constexpr std::string_view kScheduleData = "scheduleData.txt";
inline constexpr std::string_view kScheduleInfo = "scheduleInfo.txt";
inline constexpr std::string_view kMailId = "Mailid.txt";

// In the user's or the common folder: the backup set.
inline constexpr std::string_view kSimpleAutoPathIni = "SimpleAutoPath.ini";
inline constexpr std::string_view kAutoFileSelection = "AutoFileSelection.txt";
inline constexpr std::string_view kBackupFolderList = "atbkupfolderlist.txt";
inline constexpr std::string_view kBackupExcludeFile = "atbkupExcludeFile.txt";
inline constexpr std::string_view kBackupExcludeFilePath = "atbkupExcludeFilePath.txt";
inline constexpr std::string_view kBackupExcludeFolder = "atbkupExcludeFolder.txt";
inline constexpr std::string_view kBackupExcludeList = "atbkupExcludelist.txt";
inline constexpr std::string_view kUserExcludeFolder = "UserExcludeFolder.txt";

// In the user's folder: traces. The first also in the common and in the installation folder.
inline constexpr std::string_view kTrayTrace = "TrayTraceFile.txt";
inline constexpr std::string_view kSerTrace = "SerTraceFile.txt";
inline constexpr std::string_view kScheduleTrace = "ScheduleTraceFile.txt";
inline constexpr std::string_view kEngineTrace = "TraceFile.txt";
inline constexpr std::string_view kInteractiveTrace = "ITraceFile.txt";
inline constexpr std::string_view kContextMenuTrace = "ContextMenuTrace.txt";

// In the common folder.
inline constexpr std::string_view kLogAttachment = "TmpLogAttach.txt";

// Library of the localised texts, in the installation folder.
inline constexpr std::string_view kTextLibrary = "TVToolTips.dll";

}  // namespace shared::files
