#include "forms/form.h"

#include <algorithm>

namespace forms {
namespace {

bool CanTakeFocus(const Control& control) {
  return control.TabStop() && control.Shown() && control.Enabled();
}

// Buttons and links.
bool IsPressed(const Control& control) {
  return control.Kind() == ControlKind::kButton || control.Kind() == ControlKind::kLabel;
}

// Text of several lines takes the key as a line end.
bool KeepsEnter(const Control& control) {
  return control.Kind() == ControlKind::kTextBox &&
         static_cast<const TextBox&>(control).Style() == TextBoxStyle::kSeveralLines;
}

bool MovesByArrows(const Control& control) {
  if (control.Kind() == ControlKind::kTextBox) {
    return static_cast<const TextBox&>(control).Style() == TextBoxStyle::kFocusCatcher;
  }
  return IsPressed(control) || control.Kind() == ControlKind::kRadioButton;
}

// The arrows go from one to the other.
bool ArePeers(const Control& one, const Control& other) {
  if (one.Kind() != other.Kind()) return false;
  if (one.Kind() != ControlKind::kRadioButton) return true;
  return static_cast<const RadioButton&>(one).Group() ==
         static_cast<const RadioButton&>(other).Group();
}

bool MovesThings(Property property) {
  return property == Property::kText || property == Property::kVisible ||
         property == Property::kLook || property == Property::kItems;
}

}  // namespace

Form::Form(FormHost& host, const FormDesign& design)
    : host_(host), design_(design), name_(design.name), caption_(design.caption) {}

Form::~Form() {
  // The members of the derived form are gone: only the window is left to be taken away.
  controls_.clear();
  timers_.clear();
  if (loaded_) host_.Unrealise(*this);
}

void Form::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  NoteChange(nullptr, Property::kText);
}

void Form::SetAlpha(int alpha) {
  alpha = std::clamp(alpha, 0, 255);
  if (alpha_ == alpha) return;
  alpha_ = alpha;
  NoteChange(nullptr, Property::kLook);
}

void Form::SetMousePointer(Pointer pointer) {
  if (pointer_ == pointer) return;
  pointer_ = pointer;
  NoteChange(nullptr, Property::kLook);
}

void Form::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  NoteChange(nullptr, Property::kEnabled);
}

void Form::Load() {
  if (loaded_) return;
  loaded_ = true;
  needs_arranging_ = true;
  host_.Realise(*this);
  if (on_load) on_load();
  for (Timer* timer : timers_) timer->Follow(loaded_);
}

void Form::Unload() {
  if (!loaded_) return;
  if (on_unload) on_unload();
  if (!loaded_) return;  // a handler unloaded it meanwhile
  loaded_ = false;
  for (Timer* timer : timers_) timer->Follow(false);
  state_ = WindowState::kHidden;
  owner_ = nullptr;
  host_.Unrealise(*this);
}

void Form::Show() {
  SetState(WindowState::kShown);
}

void Form::BringToFront() {
  SetState(WindowState::kInFront);
}

void Form::ShowModal(Form* owner) {
  Load();
  if (!loaded_) return;  // on_load gave up
  owner_ = owner;
  state_ = WindowState::kInFront;
  host_.RunModal(*this, owner);
}

void Form::Hide() {
  if (loaded_) SetState(WindowState::kHidden);
}

void Form::Minimise() {
  SetState(WindowState::kMinimised);
}

void Form::SetState(WindowState state) {
  Load();
  if (!loaded_) return;
  if (state_ == state && state != WindowState::kInFront) return;
  state_ = state;
  host_.SetState(*this, state);
}

platform::WindowId Form::Window() const {
  return loaded_ ? host_.Window(*this) : platform::kNoWindow;
}

Control* Form::Find(std::string_view name) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [name](Control* control) { return control->Name() == name; });
  return found == controls_.end() ? nullptr : *found;
}

