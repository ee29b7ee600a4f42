// Small operations on menus as values.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/MenuEntry.h"

namespace sonaro {

using MenuEntries = std::vector<MenuEntry>;

inline bool IsSeparator(const MenuEntry& entry) { return entry.command == 0 && entry.children.empty(); }

// A text as it must stand in an entry to be shown as it is: "Rock & Roll" becomes "Rock && Roll". A very
// long one, which would make the menu wider than the screen, is cut and ends with "...".
std::string MenuText(std::string_view text);
// The entry with this command, submenus included; null when there is none.
const MenuEntry* FindEntry(const MenuEntries& entries, int command);

}  // namespace sonaro
