#include "forms/ProgressScale.h"

#include <commctrl.h>

#include <algorithm>

#include "forms/Painter.h"

namespace sonaro {
namespace {

constexpr int kSteps = 1000;  // of the control: fine enough for any width
constexpr int kTickWidth = 2;
constexpr int kAboveTicks = 4;  // room for the needle
constexpr int kNeedleWidth = 8;
constexpr int kNeedleHeight = 5;
constexpr int kNeedleLead = 3;  // of the triangle left of the bar, which may stand out from the first tick

}  // namespace

ProgressScale::ProgressScale(HWND form, int id, FormServices& services)
    : PaintedControl(form, id, services, {.windowClass = PROGRESS_CLASSW, .overhang = kNeedleLead}, L"") {
  SendMessageW(Window(), PBM_SETRANGE32, 0, kSteps);
}

void ProgressScale::SetProgress(int done, int total) {
  const int value = total <= 0 ? 0 : MulDiv(std::clamp(done, 0, total), kSteps, total);
  SendMessageW(Window(), PBM_SETPOS, static_cast<WPARAM>(value), 0);
  Repaint();
}

void ProgressScale::SetPitch(int design) {
  pitch_ = design;
  Repaint();
}

void ProgressScale::PaintOn(HDC dc, const RECT& box) const {
  const Painter& look = Look();
  const FaceplateColors& colors = look.Colors();
  const int pitch = look.Px(pitch_);
  const int width = std::max(2, look.Px(kTickWidth));
  const int left = look.Px(kNeedleLead);
  const int count = std::max(1, (static_cast<int>(box.right) - 2 * left) / pitch);
  const int position = static_cast<int>(SendMessageW(Window(), PBM_GETPOS, 0, 0));
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
  const Painter& look = Look();
  const Color accent = look.Colors().accent;
  look.Fill(dc, {x, look.Line(), x + std::max(2, look.Px(kTickWidth)), bottom}, accent);
  DrawNeedleHead(dc, x - look.Px(kNeedleLead), 0, look.Px(kNeedleWidth), look.Px(kNeedleHeight), accent);
}

}  // namespace sonaro
