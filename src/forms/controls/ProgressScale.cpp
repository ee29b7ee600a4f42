#include "forms/controls/ProgressScale.h"

#include <commctrl.h>

#include <algorithm>

#include "forms/paint/Painter.h"

namespace sonaro {
namespace {

constexpr int kSteps = 1000;  // of the control: fine enough for any width
constexpr int kTickWidth = 2;
constexpr int kAboveTicks = 4;  // room for the needle
constexpr int kNeedleWidth = 8;
constexpr int kNeedleHeight = 5;
constexpr int kNeedleLead = 3;  // of the triangle left of the bar, which may stand out from the first tick

}  // namespace

// The range is the control's own and never changes, so that its value reads as parts of a thousand whatever
// is being counted.
ProgressScale::ProgressScale(HWND form, int id, FormServices& services)
    : PaintedControl(form, id, services, {.windowClass = PROGRESS_CLASSW, .overhang = kNeedleLead}, L"") {
  SendMessageW(Window(), PBM_SETRANGE32, 0, kSteps);
}

// By MulDiv, which multiplies in 64 bits: steps may be bytes of a download.
void ProgressScale::SetProgress(int done, int total) {
  const int value = total <= 0 ? 0 : MulDiv(std::clamp(done, 0, total), kSteps, total);
  SendMessageW(Window(), PBM_SETPOS, static_cast<WPARAM>(value), 0);
  Repaint();
}

void ProgressScale::SetPitch(int design) {
  pitch_ = design;
  Repaint();
}

// The last needle position is the last tick, not the place after it. Every fifth tick is taller.
void ProgressScale::PaintOn(HDC dc, const RECT& box) const {
  const Painter& theme = Theme();
  const FaceplateColors& colors = theme.Colors();
  const int pitch = theme.Px(pitch_);
  const int width = std::max(2, theme.Px(kTickWidth));
  const int left = theme.Px(kNeedleLead);
  const int count = std::max(1, (static_cast<int>(box.right) - 2 * left) / pitch);
  const int position = static_cast<int>(SendMessageW(Window(), PBM_GETPOS, 0, 0));
  const int lit = MulDiv(count, position, kSteps);
  const int tall = MulDiv(static_cast<int>(box.bottom), 65, 100);
  const int bottom = theme.Px(kAboveTicks) + tall;
  for (int tick = 0; tick < count; ++tick) {
    const int height = tick % 5 == 0 ? tall : MulDiv(tall, 55, 100);
    const int x = left + tick * pitch;
    theme.Fill(dc, {x, bottom - height, x + width, bottom}, tick < lit ? colors.signal : colors.tickOff);
  }
  PaintNeedle(dc, left + std::min(lit, count - 1) * pitch, bottom);
}

void ProgressScale::PaintNeedle(HDC dc, int x, int bottom) const {
  const Painter& theme = Theme();
  const Color accent = theme.Colors().accent;
  theme.Fill(dc, {x, theme.Line(), x + std::max(2, theme.Px(kTickWidth)), bottom}, accent);
  DrawNeedleHead(dc, x - theme.Px(kNeedleLead), 0, theme.Px(kNeedleWidth), theme.Px(kNeedleHeight), accent);
}

}  // namespace sonaro
