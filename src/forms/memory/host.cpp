#include "forms/memory/host.h"

#include <algorithm>
#include <cstdlib>

#include "forms/memory/dump.h"
#include "forms/memory/text_metric.h"
#include "forms/memory/tool_tip_window.h"

namespace forms::memory {
namespace {

// By WindowState.
constexpr std::string_view kStateWords[] = {"hide", "show", "bring to front", "minimise"};

constexpr int kScreenMargin = 12;
constexpr platform::WindowId kNumbersOfOneForm = 0x10000;

}  // namespace

Host::Host(platform::Events& events, Journal journal)
    : events_(events), journal_(std::move(journal)) {}

Host::~Host() = default;

void Host::Write(const std::string& line) {
  if (journal_) journal_(line);
}

Host::Loaded* Host::LoadedForm(const Form& form) {
  const auto found = std::find_if(loaded_.begin(), loaded_.end(),
                                  [&form](const Loaded& each) { return each.form == &form; });
  return found == loaded_.end() ? nullptr : &*found;
}

Form* Host::Find(std::string_view form) {
  const auto found = std::find_if(loaded_.rbegin(), loaded_.rend(),
                                  [form](const Loaded& each) { return each.form->Name() == form; });
  return found == loaded_.rend() ? nullptr : found->form;
}

Control& Host::At(std::string_view form, std::string_view control) {
  Form* const loaded = Find(form);
  Control* const found = loaded ? loaded->Find(control) : nullptr;
  if (!found) std::abort();
  return *found;
}

std::vector<std::string> Host::OpenForms() const {
  std::vector<std::string> names;
  for (const Loaded& each : loaded_) {
    if (each.form->Visible()) names.push_back(each.form->Name());
  }
  return names;
}

void Host::Click(std::string_view form, std::string_view control) {
  PressNamed(At(form, control).Owner(), std::string(control));
}

void Host::PressNamed(Form& form, const std::string& control) {
  Control* const found = form.Find(control);
  if (!found) std::abort();
  Write("click " + form.Name() + "." + control);
  found->Click();
}

const std::string& Host::Read(std::string_view form, std::string_view control) {
  return At(form, control).Text();
}

void Host::Type(std::string_view form, std::string_view control, std::string_view text) {
  Control& found = At(form, control);
  if (!found.Shown() || !found.Enabled()) return;
  if (found.Kind() == ControlKind::kTextBox) static_cast<TextBox&>(found).Type(text);
  if (found.Kind() == ControlKind::kComboBox) static_cast<ComboBox&>(found).Type(text);
}

void Host::Press(std::string_view form, Key key) {
  Form* const found = Find(form);
  if (!found) std::abort();
  found->PressKey(LoadedForm(*found)->focus, key);
}

void Host::MoveOver(std::string_view form, std::string_view control, Point place) {
  Control& found = At(form, control);
  if (found.on_mouse_move) found.on_mouse_move(place);
}

std::intptr_t Host::Send(Form& form, std::uint32_t message, std::uintptr_t wparam,
                         std::intptr_t lparam) {
  if (!form.Loaded() || !form.on_message) return 0;
  return form.on_message(message, wparam, lparam).value_or(0);
}

Rect Host::Place(Form& form) {
  const Size size = form.Arrange();
  Rect room = desktop_;
  if (form.Design().placement == Placement::kLowerRight) {
    return {room.Right() - size.width - kScreenMargin, room.Bottom() - size.height - kScreenMargin,
            size.width, size.height};
  }
  if (form.Owner() && form.Owner()->Visible()) room = Place(*form.Owner());
  return {room.left + (room.width - size.width) / 2, room.top + (room.height - size.height) / 2,
          size.width, size.height};
}

bool Host::Realise(Form& form) {
  last_window_ += kNumbersOfOneForm;
  loaded_.push_back({&form, last_window_});
  return true;
}

void Host::Unrealise(Form& form) {
  Write("unload " + form.Name());
  std::erase_if(loaded_, [&form](const Loaded& each) { return each.form == &form; });
}

void Host::Update(Form& form, const Control* control, Property property) {
  if (property != Property::kText || !form.Visible()) return;
  if (!control) return Write(form.Name() + " caption " + Quoted(form.Caption()));
  if (control->Shown()) {
    Write(form.Name() + "." + control->Name() + " " + Quoted(control->Text()));
  }
}

void Host::SetState(Form& form, WindowState state) {
  Write(std::string(kStateWords[static_cast<int>(state)]) + " " + form.Name() + " " +
        Quoted(form.Caption()));
}

bool Host::Showing(const Form* form) const {
  return std::any_of(loaded_.begin(), loaded_.end(),
                     [form](const Loaded& each) { return each.form == form && form->Visible(); });
}

void Host::RunModal(Form& form, Form*) {
  Write("modal " + form.Name() + " " + Quoted(form.Caption()));
  for (const Control* control : form.Controls()) {
    if (control->Shown() && !control->Text().empty() && control->Kind() == ControlKind::kLabel) {
      Write("  " + control->Name() + " " + Quoted(control->Text()));
    }
  }
  AnswerModal(form);
  // The step may have left the window to a timer.
  events_.RunUntil([this, &form] { return !Showing(&form); });
}

void Host::AnswerModal(Form& form) {
  if (!answers_.empty()) {
    const auto step = std::move(answers_.front());
    answers_.pop_front();
    return step(form);
  }
  if (standing_answer_) return standing_answer_(form);
  Write("unanswered " + form.Name());
  form.PressKey(nullptr, Key::kEscape);
  if (Showing(&form)) form.Unload();
}

void Host::SetFocus(Control& control) {
  if (Loaded* const loaded = LoadedForm(control.Owner())) GiveFocus(*loaded, &control);
}

void Host::GiveFocus(Loaded& loaded, Control* control) {
  Control* const before = loaded.focus;
  if (before == control) return;
  loaded.focus = control;
  if (before && before->on_blur) before->on_blur();
  if (control && control->on_focus) control->on_focus();
}

bool Host::HasFocus(const Control& control) {
  const Loaded* const loaded = LoadedForm(control.Owner());
  return loaded && loaded->focus == &control;
}

void Host::PopUp(Form& form, Menu& menu) {
  ++menus_shown_;
  last_menu_ = Dump(menu);
  Write("menu " + menu.Name() + " of " + form.Name());
  if (choices_.empty()) return;
  const std::string choice = std::move(choices_.front());
  choices_.pop_front();
  MenuItem& item = menu.Item(choice);
  if (!item.Visible() || !item.Enabled()) return Write("not to be chosen: " + choice);
  Write("choose " + choice);
  if (item.on_click) item.on_click();
}

void Host::StartDrag(Form& form) {
  Write("drag " + form.Name());
}

platform::WindowId Host::Window(const Form& form) {
  const Loaded* const loaded = LoadedForm(form);
  return loaded ? loaded->window : platform::kNoWindow;
}

platform::WindowId Host::Window(const Control& control) {
  const platform::WindowId form = Window(control.Owner());
  return form == platform::kNoWindow ? form : form + static_cast<platform::WindowId>(control.Id());
}

Size Host::MeasureText(const Form&, std::string_view text, Font font, int width) {
  return memory::MeasureText(text, font, width);
}

std::unique_ptr<forms::ToolTipWindow> Host::MakeToolTip() {
  last_window_ += kNumbersOfOneForm;
  return std::make_unique<ToolTipWindow>(last_window_,
                                         [this](const std::string& line) { Write(line); });
}

}  // namespace forms::memory
