// What the engine writes about a transfer. Input: a percentage, a line end, then a file that serves
// as BackupProgress.ini, as the profile and as SchStatus.txt.
#include <string>

#include "fuzz/check.h"
#include "platform/memory/machine.h"
#include "status/percentage.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"
#include "status/result_codes.h"
#include "status/transfer_view.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view file = fuzz::Text(data, size);
  const std::string_view percentage = fuzz::Take(file, '\n');
  constexpr std::int16_t kMaximum = 80;
  const auto position = status::BarPosition(percentage, kMaximum);
  fuzz::Check(!position || (*position >= 0 && *position <= kMaximum));
  status::MeaningOf(percentage);

  platform::memory::Machine machine;
  shared::AgentState state;
  state.InstallFolder = "C:\\Sorvane";
  state.ProductFolder = "SorvaneE";
  const std::string folder = "C:\\Sorvane\\SorvaneE\\";
  machine.files().Put(folder + "BackupProgress.ini", file);
  machine.files().Put(folder + "SorvaneE.ini", file);
  machine.files().Put(folder + "SchStatus.txt", file);
  status::ProgressChannel channel(machine.platform(), state);
  const std::string path =
      channel.ReadProgressValue(status::kBackupProgressSection, status::kFileName);
  fuzz::Check(path.size() < platform::ProfileFiles::kBuffer);
  status::WrapFilePath(path, true);
  fuzz::Check(channel.ReadProgWnd(status::kProgWndJob).find('\0') == std::string::npos);
  channel.ReadProgWndValue();
  channel.ReadBackupStatusInt(status::kDllStatus);
  channel.ReadQuotaStatus();
  fuzz::Check(channel.ReadOutcome().value_or("").find_first_of("\r\n") == std::string::npos);

  // Whatever the engine left, a reset leaves no transfer behind.
  channel.ResetProgressFile();
  fuzz::Check(!channel.IsTransferInProgress() && !channel.SyncPaused());
  return 0;
}
