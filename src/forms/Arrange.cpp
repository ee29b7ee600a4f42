#include "forms/Arrange.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace sonaro {
namespace {

struct Edges {
  int low;
  int high;
};

// Anchored on both sides a control takes all the room that the window gained, on one side it keeps its
// distance to it, and without any it stays in the middle.
Edges Anchored(Edges edges, bool toLow, bool toHigh, int extra) {
  if (toLow && toHigh) return {edges.low, edges.high + extra};
  if (toLow) return edges;
  const int shift = toHigh ? extra : extra / 2;
  return {edges.low + shift, edges.high + shift};
}

PixelRect Common(const PixelRect& a, const PixelRect& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

std::int64_t Area(const PixelRect& box) {
  if (box.right <= box.left || box.bottom <= box.top) return 0;
  return static_cast<std::int64_t>(box.Width()) * box.Height();
}

int Gap(int low, int high, int otherLow, int otherHigh) {
  if (high < otherLow) return otherLow - high;
  if (otherHigh < low) return low - otherHigh;
  return 0;
}

std::int64_t DistanceSquared(const PixelRect& a, const PixelRect& b) {
  const std::int64_t x = Gap(a.left, a.right, b.left, b.right);
  const std::int64_t y = Gap(a.top, a.bottom, b.top, b.bottom);
  return x * x + y * y;
}

// The new start of a span that is to lie in [low, high); a span that does not fit begins at low.
int KeptStart(int start, int length, int low, int high) {
  return std::max(low, std::min(start, high - length));
}

}  // namespace

// Rounded to the nearest pixel, away from zero at the half, so that scaling is symmetric for negative
// distances.
int ScaleToDpi(int design, int dpi) {
  const std::int64_t scaled = static_cast<std::int64_t>(design) * dpi;
  return static_cast<int>((scaled + (scaled < 0 ? -48 : 48)) / 96);
}

PixelSize ScaleToDpi(DesignSize size, int dpi) {
  return {ScaleToDpi(size.width, dpi), ScaleToDpi(size.height, dpi)};
}

// Both edges are scaled, not one edge and the width: controls that touch in the design touch at every scale.
PixelRect Arrange(const DesignRect& at, unsigned anchors, DesignSize design, PixelSize client, int dpi) {
  const PixelSize scaled = ScaleToDpi(design, dpi);
  const Edges across = Anchored({ScaleToDpi(at.x, dpi), ScaleToDpi(at.x + at.width, dpi)},
                                (anchors & kLeft) != 0, (anchors & kRight) != 0, client.width - scaled.width);
  const Edges down = Anchored({ScaleToDpi(at.y, dpi), ScaleToDpi(at.y + at.height, dpi)},
                              (anchors & kTop) != 0, (anchors & kBottom) != 0, client.height - scaled.height);
  return {across.low, down.low, std::max(across.low, across.high), std::max(down.low, down.high)};
}

namespace {

// nullptr: the design itself.
const Layout* LayoutOf(const FormDesign& design, int layout) {
  return layout == 0 ? nullptr : &design.layouts[static_cast<std::size_t>(layout - 1)];
}

// The layout when it has a size and an outline of its own.
const Layout* SizedLayoutOf(const FormDesign& design, int layout) {
  const Layout* other = LayoutOf(design, layout);
  return other && other->size.width > 0 ? other : nullptr;
}

}  // namespace

const DesignRect* BoundsIn(const FormDesign& design, int layout, const ControlRow& row) {
  const Layout* other = LayoutOf(design, layout);
  if (!other) return &row.at;
  for (const Bounds& place : other->places) {
    if (row.id != 0 && place.id == row.id) return place.at.width > 0 ? &place.at : nullptr;
  }
  return other->others == Layout::Others::AsDesigned ? &row.at : nullptr;
}

DesignSize SizeOf(const FormDesign& design, int layout) {
  const Layout* other = SizedLayoutOf(design, layout);
  return other ? other->size : design.size;
}

bool CanResize(const FormDesign& design, int layout) {
  return design.keptSize != nullptr && !SizedLayoutOf(design, layout);
}

const char* OutlineOf(const FormDesign& design, int layout) {
  const Layout* other = SizedLayoutOf(design, layout);
  return other ? other->outline : design.outline;
}

DesignSize OutlineSizeOf(const FormDesign& design, int layout) {
  const bool ownSize = design.outlineSize.width > 0 && !SizedLayoutOf(design, layout);
  return ownSize ? design.outlineSize : SizeOf(design, layout);
}

// A window that is too large for its screen is shown at the next smaller of the usual scales at which it
// fits; 96 is the smallest, fit or not.
int FittingDpi(DesignSize size, PixelSize room, int dpi) {
  constexpr std::array<int, 4> kSteps = {192, 144, 120, 96};
  const auto fits = [&](int candidate) {
    const PixelSize scaled = ScaleToDpi(size, candidate);
    return scaled.width <= room.width && scaled.height <= room.height;
  };
  if (fits(dpi)) return dpi;
  for (const int step : kSteps) {
    if (step < dpi && fits(step)) return step;
  }
  return 96;
}

// A window that is not wholly visible, since a screen was removed or made smaller, moves to the screen that
// shows most of it, or to the nearest. Summing up what each screen shows lets a window lie across several
// screens undisturbed.
PixelRect KeepOnScreens(const PixelRect& window, std::span<const PixelRect> screens) {
  const PixelRect* best = nullptr;
  std::int64_t shown = 0;
  for (const PixelRect& screen : screens) {
    const std::int64_t area = Area(Common(window, screen));
    shown += area;
    const std::int64_t bestArea = best ? Area(Common(window, *best)) : 0;
    if (!best || area > bestArea ||
        (area == bestArea && DistanceSquared(window, screen) < DistanceSquared(window, *best))) {
      best = &screen;
    }
  }
  if (!best || shown >= Area(window)) return window;
  const int left = KeptStart(window.left, window.Width(), best->left, best->right);
  const int top = KeptStart(window.top, window.Height(), best->top, best->bottom);
  return {left, top, left + window.Width(), top + window.Height()};
}

}  // namespace sonaro
