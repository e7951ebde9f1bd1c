#include "forms/frm_welcome.h"

#include <utility>

#include "forms/bands.h"

namespace forms {
namespace {

constexpr int kWidth = 380;
constexpr int kTextWidth = 280;
constexpr int kFullAlpha = 255;
constexpr int kFadeStep = 7;  // full after 37 ticks, a little less than a second

constexpr FormDesign kDesign = {
    .name = "frmWelcome",
    .caption = "Sorvane - Web Management",
    .width = kWidth,
    .placement = Placement::kLowerRight,
    .on_top = true,
    .quiet = true,
    .layered = true,
    .corner_radius = theme::kCornerRadius,
};

}  // namespace

frmWelcome::frmWelcome(FormHost& host, WelcomeCommands commands)
    : Form(host, kDesign), commands_(std::move(commands)) {
  cmdExit.SetFocus();
  Label5.SetDragsWindow(true);
  Label5.SetContainer(fraTitle);
  cmdExit.SetContainer(fraButtons);

  on_load = [this] {
    SetAlpha(0);
    Timer1.SetEnabled(true);
  };
  Timer1.on_tick = [this] { FadeIn(); };
  cmdExit.on_click = [this] { Close(); };
  on_close = cmdExit.on_click;
  lblErrorReportLink.on_click = [this] { ReportError(); };
  on_arranged = [this] {
    PlaceLinkInText(lblErrorReportLink, lblSupport, "For further assistance,");
  };

  SetLayout(Bands({
      Pile({Item(fraTitle), Line({Item(Label5)}).Padding(theme::kMargin)}),
      BodyBand({
          Line({Item(imgPicture).AtTop(),
                Stack({Item(lblInstall).Width(kTextWidth).Grow(), Item(lblSupport)}).Grow()})
              .Gap(theme::kMargin),
      }),
      ButtonBand(fraButtons, {Item(cmdExit)}),
  }));
}

void frmWelcome::FadeIn() {
  SetAlpha(Alpha() + kFadeStep);
  if (Alpha() == kFullAlpha) Timer1.SetEnabled(false);
}

void frmWelcome::OfferErrorReport(bool offered) {
  lblErrorReportLink.SetVisible(offered);
  lblSupport.SetVisible(offered);
}

void frmWelcome::Close() {
  // Once: starting a program may let a second click in.
  if (std::exchange(LoginRequired, std::int16_t{0}) == 1) commands_.open_options();
  commands_.write_trace("  [INFORMATION]  WebpluginAlert Screen is Closed");
  Unload();
}

void frmWelcome::ReportError() {
  Hide();
  commands_.open_error_report();
}

}  // namespace forms
