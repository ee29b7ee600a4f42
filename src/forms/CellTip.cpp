#include "forms/CellTip.h"

#include <commctrl.h>

namespace sonaro {

CellTip::~CellTip() {
  if (IsWindow(tip_)) DestroyWindow(tip_);
}

void CellTip::Set(const RECT& cell, const std::wstring& text) {
  if (text == text_ && EqualRect(&cell, &cell_)) return;
  if (!tip_) {
    tip_ =
        CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0,
                        0, 0, 0, GetAncestor(list_, GA_ROOT), nullptr, GetModuleHandleW(nullptr), nullptr);
  }
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
  if (text_.empty() || message < WM_MOUSEFIRST || message > WM_MBUTTONUP) return;
  MSG mouse{list_, message, wParam, lParam, 0, {}};
  SendMessageW(tip_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&mouse));
}

}  // namespace sonaro
