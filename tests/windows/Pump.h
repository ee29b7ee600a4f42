// Runs the messages of this thread as the program's loop does.
#pragma once

#include <windows.h>

#include "faceplate/Color.h"
#include "forms/Form.h"
#include "forms/MessageLoop.h"

namespace sonaro {

// Everything that is in the queue now and what it brings about.
inline void Pump() { RunWaitingMessages(); }

// A key as the keyboard sends it to the window with the focus, with the modifiers held down.
inline void PressKey(WORD key, bool shift = false, bool control = false) {
  BYTE before[256] = {};
  GetKeyboardState(before);
  BYTE held[256] = {};
  if (shift) held[VK_SHIFT] = 0x80;
  if (control) held[VK_CONTROL] = 0x80;
  SetKeyboardState(held);
  MSG message = {GetFocus(), WM_KEYDOWN, key, 1, 0, {}};
  if (!TranslateFormMessage(message)) DispatchMessageW(&message);
  MSG up = {GetFocus(), WM_KEYUP, key, 0xC0000001, 0, {}};
  if (!TranslateFormMessage(up)) DispatchMessageW(&up);
  SetKeyboardState(before);
  Pump();
}

// A character of an access key: Alt with a letter.
inline void PressAccessKey(wchar_t letter) {
  MSG message = {GetFocus(), WM_SYSCHAR, letter, 1 << 29, 0, {}};
  if (!TranslateFormMessage(message)) DispatchMessageW(&message);
  Pump();
}

// The colour that a window shows at a place of its client area, after painting what waits.
inline Color PixelOf(HWND window, int x, int y) {
  UpdateWindow(window);
  const HDC dc = GetDC(window);
  const COLORREF color = GetPixel(dc, x, y);
  ReleaseDC(window, dc);
  return {GetRValue(color), GetGValue(color), GetBValue(color)};
}

// A control by its number, as other programs find it.
inline HWND ControlOf(const Form& form, int id) { return GetDlgItem(form.Window(), id); }

inline void FocusOn(const Form& form, int id) {
  SendMessageW(form.Window(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(ControlOf(form, id)), TRUE);
}

inline void MouseOn(HWND window, UINT message) {
  SendMessageW(window, message, MK_LBUTTON, MAKELPARAM(5, 5));
}

}  // namespace sonaro
