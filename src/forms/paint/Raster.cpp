// Fills polygons with smooth edges: each row of pixels is cut into kSubRows lines, on each of which the
// crossings with all edges are sorted from left to right and the spans inside (non-zero winding) are added up
// with exact fractions of the pixels at their ends. It is slow and simple; the pictures are small and are
// kept.
#include "forms/paint/Raster.h"

#include <algorithm>
#include <cmath>

namespace sonaro {
namespace {

constexpr int kSubRows = 16;

// A side of a polygon in pixels, from top to bottom; `direction` tells which way it ran.
struct Edge {
  PathPoint top;
  PathPoint bottom;
  int direction;
};

// Where an edge crosses the line that is being filled.
struct Crossing {
  double x;
  int direction;
};

std::vector<Edge> EdgesOf(const std::vector<Polygon>& polygons, const Placement& place) {
  const auto onPixels = [&](PathPoint point) {
    return PathPoint{point.x * place.scale + place.offsetX, point.y * place.scale + place.offsetY};
  };
  std::vector<Edge> edges;
  for (const Polygon& polygon : polygons) {
    for (std::size_t i = 0; i < polygon.size(); ++i) {
      const PathPoint a = onPixels(polygon[i]);
      const PathPoint b = onPixels(polygon[(i + 1) % polygon.size()]);
      if (a.y < b.y) edges.push_back({a, b, 1});
      if (a.y > b.y) edges.push_back({b, a, -1});
    }
  }
  return edges;
}

// Adds the part of each pixel that lies between `from` and `to`.
void AddSpan(std::span<double> row, double from, double to) {
  from = std::clamp(from, 0.0, static_cast<double>(row.size()));
  to = std::clamp(to, 0.0, static_cast<double>(row.size()));
  for (auto x = static_cast<std::size_t>(from); x < row.size() && static_cast<double>(x) < to; ++x) {
    const double left = std::max(from, static_cast<double>(x));
    const double right = std::min(to, static_cast<double>(x) + 1);
    row[x] += right - left;
  }
}

// Into a vector that the caller keeps: an icon has hundreds of lines.
void FindCrossings(const std::vector<Edge>& edges, double y, std::vector<Crossing>& crossings) {
  crossings.clear();
  for (const Edge& edge : edges) {
    // Half open: a line through a corner crosses one of the two edges that meet there, not both. Level edges
    // have no crossings and are left out by EdgesOf.
    if (y < edge.top.y || y >= edge.bottom.y) continue;
    const double part = (y - edge.top.y) / (edge.bottom.y - edge.top.y);
    crossings.push_back({edge.top.x + (edge.bottom.x - edge.top.x) * part, edge.direction});
  }
  std::sort(crossings.begin(), crossings.end(),
            [](const Crossing& a, const Crossing& b) { return a.x < b.x; });
}

void FillSubRow(std::span<double> row, const std::vector<Crossing>& crossings) {
  int winding = 0;
  double start = 0;
  for (const Crossing& crossing : crossings) {
    const bool wasInside = winding != 0;
    winding += crossing.direction;
    if (!wasInside) start = crossing.x;
    if (wasInside && winding == 0) AddSpan(row, start, crossing.x);
  }
}

// Rounded to nearest.
std::uint32_t Blend(std::uint32_t below, std::uint32_t above, std::uint32_t alpha) {
  return (above * alpha + below * (255 - alpha) + 127) / 255;
}

}  // namespace

Coverage Rasterize(const std::vector<Polygon>& polygons, const Placement& placement, int width, int height) {
  Coverage coverage{width, height, {}};
  coverage.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
  const std::vector<Edge> edges = EdgesOf(polygons, placement);
  std::vector<double> row(static_cast<std::size_t>(width));
  std::vector<Crossing> crossings;
  for (int y = 0; y < height; ++y) {
    std::fill(row.begin(), row.end(), 0.0);
    for (int sub = 0; sub < kSubRows; ++sub) {
      FindCrossings(edges, y + (sub + 0.5) / kSubRows, crossings);
      FillSubRow(row, crossings);
    }
    for (const double sum : row)
      coverage.pixels.push_back(static_cast<std::uint8_t>(std::lround(std::min(1.0, sum / kSubRows) * 255)));
  }
  return coverage;
}

void PaintOver(Pixels& pixels, const Coverage& coverage, Color color) {
  pixels.resize(coverage.pixels.size());
  for (std::size_t i = 0; i < pixels.size(); ++i) {
    const std::uint32_t alpha = coverage.pixels[i];
    const std::uint32_t below = pixels[i];
    pixels[i] = Blend(below >> 24, 255, alpha) << 24 | Blend(below >> 16 & 255, color.red, alpha) << 16 |
                Blend(below >> 8 & 255, color.green, alpha) << 8 | Blend(below & 255, color.blue, alpha);
  }
}

}  // namespace sonaro
