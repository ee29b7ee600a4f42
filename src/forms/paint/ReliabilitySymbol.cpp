#include "forms/paint/ReliabilitySymbol.h"

#include <algorithm>

#include "forms/paint/Painter.h"

namespace sonaro {

namespace {

constexpr int kHeights[] = {3, 6, 8, 11};
constexpr int kBarWidth = 2;
constexpr int kPitch = 3;

}  // namespace

void PaintReliability(HDC dc, const Painter& painter, int x, int y, int level, bool selected) {
  const FaceplateColors& colors = painter.Colors();
  Color lit = level == 1 ? colors.alert : colors.signal;
  if (selected && colors.highContrast) lit = colors.rowSelectedText;
  const int bottom = y + painter.Px(kReliabilitySize);
  const int width = std::max(2, painter.Px(kBarWidth));
  for (int bar = 0; bar < 4; ++bar) {
    const int left = x + bar * painter.Px(kPitch);
    const int height = painter.Px(level == 0 ? kHeights[0] : kHeights[bar]);
    painter.Fill(dc, {left, bottom - height, left + width, bottom}, bar < level ? lit : colors.tickOff);
  }
}

}  // namespace sonaro
