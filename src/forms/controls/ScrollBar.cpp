#include "forms/controls/ScrollBar.h"

#include <windowsx.h>

#include <algorithm>

#include "forms/Guard.h"
#include "forms/paint/Painter.h"

namespace sonaro {

namespace {

constexpr wchar_t kClass[] = L"SonaroScrollBar";
// A held arrow or page goes on by itself.
constexpr UINT_PTR kRepeatTimer = 1;
constexpr UINT kFirstRepeat = 300;  // milliseconds
constexpr UINT kNextRepeat = 50;
// 96-dpi pixels. The thumb never gets shorter than can be taken with the mouse, however long the list.
constexpr int kArrowDesign = 14;
constexpr int kThumbInset = 3;
constexpr int kThumbWidth = 7;
constexpr int kThumbCut = 3;
constexpr int kLeastThumb = 24;
constexpr int kArrowIcon = 9;

void RegisterOnce(WNDPROC procedure) {
  static const ATOM atom = [&] {
    WNDCLASSW definition{};
    definition.lpfnWndProc = procedure;
    definition.hInstance = GetModuleHandleW(nullptr);
    definition.hCursor = LoadCursorW(nullptr, reinterpret_cast<LPCWSTR>(IDC_ARROW));
    definition.lpszClassName = kClass;
    return RegisterClassW(&definition);
  }();
  static_cast<void>(atom);
}

}  // namespace

// No number: by numbers only the form's own controls are found. No tab stop either; the keys scroll in the
// view.
ScrollBar::ScrollBar(HWND form, FormServices& services, ScrollTarget& target)
    : services_(services), target_(target) {
  RegisterOnce(&ScrollBar::Procedure);
  window_ = CreateWindowExW(0, kClass, L"", WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, form, nullptr,
                            GetModuleHandleW(nullptr), nullptr);
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

// The form's window has usually taken the bar with it. Where it has not, the last messages must not reach
// what is being destroyed.
ScrollBar::~ScrollBar() {
  if (!IsWindow(window_)) return;
  SetWindowLongPtrW(window_, GWLP_USERDATA, 0);
  DestroyWindow(window_);
}

// To the top of its siblings: it lies over the view's right end and would otherwise be painted over.
void ScrollBar::MoveTo(const RECT& place) {
  SetWindowPos(window_, HWND_TOP, place.left, place.top, place.right - place.left, place.bottom - place.top,
               SWP_NOACTIVATE);
}

void ScrollBar::SetRange(const Range& range) {
  if (range == range_) return;
  range_ = range;
  ShowOrHide();
  InvalidateRect(window_, nullptr, FALSE);
}

void ScrollBar::SetShown(bool shown) {
  shown_ = shown;
  ShowOrHide();
}

void ScrollBar::ShowOrHide() { ShowWindow(window_, shown_ && IsNeeded() ? SW_SHOWNA : SW_HIDE); }

LRESULT CALLBACK ScrollBar::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  return Guarded(0, [&] {
    auto* bar = reinterpret_cast<ScrollBar*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    return bar != nullptr ? bar->Handle(message, wParam, lParam)
                          : DefWindowProcW(window, message, wParam, lParam);
  });
}

LRESULT ScrollBar::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const POINT at = {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT: {
      PAINTSTRUCT paint{};
      RECT box{};
      GetClientRect(window_, &box);
      {
        BufferedPaint buffer(BeginPaint(window_, &paint), box);
        Paint(buffer.Dc(), box);
      }
      EndPaint(window_, &paint);
      return 0;
    }
    case WM_LBUTTONDOWN:
      Press(at);
      return 0;
    // The capture can also be taken away, by a message box or a switch of windows: then the button's going
    // up never comes here.
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
      Release();
      return 0;
    case WM_MOUSEMOVE:
      if (pressed_ == Zone::Thumb) DragTo(at.y);
      if (!hover_) {
        hover_ = true;
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, window_, 0};
        TrackMouseEvent(&track);
        InvalidateRect(window_, nullptr, FALSE);
      }
      return 0;
    case WM_MOUSELEAVE:
      hover_ = false;
      InvalidateRect(window_, nullptr, FALSE);
      return 0;
    // The first repeat waits longer than the next ones, so that a short press is one step.
    case WM_TIMER:
      SetTimer(window_, kRepeatTimer, kNextRepeat, nullptr);
      Step(pressed_);
      return 0;
    default:
      return DefWindowProcW(window_, message, wParam, lParam);
  }
}

