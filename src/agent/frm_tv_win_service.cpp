#include "agent/frm_tv_win_service.h"

namespace agent {
namespace {

constexpr forms::FormDesign kDesign = {.name = "frmTVWinService", .caption = "frmTVWinService"};

}  // namespace

frmTVWinService::frmTVWinService(forms::FormHost& host, platform::Platform& machine,
                                 shared::AgentState& state, shared::Texts& texts,
                                 const SharedTexts& shared_texts, status::ScheduleTexts& schedule,
                                 shared::Messages& messages)
    : Form(host, kDesign),
      machine_(machine),
      state_(state),
      texts_(texts),
      icon_(machine.shell, state),
      tip_(machine, state, texts, shared_texts, schedule, icon_),
      menu_(machine, state, texts, shared_texts),
      commands_(machine, state, texts, shared_texts, messages, icon_, tip_, menu_, schedule, *this,
                CDPTimer, WebMTimer),
      icon_events_(machine, state, texts, messages, menu_, *this),
      window_(machine, state, menu_, icon_events_, tip_, commands_,
              [this] {
                RemoveTrayIcon();
                AddTrayIcon();
              }),
      tick_(machine, state, icon_, commands_),
      housekeeping_(machine, state, commands_) {
  menu_.Connect(commands_);
  on_load = [this] { Form_Load(); };
  CDPTimer.on_tick = [this] { commands_.CDPTick(); };
  WebMTimer.on_tick = [this] { commands_.WebMTick(); };
  // Nothing but the menu and the end of the session ends the agent.
  on_close = [this] { MinimiseToTray(); };
}

void frmTVWinService::MinimiseToTray() {
  Minimise();
  Hide();
  menu_.OldPopup().Item("MnuOpen").SetEnabled(true);
}

void frmTVWinService::AddTrayIcon() {
  on_message = [this](std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam) {
    return window_.TrayWindowProc(message, wparam, lparam);
  };
  icon_.Add(Window());
  icon_.SetTrayIcon(commands_.BuildTrayTip());
}

void frmTVWinService::RemoveTrayIcon() {
  icon_.Remove();
  on_message = nullptr;
}

}  // namespace agent
