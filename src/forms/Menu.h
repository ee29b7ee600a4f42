// Pop-up menus as values. Portable code decides what a menu holds; Form::PopUpMenu shows it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

// One row of a menu: a command, a line between commands, or what opens a menu of its own. A command number is
// that of a Click row of the form's event table; numbers of controls serve as well.
struct MenuEntry {
  int command = 0;      // 0 and no children: a separator line
  std::string text;     // with "&" for the access key and "\t" before the shortcut's name
  bool enabled = true;  // greyed when not
  bool checked = false;
  std::vector<MenuEntry> children = {};
};

using MenuEntries = std::vector<MenuEntry>;

inline bool IsSeparator(const MenuEntry& entry) { return entry.command == 0 && entry.children.empty(); }

// A text as it must stand in an entry to be shown as it is: "Rock & Roll" becomes "Rock && Roll". A very
// long one, which would make the menu wider than the screen, is cut and ends with "...".
std::string MenuText(std::string_view text);
// The entry with this command, submenus included; null when there is none.
const MenuEntry* FindEntry(const MenuEntries& entries, int command);

}  // namespace sonaro
