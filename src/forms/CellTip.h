// The tip with the whole text of a list's cell that is cut short. Owned by the list, which says what lies
// under the pointer and passes the mouse on; it reads no list itself.
#pragma once

#include <windows.h>

#include <string>

namespace sonaro {

class CellTip {
 public:
  explicit CellTip(HWND list) : list_(list) {}
  ~CellTip();
  CellTip(const CellTip&) = delete;
  CellTip& operator=(const CellTip&) = delete;

  // The cell under the pointer, in client pixels of the list. Without a text there is nothing to show.
  void Set(const RECT& cell, const std::wstring& text);
  void Clear() { Set({}, L""); }
  // Every message of the list's window: the tip comes and goes with the mouse's.
  void Relay(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  const HWND list_;
  HWND tip_ = nullptr;  // made with the first text
  RECT cell_{};
  std::wstring text_;
};

}  // namespace sonaro
