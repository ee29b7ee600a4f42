// Where the controls of a form lie: from design rectangles, anchors and dpi to pixels. Arithmetic only; Form
// moves the windows. Edges are scaled, not sizes, so that neighbours stay in touch at every dpi.
#pragma once

#include <span>
#include <vector>

#include "forms/FormDesign.h"

namespace sonaro {

struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

struct PixelSize {
  int width = 0;
  int height = 0;
  friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

// `design` pixels of a 96-dpi screen at `dpi`, rounded to nearest (halves away from zero).
int ScaleToDpi(int design, int dpi);
PixelSize ScaleToDpi(DesignSize size, int dpi);

// One rectangle. What the client area has more (or less) than the scaled design goes to the side that an edge
// is not anchored to; an axis without an anchor keeps its middle.
PixelRect Arrange(const DesignRect& at, unsigned anchors, DesignSize design, PixelSize client, int dpi);

// A row as the layout places it; nullptr: the layout has no place for it. Layout 0 is the table itself.
const DesignRect* BoundsIn(const FormDesign& design, int layout, const ControlRow& row);
DesignSize SizeOf(const FormDesign& design, int layout);
bool CanResize(const FormDesign& design, int layout);
// The window's outline, and the size of the window that it was made for.
const char* OutlineOf(const FormDesign& design, int layout);
DesignSize OutlineSizeOf(const FormDesign& design, int layout);

// The largest of 96, 120, 144 and 192 that is not above `dpi` and at which `size` fits into `room`; `dpi`
// itself when it fits, 96 when nothing does.
int FittingDpi(DesignSize size, PixelSize room, int dpi);

// The window moved, never resized, so that all of it is on the screens: unchanged when the screens together
// show all of it, else inside the screen that shows most of it (or is nearest). A window larger than the
// screen keeps its top-left corner visible. Without a screen the window stays.
PixelRect KeepOnScreens(const PixelRect& window, std::span<const PixelRect> screens);

}  // namespace sonaro
