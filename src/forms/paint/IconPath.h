// Icons as geometry: path texts in the notation of SVG, turned into polygons that Raster fills. Pure
// arithmetic in the icon's own grid units; knows no pixels and no colours.
#pragma once

#include <string_view>
#include <vector>

namespace sonaro {

struct PathPoint {
  double x = 0;
  double y = 0;
  friend bool operator==(PathPoint, PathPoint) = default;
};

using Polygon = std::vector<PathPoint>;

// A run of straight lines; curves have already been cut up.
struct SubPath {
  Polygon points;
  bool closed = false;
};
using FlatPath = std::vector<SubPath>;

// Reads a path of the commands M L H V C A Z (absolute coordinates, separated by blanks or commas). Curves
// become lines that are nowhere further than `tolerance` from them. What follows an unreadable command is
// left out.
FlatPath ParsePath(std::string_view path, double tolerance);

// The insides of the sub-paths, each closed.
std::vector<Polygon> FillPolygons(const FlatPath& path);

// The area under a pen of `width`: flat ends, mitred joins (bevelled where the mitre would be longer than
// four half widths). The polygons overlap and run all in one direction: fill them with the winding rule.
std::vector<Polygon> StrokePolygons(const FlatPath& path, double width);

}  // namespace sonaro
