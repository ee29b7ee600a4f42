// What the list and the tree share: a window of a system class in the form's glass, whose own scroll bar is
// clipped away and replaced by the faceplate's, and whose messages pass through the derived class.
#pragma once

#include <windows.h>

#include "forms/controls/FormControl.h"
#include "forms/controls/ScrollBar.h"
#include "forms/controls/WindowHook.h"

namespace sonaro {

class ScrolledView : public FormControl, private ScrollTarget, protected WindowHook {
 public:
  ScrolledView(const ScrolledView&) = delete;
  ScrolledView& operator=(const ScrolledView&) = delete;

  HWND Window() const override { return window_; }
  void MoveTo(const RECT& place) override;
  void SetShown(bool shown) override;
  void ThemeChanged() override;

 protected:
  ScrolledView(HWND form, int id, FormServices& services, const wchar_t* windowClass, DWORD style);
  // The derived class hooks its window at the end of its construction; what it does not deal with goes to
  // PassOn. Its destruction begins with EndWindow.
  void EndWindow();
  // While one lives, the window paints nothing, and computes once at the end what it would at every change.
  class Unpainted {
   public:
    explicit Unpainted(HWND window);
    ~Unpainted();
    Unpainted(const Unpainted&) = delete;
    Unpainted& operator=(const Unpainted&) = delete;

   private:
    const HWND window_;
    const bool visible_;
  };
  virtual void SyncScrollBar() = 0;  // the view has scrolled, or has more or fewer rows
  // The answer to WM_GETDLGCODE: with `takesEnter` the view gets Enter, which otherwise presses the primary
  // button.
  LRESULT DialogCode(WPARAM wParam, LPARAM lParam, bool takesEnter);
  void Raise(FormEvent event) {
    event.id = id_;
    services_.Raise(event);
  }
  void TrackLeave() const;  // WM_MOUSELEAVE comes when the pointer goes
  void Repaint(const RECT* box = nullptr) const { InvalidateRect(window_, box, FALSE); }
  void RepaintWithGround() const { InvalidateRect(window_, nullptr, TRUE); }
  const Painter& Theme() const { return services_.Theme(); }
  int Width() const { return width_; }  // of what is seen, pixels
  int BarWidth() const;                 // 0 while everything fits
  bool HasBar() const { return bar_.IsNeeded(); }
  void SetRange(const ScrollBar::Range& range) { bar_.SetRange(range); }

 private:
  FormServices& services_;
  const int id_;
  ScrollBar bar_;
  HWND window_ = nullptr;
  int width_ = 0;
};

}  // namespace sonaro
