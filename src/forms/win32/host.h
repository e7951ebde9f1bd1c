// Windows on the real screen. One for a program, on its one thread.
#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "forms/form_host.h"
#include "forms/win32/form_window.h"
#include "forms/win32/screen.h"
#include "platform/win32/events.h"

namespace forms::win32 {

class Host final : public FormHost {
 public:
  // Sees the keys of all forms as the filter of `events`, which must outlive the host. With a
  // `fixed_dpi` above 0 all windows are scaled for it, whatever the screen says.
  explicit Host(platform::win32::Events& events, int fixed_dpi = 0);
  ~Host() override;

  bool Realise(Form& form) override;
  void Unrealise(Form& form) override;
  void Update(Form& form, const Control* control, Property property) override;
  void SetState(Form& form, WindowState state) override;
  void RunModal(Form& form, Form* owner) override;
  void SetFocus(Control& control) override;
  bool HasFocus(const Control& control) override;
  void PopUp(Form& form, Menu& menu) override;
  void StartDrag(Form& form) override;
  Rect GetDesktopRectt() override;
  int ScreenDpi() override { return screen_.Dpi(nullptr); }
  platform::WindowId Window(const Form& form) override;
  platform::WindowId Window(const Control& control) override;
  Size MeasureText(const Form& form, std::string_view text, Font font, int width) override;
  std::unique_ptr<forms::ToolTipWindow> MakeToolTip() override;
  platform::Events& Events() override { return events_; }

 private:
  // A window that all others wait for.
  struct Modal {
    const Form* form;
    std::vector<HWND> disabled;
  };

  FormWindow* WindowFor(const Form& form) const;
  bool FilterKey(const MSG& message);
  void BeginModal(const FormWindow& window);
  void EndModal(const Form& form);
  void Bury();

  platform::win32::Events& events_;
  Screen screen_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  std::vector<std::unique_ptr<FormWindow>> closed_;  // until no message is under way in them
  std::vector<Modal> modals_;
};

}  // namespace forms::win32
