// The dial over the main window: a glass scale of ticks with one tab for each view, and a needle that points
// at the view on show. Each tab is a button of its own; ticks are counted from the scale's start, so they run
// on from tab to tab at every dpi.
#include "forms/controls/TabDial.h"

#include <algorithm>

#include "forms/paint/Painter.h"

namespace sonaro {
namespace {

// 96-dpi pixels.
constexpr int kInset = 1;  // of the scale in the dial: its frame
constexpr int kTickPitch = 8;
constexpr int kTall = 12;
constexpr int kShort = 6;
constexpr int kBelowTicks = 1;
constexpr int kLabelHeight = 24;
constexpr int kDividerTop = 5;
constexpr int kNeedleTop = 27;  // of the bar in the tab
constexpr int kHeadTop = 23;
constexpr int kHeadWidth = 11;
constexpr int kHeadHeight = 7;

// The ticks of the dial between two pixels counted from the scale's start, which lies at pixel `origin`.
void PaintTicks(HDC dc, int origin, int from, int to, int bottom, int width, Color color,
                const Painter& painter) {
  const int pitch = painter.Px(kTickPitch);
  for (int tick = std::max(0, (from + pitch - 1) / pitch); tick * pitch < to; ++tick) {
    const int height = painter.Px(tick % 5 == 0 ? kTall : kShort);
    const int x = origin + tick * pitch;
    painter.Fill(dc, {x, bottom - height, x + width, bottom}, color);
  }
}

void PaintNeedle(HDC dc, const RECT& box, int at, const Painter& painter) {
  const Color accent = painter.Colors().accent;
  const int bar = painter.Px(kNeedleBar);
  const int middle = static_cast<int>(box.left) + at;
  painter.Fill(dc, {middle - bar / 2, box.top + painter.Px(kNeedleTop), middle - bar / 2 + bar, box.bottom},
               accent);
  const int width = painter.Px(kHeadWidth);
  DrawNeedleHead(dc, middle - width / 2, box.top + painter.Px(kHeadTop), width, painter.Px(kHeadHeight),
                 accent);
}

}  // namespace

// The ground that the form paints once, ticks of all tabs in their idle colour.
void PaintDial(HDC dc, const RECT& box, const Painter& painter) {
  painter.Glass(dc, box);
  const int inset = painter.Px(kInset);
  const int width = static_cast<int>(box.right - box.left) - 2 * inset;
  const int bottom = static_cast<int>(box.bottom) - inset - painter.Px(kBelowTicks);
  PaintTicks(dc, static_cast<int>(box.left) + inset, 0, width, bottom, painter.Line(),
             painter.Colors().tickOff, painter);
}

// An idle tab paints nothing of its own ground: the dial behind it is to be seen.
void PaintTab(HDC dc, const RECT& box, const TabPicture& tab, const Painter& painter) {
  const FaceplateColors& colors = painter.Colors();
  const int start = tab.offset - painter.Px(kInset);  // of the tab on the scale
  const int width = static_cast<int>(box.right - box.left);
  const int bottom = static_cast<int>(box.bottom) - painter.Px(kBelowTicks);
  if (tab.active) {
    painter.Gradient(dc, box, colors.glass, colors.buttonOnLow);
  } else if (tab.hover || tab.pressed) {
    painter.Fill(dc, box, colors.rowHover);
  }
  if (tab.active || tab.hover || tab.pressed) {
    const int tick = tab.active ? painter.Px(2) : painter.Line();
    PaintTicks(dc, static_cast<int>(box.left) - start, start, start + width, bottom, tick,
               tab.active ? colors.accent : colors.tickOff, painter);
  }
  if (start > 0)
    painter.Fill(dc, {box.left, box.top + painter.Px(kDividerTop), box.left + painter.Line(), bottom},
                 colors.hair);
  if (tab.needle) PaintNeedle(dc, box, *tab.needle, painter);
  // A pressed tab moves its text by a line; its ground stays.
  const int down = tab.pressed ? painter.Line() : 0;
  painter.Text(dc, {box.left, box.top + down, box.right, box.top + painter.Px(kLabelHeight) + down}, tab.text,
               tab.active ? TextStyle::MessageStrong : TextStyle::Message,
               tab.active ? colors.tabText : colors.glassText, DT_CENTER | tab.prefix);
  if (tab.focused) {
    RECT inner = box;
    InflateRect(&inner, -painter.Px(2), -painter.Px(2));
    painter.Frame(dc, inner, colors.focus, painter.FocusLine());
  }
}

}  // namespace sonaro
