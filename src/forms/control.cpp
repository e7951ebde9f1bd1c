#include "forms/control.h"

#include "forms/form.h"

namespace forms {
namespace {

// Numbers below are left to the system's own buttons, numbers above to its menus.
constexpr std::uint32_t kFirstId = 0x0400;
constexpr std::uint32_t kIds = 0x7000;

}  // namespace

int ControlId(std::string_view name) {
  std::uint32_t hash = 2166136261u;
  for (const char character : name) {
    hash = (hash ^ static_cast<unsigned char>(character)) * 16777619u;
  }
  return static_cast<int>(kFirstId + hash % kIds);
}

Control::Control(Form& form, ControlKind kind, std::string_view name, std::string_view text)
    : form_(form), kind_(kind), name_(name), id_(ControlId(name)), text_(text) {
  form.Adopt(*this);
}

void Control::SetText(std::string_view text) {
  if (text_ == text) return;
  text_ = text;
  NoteChange(Property::kText);
}

bool Control::Shown() const {
  return visible_ && (!container_ || container_->Shown());
}

void Control::SetFocus() {
  if (!form_.Visible()) form_.SetFirstStop(this);
  if (form_.Loaded()) form_.Host().SetFocus(*this);
}

bool Control::HasFocus() const {
  return form_.Loaded() && form_.Host().HasFocus(*this);
}

platform::WindowId Control::Window() const {
  return form_.Loaded() ? form_.Host().Window(*this) : platform::kNoWindow;
}

void Control::Click() {
  if (!Shown() || !enabled_ || !form_.Enabled()) return;
  Clicked();
  if (on_click) on_click();
}

void Control::DoubleClick() {
  if (!Shown() || !enabled_ || !form_.Enabled()) return;
  if (on_double_click) on_double_click();
}

void Control::NoteChange(Property property) {
  ++changes_;
  form_.NoteChange(this, property);
}

}  // namespace forms
