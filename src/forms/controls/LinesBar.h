// The faceplate's scroll bar beside an edit of several lines. The edit stays the owner of its position: the
// bar asks it to scroll, and follows whatever has been painted.
#pragma once

#include <windows.h>

#include "forms/controls/ScrollBar.h"

namespace sonaro {

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
