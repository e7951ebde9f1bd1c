// The alert at the lower right of the screen when web management has been switched off.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "forms/form.h"

namespace forms {

// What the alert asks of the tray.
struct WelcomeCommands {
  std::function<void()> open_options;  // closes the main program and starts it anew
  std::function<void()> open_error_report;
  std::function<void(std::string_view)> write_trace;  // one line with its leading word
};

class frmWelcome : public Form {
 public:
  frmWelcome(FormHost& host, WelcomeCommands commands);
  ~frmWelcome() override { Unload(); }

  // The reason, shown as it is.
  Label lblInstall{*this, "lblInstall", "Web Manager is disabled as an error has occured"};

  // The way to the error report, in the gap of its sentence.
  Label lblErrorReportLink{*this, "lblErrorReportLink", "send error report.", LabelStyle::kLink};
  Label lblSupport{*this, "lblSupport", "For further assistance, .", LabelStyle::kMuted};

  // Whether the error report is offered below the reason.
  void OfferErrorReport(bool offered);

  // 1: the user must log in again, Close leads there first; 0: Close only closes.
  std::int16_t LoginRequired = 0;

 private:
  void FadeIn();
  void Close();
  void ReportError();

  const WelcomeCommands commands_;
  Label Label5{*this, "Label5", "Sorvane - Web Management", LabelStyle::kTitle};
  Button cmdExit{*this, "cmdExit", "Close", ButtonRole::kCancel};
  Picture imgPicture{*this, "imgPicture", "warn", {32, 32}};
  Frame fraTitle{*this, "fraTitle", theme::kWindow};
  Frame fraButtons{*this, "fraButtons", theme::kFooter};
  Timer Timer1{*this, "Timer1", 25, true};
  Timer Timer2{*this, "Timer2", 25, false};
};

}  // namespace forms
