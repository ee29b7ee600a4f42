// A menu as data: what portable code decides and the popup-menu window shows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace sonaro {

struct MenuEntry {
  int command = 0;      // from forms/ControlIds.h; 0: a submenu, or a separator when there are no children
  std::string caption;  // "&" marks the access key; a tab stands before the shortcut
  bool enabled = true;
  bool checked = false;
  std::vector<MenuEntry> children;

  bool IsSeparator() const { return command == 0 && children.empty(); }
};

using MenuEntries = std::vector<MenuEntry>;

// A text as it must stand in a caption to be shown as it is: "Rock & Roll" becomes "Rock && Roll".
std::string MenuText(std::string_view text);
// The entry with this command, submenus included; null when there is none.
const MenuEntry* FindEntry(const MenuEntries& entries, int command);

}  // namespace sonaro
