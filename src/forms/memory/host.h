// Windows in memory, for tests: presses buttons and reads labels by name, answers modal windows
// from a script, and writes down everything shown.
//
//   forms::memory::Host host(machine.platform().events, journal);
//   host.AnswerWith("Continue");          // the next modal window
//   host.ChooseFromMenu("mnuStatus");     // the next popup menu
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"
#include "forms/form_host.h"
#include "forms/menu.h"

namespace forms::memory {

class Host final : public FormHost {
 public:
  // Takes one line for each thing that a person would see or hear.
  using Journal = std::function<void(const std::string& line)>;

  // `events` runs the timers of forms and must outlive the host.
  explicit Host(platform::Events& events, Journal journal = {});
  ~Host() override;

  // --- what a person does. REQUIRES: the form is loaded and has the control.

  // The loaded form with this name, the newest when there are several; null when there is none.
  Form* Find(std::string_view form);
  Control& At(std::string_view form, std::string_view control);
  std::vector<std::string> OpenForms() const;  // those that are shown, the newest last

  void Click(std::string_view form, std::string_view control);
  const std::string& Read(std::string_view form, std::string_view control);
  void Type(std::string_view form, std::string_view control, std::string_view text);
  // A key at the control that has the keyboard.
  void Press(std::string_view form, Key key);
  // The mouse moves over a control.
  void MoveOver(std::string_view form, std::string_view control, Point place = {});
  // A message to the window itself; the answer of on_message, 0 for none.
  std::intptr_t Send(Form& form, std::uint32_t message, std::uintptr_t wparam,
                     std::intptr_t lparam);

  // --- the script of modal windows. Each one takes the next step; a window that no step is left
  // for gets the Escape key, and is unloaded if that does not close it.

  void AnswerWith(std::string_view control) {
    Answer([this, name = std::string(control)](Form& form) { PressNamed(form, name); });
  }
  void Answer(std::function<void(Form&)> step) { answers_.push_back(std::move(step)); }
  // For every window that no step is left for, instead of Escape.
  void AnswerAlways(std::function<void(Form&)> step) { standing_answer_ = std::move(step); }
  std::size_t AnswersLeft() const { return answers_.size(); }

  // --- popup menus. The next one chooses the item; without a script a menu is closed again.

  void ChooseFromMenu(std::string_view item) { choices_.emplace_back(item); }
  int MenusShown() const { return menus_shown_; }
  const std::string& LastMenu() const { return last_menu_; }  // see Dump of a menu

  // The screen, 1920 by 1040 at first.
  void SetDesktop(const Rect& desktop) { desktop_ = desktop; }
  void SetScreenDpi(int dpi) { screen_dpi_ = dpi; }
  // Where a form stands.
  Rect Place(Form& form);

  // --- FormHost
  bool Realise(Form& form) override;
  void Unrealise(Form& form) override;
  void Update(Form& form, const Control* control, Property property) override;
  void SetState(Form& form, WindowState state) override;
  void RunModal(Form& form, Form* owner) override;
  void SetFocus(Control& control) override;
  bool HasFocus(const Control& control) override;
  void PopUp(Form& form, Menu& menu) override;
  void StartDrag(Form& form) override;
  Rect GetDesktopRectt() override { return desktop_; }
  int ScreenDpi() override { return screen_dpi_; }
  platform::WindowId Window(const Form& form) override;
  platform::WindowId Window(const Control& control) override;
  Size MeasureText(const Form& form, std::string_view text, Font font, int width) override;
  std::unique_ptr<forms::ToolTipWindow> MakeToolTip() override;
  platform::Events& Events() override { return events_; }

 private:
  struct Loaded {
    Form* form;
    platform::WindowId window;
    Control* focus = nullptr;
  };

  Loaded* LoadedForm(const Form& form);
  bool Showing(const Form* form) const;
  void Write(const std::string& line);
  void PressNamed(Form& form, const std::string& control);
  void GiveFocus(Loaded& loaded, Control* control);
  void AnswerModal(Form& form);

  platform::Events& events_;
  const Journal journal_;
  std::vector<Loaded> loaded_;
  platform::WindowId last_window_ = 0x10000;
  std::deque<std::function<void(Form&)>> answers_;
  std::function<void(Form&)> standing_answer_;
  std::deque<std::string> choices_;
  int menus_shown_ = 0;
  std::string last_menu_;
  Rect desktop_ = {0, 0, 1920, 1040};
  int screen_dpi_ = 96;
};

}  // namespace forms::memory
