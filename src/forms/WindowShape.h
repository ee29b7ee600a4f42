// Cuts a window to its outline. The points come from faceplate/Shape; the region made of them is the system's
// from then on.
#pragma once

#include <windows.h>

#include <string_view>

namespace sonaro {

class Shape;

// A window that is larger than its outline was made for: the points right of and below the middle move out.
struct OutlineGrowth {
  int middleX = 0;  // pixels
  int middleY = 0;
  int extraX = 0;
  int extraY = 0;
};

// False when the point file could not be opened: the window stays as it is. True otherwise, also when the
// outline has no points and nothing changes.
bool ApplyWindowShape(HWND window, std::string_view key, const Shape& shape, int dpi,
                      const OutlineGrowth& growth = {});

}  // namespace sonaro
