// A control of a system class that a derived class paints, whole and without flicker, on the form's backdrop.
// It owns the window; what it shows and how it is read out are the derived class's.
#pragma once

#include <windows.h>

#include "forms/controls/FormControl.h"
#include "forms/controls/WindowHook.h"

namespace sonaro {

class PaintedControl : public FormControl, private WindowHook {
 public:
  ~PaintedControl() override;
  PaintedControl(const PaintedControl&) = delete;
  PaintedControl& operator=(const PaintedControl&) = delete;

  HWND Window() const override { return window_; }
  void MoveTo(const RECT& place) override;
  void SetShown(bool shown) override { ShowWindow(window_, shown ? SW_SHOWNA : SW_HIDE); }
  void ThemeChanged() override { Repaint(); }
  bool OnNotify(NMHDR&, LRESULT&) override { return false; }

 protected:
  struct Design {
    const wchar_t* windowClass;
    DWORD style = 0;   // beside that of every child window
    int overhang = 0;  // design pixels that the painting stands out from its place, left and right
  };

  PaintedControl(HWND form, int id, FormServices& services, const Design& design, const wchar_t* text);

  // `box`: the window's client area, its overhang included.
  virtual void PaintOn(HDC dc, const RECT& box) const = 0;
  void Repaint() { InvalidateRect(window_, nullptr, FALSE); }
  const Painter& Theme() const { return services_.Theme(); }

 private:
  LRESULT HandleHooked(UINT message, WPARAM wParam, LPARAM lParam) override;
  void Paint();

  FormServices& services_;
  const int overhang_;
  HWND window_ = nullptr;
};

}  // namespace sonaro
