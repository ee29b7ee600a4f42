#include "forms/paint/RatingRing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace sonaro {
namespace {

constexpr PathPoint kCentre = {27, 23};
constexpr double kInner = 14;
constexpr double kOuter = 20;
constexpr double kRingPen = 2;
constexpr int kFirstAngle = 150;  // degrees clockwise from the right
constexpr int kStep = 24;

}  // namespace

int LitTicks(int halves) { return halves <= 0 ? 0 : std::min(halves + 1, kRingTicks); }

Coverage RenderRing(int first, int end, int dpi) {
  FlatPath ticks;
  for (int tick = first; tick < end; ++tick) {
    const double angle = (kFirstAngle + kStep * tick) * std::numbers::pi / 180;
    const PathPoint direction = {std::cos(angle), std::sin(angle)};
    const auto at = [&](double radius) {
      return PathPoint{kCentre.x + direction.x * radius, kCentre.y + direction.y * radius};
    };
    ticks.push_back({{at(kInner), at(kOuter)}, false});
  }
  const double scale = dpi / 96.0;
  return Rasterize(StrokePolygons(ticks, kRingPen), {scale, 0, 0},
                   static_cast<int>(std::ceil(kRingWidth * scale)),
                   static_cast<int>(std::ceil(kRingHeight * scale)));
}

}  // namespace sonaro
