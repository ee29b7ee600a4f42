// What the list and the tree share: a window of a system class in the form's glass, whose own scroll bar is
// clipped away and replaced by the faceplate's, and whose messages pass through the derived class.
#pragma once

#include <windows.h>

#include "forms/controls/FormControl.h"
#include "forms/controls/ScrollBar.h"

namespace sonaro {

class ScrolledView : public FormControl, private ScrollTarget {
 public:
  ScrolledView(const ScrolledView&) = delete;
  ScrolledView& operator=(const ScrolledView&) = delete;

  HWND Window() const override { return window_; }
  void MoveTo(const RECT& place) override;
  void SetShown(bool shown) override;
  void ThemeChanged() override;

 protected:
  ScrolledView(HWND form, int id, FormServices& services, const wchar_t* windowClass, DWORD style);
  // Messages reach Handle between the two: the end of the derived class's construction, and the beginning of
  // its destruction, which ends the window, too.
  void Attach();
  void Detach();

  // A message of the window; what the derived class does not deal with goes to PassOn.
  virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) = 0;
  virtual void SyncScrollBar() = 0;  // the view has scrolled, or has more or fewer rows
  LRESULT PassOn(UINT message, WPARAM wParam, LPARAM lParam) {
    return DefSubclassProc(window_, message, wParam, lParam);
  }
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
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data) noexcept;

  FormServices& services_;
  const int id_;
  ScrollBar bar_;
  HWND window_ = nullptr;
  int width_ = 0;
};

}  // namespace sonaro
