// Pop-up menus from values. The chosen entry's command number goes to the owning form as a WM_COMMAND, so
// that the event table's Click handler runs whether it was chosen by mouse, by keyboard or sent from outside.
#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <vector>

namespace sonaro {

struct MenuEntry {
  int command = 0;   // 0 and no children: a separator line
  std::string text;  // with "&" for the access key and "\t" before the shortcut's name
  bool enabled = true;
  bool checked = false;
  std::vector<MenuEntry> children = {};
};

// Shows the menu with its top-left corner at `at` (screen pixels) and returns when it is closed. The command
// is sent after the menu is gone. Returns the chosen command, 0 for none.
int ShowPopupMenu(HWND owner, std::span<const MenuEntry> entries, POINT at);

}  // namespace sonaro
