#include "forms/MessageLoop.h"

#include "forms/FormWindow.h"
#include "forms/Guard.h"

namespace sonaro {
namespace {

// The wheel turns what is under the pointer, as users expect, not what has the focus.
bool SendWheelToPointer(HWND form, MSG& message) {
  const POINT at = {static_cast<short>(LOWORD(message.lParam)), static_cast<short>(HIWORD(message.lParam))};
  const HWND under = WindowFromPoint(at);
  if (!under || under == message.hwnd || GetAncestor(under, GA_ROOT) != form || under == form) return false;
  SendMessageW(under, message.message, message.wParam, message.lParam);
  return true;
}

// Modal forms nest; the one that is enabled waits for the user, the others wait for it.
BOOL CALLBACK FindModal(HWND window, LPARAM found) {
  const FormWindow* form = FormWindow::Of(window);
  if (!form || !form->IsModal() || !IsWindowEnabled(window)) return TRUE;
  *reinterpret_cast<HWND*>(found) = window;
  return FALSE;
}

BOOL CALLBACK RefreshForm(HWND window, LPARAM) {
  if (FormWindow* form = FormWindow::Of(window)) form->RenewTheme();
  return TRUE;
}

}  // namespace

// Runs before the message's own window gets it. A window may be gone after any of the steps, so the last
// ones look first.
bool TranslateFormMessage(MSG& message) {
  const HWND root = message.hwnd ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
  FormWindow* form = FormWindow::Of(root);
  if (!form) return false;
  const LRESULT dealtWith = Guarded(TRUE, [&]() -> LRESULT {
    const bool key = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    if (key || message.message == WM_SYSCHAR || message.message == WM_CHAR ||
        message.message == WM_LBUTTONDOWN)
      form->Keys().BeginInput();
    if (message.message == WM_MOUSEWHEEL && SendWheelToPointer(root, message)) return TRUE;
    if (key && form->Keys().RunKey(message)) {
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

// GetMessage also returns -1, for a window that is gone: that ends the loop, it would come again and again.
int RunMessageLoop() {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) DeliverMessage(message);
  return static_cast<int>(message.wParam);
}

// Handlers run within this call. It is for the start, which shows its progress between two steps.
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
