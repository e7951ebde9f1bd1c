// The transfer face of the status window, and what leads in and out of it.
//
// Rules only: they change a view. What stays unmentioned stays as it is shown.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "status/status_snapshot.h"
#include "status/status_view.h"

namespace status {

// Turns the window to the transfer: title, button, panel, bandwidth, frame.
// REQUIRES: transfer.IsShownHere().
void EnterTransferView(StatusView& view, const TransferSnapshot& transfer,
                       const StatusContext& context);

// The panel of the backup, or else of the restore, with what is read of the channel; nothing
// changes but the bandwidth when neither runs.
void RefreshProgressView(StatusView& view, const TransferSnapshot& transfer,
                         const StatusContext& context);

// A path for the two-line box: behind 70 characters (62 in large fonts) the rest stands on a second
// line, which is not wrapped again.
std::string WrapFilePath(std::string_view path, bool large_fonts);

// Title at a fast tick: of an interactive backup or restore, or of rest; a running scheduled job
// keeps what is there.
void SetTitleOfTick(StatusView& view, const TransferSnapshot& transfer,
                    const StatusContext& context);

// "Show this dialog after each schedule backup" belongs to scheduled jobs and to rest.
bool HasNotificationBox(const TransferSnapshot& transfer);

}  // namespace status
