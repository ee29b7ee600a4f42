// What the forms' and the lists' tool tips have in common, and the tip of a list's cell.
#pragma once

#include <windows.h>

#include <string>

namespace sonaro {

// A control that shows tips for tools of the form; it goes with the form's window.
HWND MakeTips(HWND form);
// Tells the tips a message of the window, which hears it first. Not by the tips' own subclass: a form is
// known by its window procedure. Only the mouse's messages count.
void RelayMouse(HWND tips, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

// The whole text of a list's cell that is cut short. Owned by the list, which says what lies under the
// pointer and passes its messages on; it reads no list itself.
class CellTip {
 public:
  explicit CellTip(HWND list) : list_(list) {}
  ~CellTip();
  CellTip(const CellTip&) = delete;
  CellTip& operator=(const CellTip&) = delete;

  // The cell under the pointer, in client pixels of the list. Without a text there is nothing to show.
  void Set(const RECT& cell, const std::wstring& text);
  void Clear() { Set({}, L""); }
  void Relay(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  const HWND list_;
  HWND tip_ = nullptr;  // made with the first text
  RECT cell_{};
  std::wstring text_;
};

}  // namespace sonaro
