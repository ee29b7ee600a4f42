// Fills polygons with smooth edges: how much of each pixel they cover, and pixels of one colour made from
// that. Stands in for the platform's own smoothing, which not every version has. Pure arithmetic, no platform
// calls.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "faceplate/Color.h"
#include "forms/paint/IconPath.h"

namespace sonaro {

struct Coverage {
  int width = 0;
  int height = 0;
  std::vector<std::uint8_t> pixels;  // row by row from the top; 255: covered entirely

  std::uint8_t At(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

// Where the polygons' units lie on the pixels: pixel = unit * scale + offset.
struct Placement {
  double scale = 1;
  double offsetX = 0;
  double offsetY = 0;
};

// The union of the polygons (winding rule) on `width` x `height` pixels; parts outside are cut off. Across,
// coverage is exact; down, it is exact for edges on sixteenths of a pixel.
Coverage Rasterize(const std::vector<Polygon>& polygons, const Placement& placement, int width, int height);

// Pixels 0xAARRGGBB with colours multiplied by alpha, as the platform blends them. The coverage painted last
// lies on top.
using Pixels = std::vector<std::uint32_t>;
void PaintOver(Pixels& pixels, const Coverage& coverage, Color color);

}  // namespace sonaro
