// A popup menu as data. Built once, its items changed before each popup.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>

namespace forms {

class MenuItem {
 public:
  MenuItem(std::string_view name, std::string_view caption) : name_(name), caption_(caption) {}

  const std::string& Name() const { return name_; }

  // The caption; an ampersand stands before the letter that chooses the item, "-" is a separator.
  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption) { caption_ = caption; }
  bool Separator() const { return caption_ == "-"; }

  bool Visible() const { return visible_; }
  void SetVisible(bool visible) { visible_ = visible; }
  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled) { enabled_ = enabled; }
  bool Checked() const { return checked_; }
  void SetChecked(bool checked) { checked_ = checked; }

  std::function<void()> on_click;

 private:
  const std::string name_;
  std::string caption_;
  bool visible_ = true;
  bool enabled_ = true;
  bool checked_ = false;
};

class Menu {
 public:
  explicit Menu(std::string_view name) : name_(name) {}
  Menu(const Menu&) = delete;
  Menu& operator=(const Menu&) = delete;

  const std::string& Name() const { return name_; }

  // Adds an item at the end. The reference stays good for the menu's life.
  MenuItem& Add(std::string_view name, std::string_view caption);

  // The item with this name. REQUIRES: it was added.
  MenuItem& Item(std::string_view name);

  std::deque<MenuItem>& Items() { return items_; }
  const std::deque<MenuItem>& Items() const { return items_; }

  // The item drawn bold; null for none.
  const MenuItem* Default() const { return default_; }
  void SetDefault(const MenuItem* item) { default_ = item; }

 private:
  const std::string name_;
  std::deque<MenuItem> items_;
  const MenuItem* default_ = nullptr;
};

}  // namespace forms
