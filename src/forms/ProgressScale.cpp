#include "forms/ProgressScale.h"

#include <algorithm>

#include "forms/Guard.h"
#include "forms/Painter.h"

namespace sonaro {
namespace {

constexpr int kSteps = 1000;  // of the control: fine enough for any width
constexpr int kTickWidth = 2;
constexpr int kAboveTicks = 4;  // room for the needle
constexpr int kNeedleWidth = 8;
constexpr int kNeedleHeight = 5;
constexpr int kNeedleLead = 3;  // of the triangle left of the bar

}  // namespace

ProgressScale::ProgressScale(HWND form, int id, FormServices& services) : services_(services) {
  window_ =
      CreateWindowExW(0, PROGRESS_CLASSW, L"", WS_CHILD | WS_CLIPSIBLINGS, 0, 0, 0, 0, form,
                      reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleW(nullptr), nullptr);
  SendMessageW(window_, PBM_SETRANGE32, 0, kSteps);
  SetWindowSubclass(window_, Procedure, kSubclassId, reinterpret_cast<DWORD_PTR>(this));
}

ProgressScale::~ProgressScale() {
  if (!IsWindow(window_)) return;
  RemoveWindowSubclass(window_, Procedure, kSubclassId);
  DestroyWindow(window_);
}

void ProgressScale::SetProgress(int done, int total) {
  const int value = total <= 0 ? 0 : MulDiv(std::clamp(done, 0, total), kSteps, total);
  SendMessageW(window_, PBM_SETPOS, static_cast<WPARAM>(value), 0);
  InvalidateRect(window_, nullptr, FALSE);
}

void ProgressScale::SetPitch(int design) {
  pitch_ = design;
  InvalidateRect(window_, nullptr, FALSE);
}

// The needle's left end may stand out from the first tick.
void ProgressScale::MoveTo(const RECT& place) {
  const int lead = services_.Look().Px(kNeedleLead);
  SetWindowPos(window_, nullptr, place.left - lead, place.top, place.right - place.left + 2 * lead,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ProgressScale::SetShown(bool shown) { ShowWindow(window_, shown ? SW_SHOWNA : SW_HIDE); }

void ProgressScale::LookChanged() { InvalidateRect(window_, nullptr, FALSE); }

LRESULT CALLBACK ProgressScale::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                          DWORD_PTR data) noexcept {
  return Guarded(0, [&]() -> LRESULT {
    switch (message) {
      case WM_NCDESTROY:
        RemoveWindowSubclass(window, Procedure, kSubclassId);
        break;
      case WM_ERASEBKGND:
        return 1;
      case WM_PAINT:
        reinterpret_cast<ProgressScale*>(data)->Paint();
        return 0;
      default:
        break;
    }
    return DefSubclassProc(window, message, wParam, lParam);
  });
}

void ProgressScale::Paint() {
  PAINTSTRUCT paint{};
  const HDC dc = BeginPaint(window_, &paint);
  RECT box{};
  GetClientRect(window_, &box);
  {
    const BufferedPaint buffer(dc, box);
    services_.PaintBackdrop(buffer.Dc(), window_);
    PaintScale(buffer.Dc(), box);
  }
  EndPaint(window_, &paint);
}

void ProgressScale::PaintScale(HDC dc, const RECT& box) const {
  const Painter& look = services_.Look();
  const FaceplateColors& colors = look.Colors();
  const int pitch = look.Px(pitch_);
  const int width = std::max(2, look.Px(kTickWidth));
  const int left = look.Px(kNeedleLead);
  const int count = std::max(1, (static_cast<int>(box.right) - 2 * left) / pitch);
  const int position = static_cast<int>(SendMessageW(window_, PBM_GETPOS, 0, 0));
  const int lit = MulDiv(count, position, kSteps);
  const int tall = MulDiv(static_cast<int>(box.bottom), 65, 100);
  const int bottom = look.Px(kAboveTicks) + tall;
  for (int tick = 0; tick < count; ++tick) {
    const int height = tick % 5 == 0 ? tall : MulDiv(tall, 55, 100);
    const int x = left + tick * pitch;
    look.Fill(dc, {x, bottom - height, x + width, bottom}, tick < lit ? colors.signal : colors.tickOff);
  }
  PaintNeedle(dc, left + std::min(lit, count - 1) * pitch, bottom);
}

void ProgressScale::PaintNeedle(HDC dc, int x, int bottom) const {
  const Painter& look = services_.Look();
  const Color accent = look.Colors().accent;
  look.Fill(dc, {x, look.Line(), x + std::max(2, look.Px(kTickWidth)), bottom}, accent);
  DrawNeedleHead(dc, x - look.Px(kNeedleLead), 0, look.Px(kNeedleWidth), look.Px(kNeedleHeight), accent);
}

}  // namespace sonaro
