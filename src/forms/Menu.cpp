#include "forms/Menu.h"

#include "forms/WideText.h"

namespace sonaro {
namespace {

HMENU Build(std::span<const MenuEntry> entries) {
  const HMENU menu = CreatePopupMenu();
  for (const MenuEntry& entry : entries) {
    const UINT state = (entry.enabled ? MF_ENABLED : MF_GRAYED) | (entry.checked ? MF_CHECKED : MF_UNCHECKED);
    const std::wstring text = Widen(entry.text);
    if (!entry.children.empty()) {
      AppendMenuW(menu, MF_POPUP | state, reinterpret_cast<UINT_PTR>(Build(entry.children)), text.c_str());
    } else if (entry.command == 0) {
      AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    } else {
      AppendMenuW(menu, MF_STRING | state, static_cast<UINT_PTR>(entry.command), text.c_str());
    }
  }
  return menu;
}

}  // namespace

int ShowPopupMenu(HWND owner, std::span<const MenuEntry> entries, POINT at) {
  if (entries.empty()) return 0;
  const HMENU menu = Build(entries);
  // Without these two a menu of a window in the background does not close when the user clicks elsewhere.
  SetForegroundWindow(owner);
  const BOOL command = TrackPopupMenuEx(menu, TPM_RETURNCMD | TPM_LEFTALIGN | TPM_TOPALIGN | TPM_RIGHTBUTTON,
                                        at.x, at.y, owner, nullptr);
  PostMessageW(owner, WM_NULL, 0, 0);
  DestroyMenu(menu);
  if (command != 0) SendMessageW(owner, WM_COMMAND, static_cast<WPARAM>(command), 0);
  return command;
}

}  // namespace sonaro
