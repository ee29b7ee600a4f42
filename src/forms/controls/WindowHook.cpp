#include "forms/controls/WindowHook.h"

#include "forms/Guard.h"

namespace sonaro {

void WindowHook::Hook(HWND window) {
  window_ = window;
  SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  original_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&WindowHook::Procedure)));
}

void WindowHook::Unhook() {
  if (!window_) return;
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original_));
  window_ = nullptr;
}

// The window's last message ends the hook, since its owner may go later than the window.
LRESULT CALLBACK WindowHook::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    auto& hook = *reinterpret_cast<WindowHook*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message != WM_NCDESTROY) return hook.HandleHooked(message, wParam, lParam);
    const WNDPROC original = hook.original_;
    hook.Unhook();
    return CallWindowProcW(original, window, message, wParam, lParam);
  });
}

}  // namespace sonaro
