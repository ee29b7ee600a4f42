#include "forms/controls/ToolTips.h"

#include <commctrl.h>

namespace sonaro {

// The class exists since main has initialised the common controls. Tips of a window in the background show
// as well: a user who compares two windows gets them without a click.
HWND MakeTips(HWND form) {
  return CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0,
                         0, 0, 0, form, nullptr, GetModuleHandleW(nullptr), nullptr);
}

void RelayMouse(HWND tips, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  if (!tips || message < WM_MOUSEFIRST || message > WM_MBUTTONUP) return;
  MSG mouse{window, message, wParam, lParam, 0, {}};
  SendMessageW(tips, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&mouse));
}

CellTip::~CellTip() {
  if (IsWindow(tip_)) DestroyWindow(tip_);
}

void CellTip::Set(const RECT& cell, const std::wstring& text) {
  // The pointer moves inside a cell far more often than from one to another.
  if (text == text_ && EqualRect(&cell, &cell_)) return;
  if (!tip_) tip_ = MakeTips(GetAncestor(list_, GA_ROOT));
  // A new cell is a new tool: one that was only moved would keep its tip up, or never show it again.
  TTTOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = list_;
  if (!text_.empty()) SendMessageW(tip_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  cell_ = cell;
  text_ = text;
  tool.rect = cell_;
  tool.lpszText = text_.data();
  if (!text_.empty()) SendMessageW(tip_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void CellTip::Relay(UINT message, WPARAM wParam, LPARAM lParam) {
  if (!text_.empty()) RelayMouse(tip_, list_, message, wParam, lParam);
}

}  // namespace sonaro
