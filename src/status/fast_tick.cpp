#include "status/fast_tick.h"

#include "status/transfer_view.h"

namespace status {

void DecideFastTick(const TickFrame& frame, IdleView& idle, std::string_view user,
                    const TransferSnapshot& transfer) {
  StatusView& view = frame.view;
  // 1.
  if (frame.memory.user != user) {
    frame.memory.user = user;
    frame.effects.Trace(" [INFORMATION] User login has been changed ");
    idle.ChangeUser();
  }
  // 2.
  if (user.empty()) return idle.LoggedOut();
  idle.LoggedIn(user);
  // 3.
  SetTitleOfTick(view, transfer, frame.context);
  view.notification_shown = HasNotificationBox(transfer);
  // 4., 5.
  if (transfer.IsShownHere()) return EnterTransferView(view, transfer, frame.context);
  // 6.
  if (transfer.IsShownByEngine()) return idle.GiveWay();
  // 7., 8.
  if (transfer.in_progress) {
    idle.ShowUnseenTransfer(transfer);
  } else {
    idle.LeaveTransfer();
  }
}

}  // namespace status