void ScrollBar::Paint(HDC dc, const RECT& box) const {
  const Painter& theme = services_.Theme();
  const FaceplateColors& colors = theme.Colors();
  theme.Fill(dc, box, colors.zebra);
  theme.Fill(dc, {box.left, box.top, box.left + theme.Line(), box.bottom}, colors.hair);
  const RECT thumb = ThumbBox();
  const Color face = hover_ || pressed_ == Zone::Thumb ? colors.thumbHover : colors.thumb;
  theme.CutShape(dc, thumb, theme.Px(kThumbCut), face, face, face);
  const int icon = theme.Px(kArrowIcon);
  const int x = box.left + (box.right - box.left - icon + 1) / 2;
  const int inset = (theme.Px(kArrowDesign) - icon + 1) / 2;
  theme.DrawIcon(dc, Icon::Up, x, box.top + inset, kArrowIcon, colors.glassMuted);
  theme.DrawIcon(dc, Icon::Down, x, box.bottom - inset - icon, kArrowIcon, colors.glassMuted);
}

// As long a part of the track as the page is of all rows, but long enough to be taken. The way that is left
// for it then stands for the rows that can be the top one.
RECT ScrollBar::ThumbBox() const {
  const Painter& theme = services_.Theme();
  RECT box{};
  GetClientRect(window_, &box);
  const int arrow = theme.Px(kArrowDesign);
  const int track = std::max<int>(1, box.bottom - 2 * arrow);
  const int total = std::max(1, range_.total);
  const int height =
      std::clamp(MulDiv(track, range_.page, total), std::min(track, theme.Px(kLeastThumb)), track);
  const int top = arrow + MulDiv(track - height, range_.first, std::max(1, total - range_.page));
  const int left = theme.Px(kThumbInset);
  return {left, top, left + theme.Px(kThumbWidth), top + height};
}

ScrollBar::Zone ScrollBar::ZoneAt(POINT at) const {
  RECT box{};
  GetClientRect(window_, &box);
  const int arrow = services_.Theme().Px(kArrowDesign);
  const RECT thumb = ThumbBox();
  if (at.y < arrow) return Zone::Up;
  if (at.y >= box.bottom - arrow) return Zone::Down;
  if (at.y < thumb.top) return Zone::PageUp;
  return at.y < thumb.bottom ? Zone::Thumb : Zone::PageDown;
}

// Where in the thumb it was taken stays under the pointer while it is dragged.
void ScrollBar::Press(POINT at) {
  SetCapture(window_);
  pressed_ = ZoneAt(at);
  dragOffset_ = at.y - ThumbBox().top;
  if (pressed_ == Zone::Thumb) return;
  SetTimer(window_, kRepeatTimer, kFirstRepeat, nullptr);
  Step(pressed_);
}

void ScrollBar::Step(Zone zone) {
  switch (zone) {
    case Zone::Up:
      ScrollTo(range_.first - 1);
      break;
    case Zone::Down:
      ScrollTo(range_.first + 1);
      break;
    case Zone::PageUp:
      ScrollTo(range_.first - range_.page);
      break;
    case Zone::PageDown:
      ScrollTo(range_.first + range_.page);
      break;
    default:
      break;
  }
}

// Rows, not pixels: the view answers with its own position, and the thumb stands where that is.
void ScrollBar::DragTo(int y) {
  RECT box{};
  GetClientRect(window_, &box);
  const RECT thumb = ThumbBox();
  const int arrow = services_.Theme().Px(kArrowDesign);
  const int way = std::max<int>(1, box.bottom - 2 * arrow - (thumb.bottom - thumb.top));
  ScrollTo(MulDiv(y - dragOffset_ - arrow, range_.total - range_.page, way));
}

// Giving the capture back sends WM_CAPTURECHANGED, which leads here again: the zone goes first.
void ScrollBar::Release() {
  if (pressed_ == Zone::None) return;
  pressed_ = Zone::None;
  KillTimer(window_, kRepeatTimer);
  if (GetCapture() == window_) ReleaseCapture();
  InvalidateRect(window_, nullptr, FALSE);
}

// The bar does not move itself: the view scrolls, and tells its new range.
void ScrollBar::ScrollTo(int first) {
  first = std::clamp(first, 0, std::max(0, range_.total - range_.page));
  if (first != range_.first) target_.ScrollTo(first);
}

// The edit tells lines and the first one in sight, but not how many fit: those come from its text rectangle.
void LinesBar::Update(int lineHeight) {
  RECT text{};
  SendMessageW(edit_, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&text));
  bar_.SetRange({static_cast<int>(SendMessageW(edit_, EM_GETLINECOUNT, 0, 0)),
                 static_cast<int>(text.bottom - text.top) / std::max(1, lineHeight), FirstLine()});
}

void LinesBar::ScrollTo(int first) { SendMessageW(edit_, EM_LINESCROLL, 0, first - FirstLine()); }

}  // namespace sonaro
