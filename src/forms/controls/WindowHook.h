// Takes the messages of a window of a system class before its class does.
#pragma once

#include <windows.h>

namespace sonaro {

// Not by SetWindowSubclass: it looks up a property of the window for every message, which on some systems
// costs more than the message. The hook keeps itself in the window's user data instead, which nobody else may
// use.
class WindowHook {
 public:
  WindowHook(const WindowHook&) = delete;
  WindowHook& operator=(const WindowHook&) = delete;

 protected:
  WindowHook() = default;
  ~WindowHook() { Unhook(); }

  // Messages reach HandleHooked between the two, up to and without the window's last one. A derived class
  // that is not made yet, or half gone, must not be hooked.
  void Hook(HWND window);
  void Unhook();
  HWND Hooked() const { return window_; }  // nullptr: not hooked, or the window is gone

  virtual LRESULT HandleHooked(UINT message, WPARAM wParam, LPARAM lParam) = 0;
  // The class's own work.
  LRESULT PassOn(UINT message, WPARAM wParam, LPARAM lParam) {
    return CallWindowProcW(original_, window_, message, wParam, lParam);
  }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;

  HWND window_ = nullptr;
  WNDPROC original_ = nullptr;
};

}  // namespace sonaro
