#include "forms/MessageLoop.h"

#include "forms/ControlIds.h"
#include "forms/FormImpl.h"
#include "forms/Guard.h"

namespace sonaro {
namespace {

unsigned ModifiersDown() {
  const auto down = [](int key) { return GetKeyState(key) < 0; };
  unsigned modifiers = kPlain;
  if (down(VK_SHIFT)) modifiers |= kShift;
  if (down(VK_CONTROL)) modifiers |= kCtrl;
  if (down(VK_MENU)) modifiers |= kAlt;
  return modifiers;
}

bool IsInRun(int number, int first, int count) { return number >= first && number < first + count; }

bool RunKeyTable(FormImpl& parts, int key, int focusedId) {
  for (const KeyRow& row : parts.design.keys) {
    if (!IsInRun(key, row.key, row.keys) || row.modifiers != ModifiersDown()) continue;
    if (row.onlyIn != 0 && !IsInRun(focusedId, row.onlyIn, row.controls)) continue;
    parts.Press(row.command + key - row.key);
    return true;
  }
  if (key == VK_F1 && ModifiersDown() == kPlain && parts.Find(butHelp)) {
    parts.Press(butHelp);
    return true;
  }
  return false;
}

// Enter: what waits for it in the focused control, the focused button, else the primary button.
bool RunEnter(FormImpl& parts, ControlInstance* focused, MSG& message) {
  if (focused) {
    const int id = focused->Id();
    if (parts.IsBound(id, FormEvent::Kind::EnterPressed)) {
      parts.Handle({.id = id, .kind = FormEvent::Kind::EnterPressed});
      return true;
    }
    const bool actsItself = parts.IsBound(id, FormEvent::Kind::ItemActivated) ||
                            parts.IsBound(id, FormEvent::Kind::NodeClick) ||
                            (focused->KindOf() == ControlKind::MultiEdit && ModifiersDown() == kCtrl);
    if (actsItself) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
      return true;
    }
    if (IsButton(focused->KindOf())) {
      parts.Press(id);
      return true;
    }
  }
  if (ModifiersDown() != kPlain) return false;
  if (const ControlInstance* primary = parts.ShownPrimary()) parts.Press(primary->Id());
  return true;
}

// Keys that move the focus, and Alt, show that the user works with the keyboard.
void NoteKeyboardUse(FormImpl& parts, const MSG& message) {
  const WPARAM key = message.wParam;
  if (message.message == WM_SYSKEYDOWN) {
    parts.ShowCues(true, true);
  } else if (key == VK_TAB || (key >= VK_LEFT && key <= VK_DOWN)) {
    parts.ShowCues(true, false);
    if (key == VK_TAB) parts.UpdateTabStops();
  }
}

// Alt with an arrow key opens and closes a list; not every system does it for drawn combos.
bool OpensList(const ControlInstance* focused, const MSG& message) {
  if (!focused || !IsCombo(focused->KindOf()) || message.message != WM_SYSKEYDOWN) return false;
  if ((message.wParam != VK_DOWN && message.wParam != VK_UP) || ModifiersDown() != kAlt) return false;
  const LRESULT open = SendMessageW(focused->window, CB_GETDROPPEDSTATE, 0, 0);
  SendMessageW(focused->window, CB_SHOWDROPDOWN, open ? FALSE : TRUE, 0);
  return true;
}

bool RunKey(FormImpl& parts, MSG& message) {
  NoteKeyboardUse(parts, message);
  ControlInstance* focused = parts.Focused();
  const int key = static_cast<int>(message.wParam);
  const bool listOpen =
      focused && IsCombo(focused->KindOf()) && SendMessageW(focused->window, CB_GETDROPPEDSTATE, 0, 0) != 0;
  if (listOpen && (key == VK_RETURN || key == VK_ESCAPE)) return false;
  if (OpensList(focused, message)) return true;
  if (RunKeyTable(parts, key, focused ? focused->Id() : 0)) return true;
  if (key == VK_RETURN && message.message == WM_KEYDOWN) return RunEnter(parts, focused, message);
  if (key == VK_ESCAPE && message.message == WM_KEYDOWN) {
    parts.Escape();
    return true;
  }
  return false;
}

// The wheel turns what is under the pointer, as users expect, not what has the focus.
bool SendWheelToPointer(HWND form, MSG& message) {
  const POINT at = {static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
  const HWND under = WindowFromPoint(at);
  if (!under || under == message.hwnd || GetAncestor(under, GA_ROOT) != form || under == form) return false;
  SendMessageW(under, message.message, message.wParam, message.lParam);
  return true;
}

BOOL CALLBACK FindModal(HWND window, LPARAM found) {
  const FormImpl* parts = FormImplOf(window);
  if (!parts || !parts->modal || !IsWindowEnabled(window)) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

BOOL CALLBACK RefreshForm(HWND window, LPARAM) {
  if (FormImpl* parts = FormImplOf(window)) parts->RenewTheme();
  return TRUE;
}

}  // namespace

bool TranslateFormMessage(MSG& message) {
  const HWND root = message.hwnd ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
  FormImpl* found = FormImplOf(root);
  if (!found) return false;
  const LRESULT dealtWith = Guarded(TRUE, [&]() -> LRESULT {
    const auto parts = found->shared_from_this();
    const bool key = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    if (message.message == WM_MOUSEWHEEL && SendWheelToPointer(root, message)) return TRUE;
    if (key && RunKey(*parts, message)) {
      // The system must hear that Alt was used with another key: letting go of Alt would otherwise open the
      // system menu, which swallows the next key.
      if (message.message == WM_SYSKEYDOWN && IsWindow(root)) {
        DefWindowProcW(root, message.message, message.wParam, message.lParam);
      }
      return TRUE;
    }
    return IsWindow(root) && IsDialogMessageW(root, &message);
  });
  return dealtWith != 0;
}

void DeliverMessage(MSG& message) {
  if (TranslateFormMessage(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

int RunMessageLoop() {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DeliverMessage(message);
  return static_cast<int>(message.wParam);
}

void RunWaitingMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    DeliverMessage(message);
  }
}

HWND ModalForm() {
  HWND found = nullptr;
  EnumThreadWindows(GetCurrentThreadId(), FindModal, reinterpret_cast<LPARAM>(&found));
  return found;
}

void RefreshAllForms() { EnumThreadWindows(GetCurrentThreadId(), RefreshForm, 0); }

}  // namespace sonaro
