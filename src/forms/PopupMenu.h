// Shows a menu value as the system's pop-up menu, in the colours of the faceplate. The chosen entry's command
// number goes to the owning form as a WM_COMMAND, so that the event table's Click handler runs whether it was
// chosen by mouse, by keyboard or sent from outside.
#pragma once

#include <windows.h>

#include <span>

#include "faceplate/FaceplateColors.h"
#include "forms/Menu.h"

namespace sonaro {

// Its top-left corner is at `at` (screen pixels); returns when it is closed. The command is sent after the
// menu is gone. Returns the chosen command, 0 for none.
int ShowPopupMenu(HWND owner, std::span<const MenuEntry> entries, POINT at, const FaceplateColors& colors,
                  int dpi);

}  // namespace sonaro
