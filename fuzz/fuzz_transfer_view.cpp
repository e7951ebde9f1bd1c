// The transfer view over what the engine writes. Input: BackupProgress.ini as a whole, which also
// serves as UserName.ini for the bandwidth.
#include "fuzz/check.h"
#include "platform/memory/machine.h"
#include "status/status_snapshot.h"
#include "status/transfer_view.h"

namespace {

void CheckPanel(const status::TransferPanel& panel) {
  fuzz::Check(panel.bar >= 0 && panel.bar <= status::kTransferBarMaximum);
  fuzz::Check(panel.bandwidth.value >= 0 && panel.bandwidth.value <= 100);
  // The characters of one value, and one line end.
  fuzz::Check(panel.file_path.size() < platform::ProfileFiles::kBuffer + 2);
  fuzz::Check(panel.overall.size() < platform::ProfileFiles::kBuffer);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view file = fuzz::Text(data, size);
  platform::memory::Machine machine;
  shared::AgentState state;
  state.InstallFolder = "C:\\Sorvane";
  state.ProductFolder = "SorvaneE";
  machine.files().Put("C:\\Sorvane\\SorvaneE\\BackupProgress.ini", file);
  machine.files().Put("C:\\Sorvane\\UserName.ini", file);

  const status::TransferSnapshot transfer = status::ReadTransferSnapshot(machine.platform(), state);
  const status::StatusContext context = status::ReadStatusContext(machine.platform(), state, false);
  status::StatusView view;
  status::EnterTransferView(view, transfer, context);
  CheckPanel(view.transfer);
  fuzz::Check(!view.title.empty() && view.status_line.empty());

  // The same channel gives the same view.
  const status::StatusView before = view;
  status::EnterTransferView(view, transfer, context);
  fuzz::Check(view == before);
  return 0;
}
