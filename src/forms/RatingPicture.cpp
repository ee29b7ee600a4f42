#include "forms/RatingPicture.h"

#include <commctrl.h>

#include "forms/Guard.h"
#include "forms/Painter.h"
#include "forms/WideText.h"
#include "forms/portable/RatingRing.h"

namespace sonaro {
namespace {

constexpr int kFigureTop = 12;  // 96-dpi pixels from the top
constexpr int kFigureHeight = 22;
constexpr int kCaptionTop = 44;
constexpr int kCaptionHeight = 16;
constexpr int kCaptionOverhang = 2;  // the name may be a little wider than the ring

}  // namespace

RatingPicture::RatingPicture(HWND form, int id, FormServices& services, std::string_view caption)
    : services_(services), caption_(Widen(caption)) {
  window_ = CreateWindowExW(0, L"STATIC", caption_.c_str(), WS_CHILD | WS_CLIPSIBLINGS | SS_NOPREFIX, 0, 0, 0,
                            0, form, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                            GetModuleHandleW(nullptr), nullptr);
  SetWindowSubclass(window_, Procedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
}

RatingPicture::~RatingPicture() {
  if (!IsWindow(window_)) return;
  RemoveWindowSubclass(window_, Procedure, kSubclassId);
  DestroyWindow(window_);
}

void RatingPicture::SetRating(int halves, std::string_view figure, std::string_view spoken) {
  halves_ = halves;
  figure_ = Widen(figure);
  SetWindowTextW(window_, Widen(spoken).c_str());
  InvalidateRect(window_, nullptr, FALSE);
}

void RatingPicture::MoveTo(const RECT& place) {
  const int overhang = services_.Look().Px(kCaptionOverhang);
  SetWindowPos(window_, nullptr, place.left - overhang, place.top, place.right - place.left + 2 * overhang,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void RatingPicture::SetShown(bool shown) { ShowWindow(window_, shown ? SW_SHOWNA : SW_HIDE); }

void RatingPicture::LookChanged() { InvalidateRect(window_, nullptr, FALSE); }

LRESULT CALLBACK RatingPicture::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR data) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    switch (message) {
      case WM_NCDESTROY:
        RemoveWindowSubclass(window, Procedure, kSubclassId);
        break;
      case WM_SETTEXT:  // the class would draw the text at once, in its own way
        return DefWindowProcW(window, message, wParam, lParam);
      case WM_ERASEBKGND:
        return 1;
      case WM_PAINT:
        reinterpret_cast<RatingPicture*>(data)->Paint();
        return 0;
      default:
        break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
  });
}

void RatingPicture::Paint() {
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(window_, &paint);
  RECT box{};
  GetClientRect(window_, &box);
  {
    const BufferedPaint buffer(dc, box);
    services_.PaintBackdrop(buffer.Dc(), window_);
    PaintRing(buffer.Dc(), box);
  }
  EndPaint(window_, &paint);
}

void RatingPicture::PaintRing(HDC dc, const RECT& box) const {
  const Painter& look = services_.Look();
  const FaceplateColors& colors = look.Colors();
  const int left = (static_cast<int>(box.right) - look.Px(kRingWidth)) / 2;
  const int lit = LitTicks(halves_);
  DrawCoverage(dc, left, 0, RenderRing(0, lit, look.Dpi()), colors.signal);
  DrawCoverage(dc, left, 0, RenderRing(lit, kRingTicks, look.Dpi()), colors.tickOff);
  look.Text(dc, {0, look.Px(kFigureTop), box.right, look.Px(kFigureTop + kFigureHeight)}, figure_,
            Type::MessageStrong, halves_ > 0 ? colors.glassText : colors.glassMuted, DT_CENTER | DT_NOPREFIX);
  look.Text(dc, {0, look.Px(kCaptionTop), box.right, look.Px(kCaptionTop + kCaptionHeight)}, caption_,
            Type::Small, colors.glassMuted, DT_CENTER | DT_NOPREFIX);
}

}  // namespace sonaro
