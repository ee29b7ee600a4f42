// The four bars that say how reliable a station is, 11 by 11 design pixels.
#pragma once

#include <windows.h>

namespace sonaro {

class Painter;

inline constexpr int kReliabilitySize = 11;

// `level` 0 (not known) to 4 (very good); the top-left corner at pixel (x, y). `selected`: on the ground of a
// selected row, whose colour a high-contrast theme may give to the bars as well.
void PaintReliability(HDC dc, const Painter& painter, int x, int y, int level, bool selected);

}  // namespace sonaro