Control* Form::Find(int id) const {
  const auto found = std::find_if(controls_.begin(), controls_.end(),
                                  [id](Control* control) { return control->Id() == id; });
  return found == controls_.end() ? nullptr : *found;
}

void Form::SetLayout(Cell layout) {
  layout_ = std::move(layout);
  NoteChange(nullptr, Property::kBounds);
}

Size Form::Arrange() {
  needs_arranging_ = false;
  Size size = {design_.width, 0};
  if (layout_) {
    size = forms::Arrange(*layout_, design_.width, *this, host_);
  } else {
    for (const Control* control : controls_) {
      if (!control->Shown()) continue;
      size.width = std::max(size.width, control->Bounds().Right());
      size.height = std::max(size.height, control->Bounds().Bottom());
    }
  }
  if (on_arranged) on_arranged();
  return size;
}

bool Form::PressKey(Control* focused, Key key) {
  if (!enabled_) return false;
  if (focused && focused->on_key && focused->on_key(key)) return true;
  if (on_key && on_key(key)) return true;
  return ClickByKey(focused, key) || MoveByKey(focused, key);
}

bool Form::ClickByKey(Control* focused, Key key) {
  if (key == Key::kEnter && focused && KeepsEnter(*focused)) return false;
  if (focused && IsPressed(*focused) && (key == Key::kEnter || key == Key::kSpace)) {
    focused->Click();
    return true;
  }
  if (key != Key::kEnter && key != Key::kEscape) return false;
  const ButtonRole wanted = key == Key::kEnter ? ButtonRole::kDefault : ButtonRole::kCancel;
  for (Control* control : controls_) {
    if (control->Kind() != ControlKind::kButton || !control->Shown()) continue;
    if (static_cast<Button*>(control)->Role() != wanted) continue;
    control->Click();
    return true;
  }
  return false;
}

bool Form::MoveByKey(Control* focused, Key key) {
  const bool backwards = key == Key::kBackTab || key == Key::kLeft || key == Key::kUp;
  if (key == Key::kTab || key == Key::kBackTab) {
    Control* const next = NextStop(focused, backwards);
    if (next) next->SetFocus();
    return next != nullptr;
  }
  const bool is_arrow = backwards || key == Key::kRight || key == Key::kDown;
  if (!is_arrow || !focused || !MovesByArrows(*focused)) return false;
  Control* next = NextStop(focused, backwards);
  for (std::size_t tries = 0; next && !ArePeers(*focused, *next) && tries < controls_.size();
       ++tries) {
    next = NextStop(next, backwards);
  }
  // The key is used up where there is nothing to go to.
  if (!next || next == focused || !ArePeers(*focused, *next)) return true;
  next->SetFocus();
  if (next->Kind() == ControlKind::kRadioButton) next->Click();
  return true;
}

Control* Form::FirstStop() const {
  return first_stop_ && CanTakeFocus(*first_stop_) ? first_stop_ : NextStop(nullptr, false);
}

Control* Form::NextStop(const Control* from, bool backwards) const {
  const int count = static_cast<int>(controls_.size());
  const int step = backwards ? -1 : 1;
  int place = backwards ? 0 : -1;
  for (int index = 0; index < count; ++index) {
    if (controls_[static_cast<std::size_t>(index)] == from) place = index;
  }
  for (int tries = 0; tries < count; ++tries) {
    place = (place + step + count) % count;
    Control* control = controls_[static_cast<std::size_t>(place)];
    if (CanTakeFocus(*control)) return control;
  }
  return nullptr;
}

void Form::Adopt(Timer& timer) {
  timers_.push_back(&timer);
}

void Form::NoteChange(const Control* control, Property property) {
  ++changes_;
  if (!loaded_) return;
  if (control ? MovesThings(property) : property == Property::kBounds) needs_arranging_ = true;
  host_.Update(*this, control, property);
}

void Form::CloseByUser() {
  if (on_close) return on_close();
  Unload();
}

}  // namespace forms
