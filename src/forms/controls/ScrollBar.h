// The faceplate's own vertical scroll bar, 12 design pixels wide, laid over the right end of a list or tree
// whose native bar is clipped away. It shows a position and asks to be scrolled; the view stays the owner of
// both.
#pragma once

#include <windows.h>

#include "forms/controls/FormControl.h"

namespace sonaro {

// The view that a bar scrolls.
class ScrollTarget {
 public:
  virtual void ScrollTo(int first) = 0;  // the row that should be at the top

 protected:
  ~ScrollTarget() = default;
};

class ScrollBar {
 public:
  static constexpr int kDesignWidth = 12;

  struct Range {
    int total = 0;  // rows
    int page = 0;   // rows that fit
    int first = 0;  // top row
    bool operator==(const Range&) const = default;
  };

  ScrollBar(HWND form, FormServices& services, ScrollTarget& target);
  ~ScrollBar();
  ScrollBar(const ScrollBar&) = delete;
  ScrollBar& operator=(const ScrollBar&) = delete;

  HWND Window() const { return window_; }
  void MoveTo(const RECT& place);
  // Hides itself while everything fits.
  void SetRange(const Range& range);
  void SetShown(bool shown);
  bool IsNeeded() const { return range_.total > range_.page; }

 private:
  enum class Zone { None, Up, PageUp, Thumb, PageDown, Down };

  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
  void Paint(HDC dc, const RECT& box) const;
  RECT ThumbBox() const;
  Zone ZoneAt(POINT at) const;
  void Step(Zone zone);
  void Press(POINT at);
  void DragTo(int y);
  void Release();
  void ShowOrHide();
  void ScrollTo(int first);

  FormServices& services_;
  ScrollTarget& target_;
  HWND window_ = nullptr;
  Range range_;
  bool shown_ = true;
  bool hover_ = false;
  Zone pressed_ = Zone::None;
  int dragOffset_ = 0;  // from the thumb's top to the pointer
};

// The bar beside an edit of several lines. The edit stays the owner of its position: the bar asks it to
// scroll, and follows whatever has been painted.
class LinesBar final : private ScrollTarget {
 public:
  LinesBar(HWND form, FormServices& services, HWND edit) : edit_(edit), bar_(form, services, *this) {}

  // At the right end of the edit's `place`, client pixels of the form.
  void MoveTo(const RECT& place, int width) {
    bar_.MoveTo({place.right - width, place.top, place.right, place.bottom});
  }
  void SetShown(bool shown) { bar_.SetShown(shown); }
  // After what may have scrolled the text.
  void Update(int lineHeight);

 private:
  void ScrollTo(int first) override;
  int FirstLine() const { return static_cast<int>(SendMessageW(edit_, EM_GETFIRSTVISIBLELINE, 0, 0)); }

  const HWND edit_;
  ScrollBar bar_;
};

}  // namespace sonaro
