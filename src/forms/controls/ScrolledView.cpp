#include "forms/controls/ScrolledView.h"

#include "forms/paint/Painter.h"

namespace sonaro {

// The bar comes before the view's window among the members: it is there when the first message arrives, and
// goes last.
ScrolledView::ScrolledView(HWND form, int id, FormServices& services, const wchar_t* windowClass, DWORD style)
    : services_(services), id_(id), bar_(form, services, *this) {
  window_ =
      CreateWindowExW(0, windowClass, L"", WS_CHILD | WS_TABSTOP | WS_CLIPSIBLINGS | style, 0, 0, 0, 0, form,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
}

// Called by the destructor of the derived class, while HandleHooked is still its own. When the form's window
// was destroyed, the view's went with it.
void ScrolledView::EndWindow() {
  if (!Hooked()) return;
  Unhook();
  DestroyWindow(window_);
}

ScrolledView::Unpainted::Unpainted(HWND window)
    : window_(window), visible_((GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0) {
  SendMessageW(window_, WM_SETREDRAW, FALSE, 0);
}

// To some classes the message means that the window is visible from now on, even when it was hidden before.
ScrolledView::Unpainted::~Unpainted() {
  SendMessageW(window_, WM_SETREDRAW, TRUE, 0);
  const LONG_PTR style = GetWindowLongPtrW(window_, GWL_STYLE);
  if (!visible_ && (style & WS_VISIBLE) != 0)
    SetWindowLongPtrW(window_, GWL_STYLE, style & ~static_cast<LONG_PTR>(WS_VISIBLE));
}

// The window is wider than its place by a native scroll bar, and cut to the place. The glass around it is
// the form's: its line stays free.
void ScrolledView::MoveTo(const RECT& place) {
  const int line = Theme().Line();
  const RECT inner = {place.left + line, place.top + line, place.right - line, place.bottom - line};
  width_ = inner.right - inner.left;
  const int height = inner.bottom - inner.top;
  // The native scroll bar lies beyond the region and is never seen.
  const int native = GetSystemMetrics(SM_CXVSCROLL);
  SetWindowPos(window_, nullptr, inner.left, inner.top, width_ + native, height,
               SWP_NOZORDER | SWP_NOACTIVATE);
  SetWindowRgn(window_, CreateRectRgn(0, 0, width_, height), TRUE);
  const int barWidth = Theme().Px(ScrollBar::kDesignWidth);
  bar_.MoveTo({inner.right - barWidth, inner.top, inner.right, inner.bottom});
  SyncScrollBar();
}

void ScrolledView::SetShown(bool shown) {
  ShowWindow(window_, shown ? SW_SHOWNA : SW_HIDE);
  bar_.SetShown(shown);
}

void ScrolledView::ThemeChanged() {
  RepaintWithGround();
  InvalidateRect(bar_.Window(), nullptr, TRUE);
}

// The dialog keyboard asks before it takes a key. Enter belongs to the view only while it has something to
// do with it; else it presses the primary button.
LRESULT ScrolledView::DialogCode(WPARAM wParam, LPARAM lParam, bool takesEnter) {
  const auto* key = reinterpret_cast<const MSG*>(lParam);
  const bool enter = takesEnter && key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
  return PassOn(WM_GETDLGCODE, wParam, lParam) | (enter ? DLGC_WANTMESSAGE : 0);
}

// The system tells of the pointer's going once for each request.
void ScrolledView::TrackLeave() const {
  TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, window_, 0};
  TrackMouseEvent(&track);
}

int ScrolledView::BarWidth() const { return HasBar() ? Theme().Px(ScrollBar::kDesignWidth) : 0; }

}  // namespace sonaro
