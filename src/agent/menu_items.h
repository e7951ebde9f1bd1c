// The items of the tray's two menus, as data.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "shared/agent_commands.h"

namespace agent {

// How an item stands before any state is read.
enum class ItemDesign { kShown, kHidden, kHiddenDisabled };

struct MenuItemRow {
  std::string_view name;
  std::string_view caption;  // "-" is a separator
  ItemDesign design = ItemDesign::kShown;
  // What choosing it asks for; null for an item without a handler.
  void (shared::AgentCommands::*handler)() = nullptr;
};

// Caption from the text library, or the literal.
struct CaptionRow {
  std::string_view name;
  std::uint32_t text;
  std::string_view literal;
};

// The popup of the icon.
inline constexpr std::string_view kTrayMenuName = "MnuTrayMenu";
inline constexpr std::string_view kTrayMenuCaption = "TrayMenu1";
std::span<const MenuItemRow> TrayMenuRows();

// An older popup, never shown; its items stay for those who call them by name.
inline constexpr std::string_view kOldMenuName = "TrayMenu";
std::span<const MenuItemRow> OldMenuRows();

// Captions that are set at load.
std::span<const CaptionRow> LocalisedCaptions();

}  // namespace agent
