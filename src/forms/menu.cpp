#include "forms/menu.h"

#include <algorithm>
#include <cstdlib>

namespace forms {

MenuItem& Menu::Add(std::string_view name, std::string_view caption) {
  return items_.emplace_back(name, caption);
}

MenuItem& Menu::Item(std::string_view name) {
  const auto found = std::find_if(items_.begin(), items_.end(),
                                  [name](const MenuItem& item) { return item.Name() == name; });
  if (found == items_.end()) std::abort();
  return *found;
}

}  // namespace forms
