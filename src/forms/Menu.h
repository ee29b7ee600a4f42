// Pop-up menus from values. The chosen entry's command number goes to the owning form as a WM_COMMAND, so
// that the event table's Click handler runs whether it was chosen by mouse, by keyboard or sent from outside.
#pragma once

#include <windows.h>

#include <span>

#include "forms/MenuEntry.h"

namespace sonaro {

// Shows the menu with its top-left corner at `at` (screen pixels) and returns when it is closed. The command
// is sent after the menu is gone. Returns the chosen command, 0 for none.
int ShowPopupMenu(HWND owner, std::span<const MenuEntry> entries, POINT at);

}  // namespace sonaro
