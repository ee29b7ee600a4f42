#include "forms/controls/PaintedControl.h"

#include "forms/paint/Painter.h"

namespace sonaro {

// A class of the system, so that screen readers know what it is; only its painting is taken over.
PaintedControl::PaintedControl(HWND form, int id, FormServices& services, const Design& design,
                               const wchar_t* text)
    : services_(services), overhang_(design.overhang) {
  window_ = CreateWindowExW(0, design.windowClass, text, WS_CHILD | WS_CLIPSIBLINGS | design.style, 0, 0, 0,
                            0, form, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                            GetModuleHandleW(nullptr), nullptr);
  Hook(window_);
}

// When the form's window is gone, this one is gone with it.
PaintedControl::~PaintedControl() {
  if (!Hooked()) return;
  Unhook();
  DestroyWindow(window_);
}

// Wider than its place where a needle or a name stands out; the ground that it copies is the form's, so
// nobody sees where it ends.
void PaintedControl::MoveTo(const RECT& place) {
  const int overhang = Theme().Px(overhang_);
  SetWindowPos(window_, nullptr, place.left - overhang, place.top, place.right - place.left + 2 * overhang,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

LRESULT PaintedControl::HandleHooked(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETTEXT:  // a static control would draw the text at once, in its own way
      return DefWindowProcW(window_, message, wParam, lParam);
    case WM_ERASEBKGND:
      return 1;
    case WM_NCCALCSIZE:  // no frame
    case WM_NCPAINT:
      return 0;
    case WM_PAINT:
      Paint();
      return 0;
    default:
      return PassOn(message, wParam, lParam);
  }
}

// In memory first: ground and picture come to the screen in one step, without flicker.
void PaintedControl::Paint() {
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(window_, &paint);
  RECT box{};
  GetClientRect(window_, &box);
  {
    const BufferedPaint buffer(dc, box);
    services_.PaintBackdrop(buffer.Dc(), window_);
    PaintOn(buffer.Dc(), box);
  }
  EndPaint(window_, &paint);
}

}  // namespace sonaro
