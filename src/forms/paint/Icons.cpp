#include "forms/paint/Icons.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace sonaro {
namespace {

// Icons are drawn on a grid of 16 by 16 whatever their size on screen.
constexpr double kGrid = 16;
constexpr double kPen = 1.5;       // design pixels
constexpr double kLargePen = 1.3;  // grid units, where that is more
constexpr int kBlurredFrom = 17;   // smaller icons lie as their grid says

// In the order of the names, without None and ProgramMark.
constexpr std::array<IconShape, 39> kShapes = {{
    {true, "M4 2 L14 8 L4 14 Z"},  // Play
    {false,
     "M8 1.75 A6.25 6.25 0 1 1 7.99 1.75 Z M1.75 8 H14.25 M8 1.75 C4.4 5.4 4.4 10.6 8 14.25 M8 1.75 "
     "C11.6 5.4 11.6 10.6 8 14.25"},                                                // Web
    {false, "M2 4 H14 M2 8 H14 M2 12 H14"},                                         // Menu
    {false, "M5 6 V4.5 L6.75 2.75 H9.5 L11.25 4.5 V6.25 L8 9 V10.75 M8 12.5 V14"},  // Help
    {false, "M2 9 V13.25 H14 V9 M8 2 V9.5 M4.75 6.5 L8 9.75 L11.25 6.5"},           // Tray
    {false, "M3 12 H13"},                                                           // Min
    {false, "M3.5 3.5 L12.5 12.5 M12.5 3.5 L3.5 12.5"},                             // Close
    {false,
     "M3.5 1.5 V8 M3.5 12 V14.5 M8 1.5 V3.5 M8 7.5 V14.5 M12.5 1.5 V9.5 M12.5 13.5 V14.5 M1.5 8.75 "
     "H5.5 V11.25 H1.5 Z M6 4.25 H10 V6.75 H6 Z M10.5 10.25 H14.5 V12.75 H10.5 Z"},       // Options
    {false, "M8 1.75 A6.25 6.25 0 1 1 7.99 1.75 Z M8 4.5 V8 L10.75 9.75"},                // Sched
    {false, "M2 14 V9 M5 14 V5.5 M8 14 V2 M11 14 V5.5 M14 14 V9"},                        // Scan
    {false, "M13.75 8 A5.75 5.75 0 1 1 11.5 3.45 M11.75 1 V4 H8.75"},                     // Update
    {false, "M2.25 8 A5.75 5.75 0 1 0 4.5 3.45 M4.25 1 V4 H7.25 M8 5 V8.25 L10.5 9.5"},   // Recent
    {false, "M6.75 2 A4.75 4.75 0 1 1 6.74 2 Z M10.25 10.25 L14.25 14.25"},               // Search
    {false, "M3 10 L8 5 L13 10"},                                                         // Up
    {false, "M3 6 L8 11 L13 6"},                                                          // Down
    {false, "M6 3 L11 8 L6 13"},                                                          // Right
    {false, "M10 3 L5 8 L10 13"},                                                         // Left
    {true, "M3 2 L11 8 L3 14 Z M11.5 2 H13.5 V14 H11.5 Z"},                               // Skip
    {true, "M4 2.5 H6.75 V13.5 H4 Z M9.25 2.5 H12 V13.5 H9.25 Z"},                        // Pause
    {false, "M3 8 H13"},                                                                  // Remove
    {false, "M3 8 H13 M8 3 V13"},                                                         // Add
    {false, "M2.5 13.5 V10.75 L10.75 2.5 L13.5 5.25 L5.25 13.5 Z M8.75 4.5 L11.5 7.25"},  // Modify
    {false,
     "M2.5 4.5 H13.5 M4.25 4.5 V13.75 H11.75 V4.5 M6 4.5 V2.25 H10 V4.5 M6.75 7 V11.25 M9.25 7 "
     "V11.25"},                                                                                    // Clear
    {false, "M8 14.5 L3.75 8.25 A4.6 4.6 0 1 1 12.25 8.25 Z M8 4.75 A1.4 1.4 0 1 1 7.99 4.75 Z"},  // Pin
    {false, "M8 1.5 V14.5 M1.5 8 H14.5 M4 4 L12 12 M12 4 L4 12"},                                  // New
    {false, "M2.5 14 V10 M6.2 14 V7 M9.8 14 V4.5 M13.5 14 V2"},                                    // Popular
    {false,
     "M8 1.75 L9.9 6.1 L14.5 6.5 L11 9.6 L12.05 14.1 L8 11.7 L3.95 14.1 L5 9.6 L1.5 6.5 L6.1 6.1 "
     "Z"},  // Overall
    {false,
     "M1.75 6 H4.25 L7.5 2.75 V13.25 L4.25 10 H1.75 Z M10 5.5 A3.6 3.6 0 0 1 10 10.5 M12 3.25 A6.6 "
     "6.6 0 0 1 12 12.75"},                                               // Sound
    {false, "M2.6 12.5 A6.25 6.25 0 1 1 13.4 12.5 M8 9.25 L11.25 5.25"},  // Speed
    {false,
     "M8 1.75 L13.5 3.75 V8 L11.5 12 L8 14.25 L4.5 12 L2.5 8 V3.75 Z M5.25 7.75 L7.25 9.75 L10.75 "
     "5.75"},                                                                                    // Reliable
    {false, "M5 1.75 H11 L14.25 5 V11 L11 14.25 H5 L1.75 11 V5 Z M8 7.25 V11.5 M8 4.5 V5.75"},   // Info
    {false, "M8 1.75 L14.75 14 H1.25 Z M8 6 V10 M8 11.25 V12.5"},                                // Warn
    {false, "M2.75 8.5 L6.25 12 L13.25 4.5"},                                                    // Check
    {false, "M2.5 12 H13.5 M4 12 V6.5 L6 3.25 H10 L12 6.5 V12 M6.75 14.25 H9.25 M8 1.5 V3.25"},  // Bell
    {true,
     "M8 1.5 L9.95 6.1 L14.75 6.45 L11.1 9.65 L12.2 14.5 L8 11.95 L3.8 14.5 L4.9 9.65 L1.25 6.45 "
     "L6.05 6.1 Z"},                                                                      // Fav
    {true, "M4 10 L8 5 L12 10 Z"},                                                        // Sort
    {false, "M2 3 H14 L9.75 8.25 V13.75 L6.25 12 V8.25 Z"},                               // Filter
    {false, "M6.5 3.5 H14 M6.5 8 H14 M6.5 12.5 H14 M2 3.5 H3.5 M2 8 H3.5 M2 12.5 H3.5"},  // OwnOrder
    {true, "M4 5.5 L12 5.5 L8 10.5 Z"},                                                   // TriDown
}};
static_assert(kShapes.size() == static_cast<std::size_t>(Icon::ProgramMark) - 1);

// The program mark: an octagon as dial, ticks in its upper half, a needle with a square hub.
constexpr double kMarkGrid = 20;
constexpr const char* kOctagon = "M6 1 L14 1 L19 6 L19 14 L14 19 L6 19 L1 14 L1 6 Z";
constexpr const char* kTicks =
    "M4.8 11.5 L3 11.5 M5.5 8.9 L3.94 8 M7.4 7 L6.5 5.44 M10 6.3 L10 4.5 M12.6 7 L13.5 5.44 M14.5 8.9 L16.06 "
    "8 "
    "M15.2 11.5 L17 11.5";
constexpr const char* kNeedle = "M10 13.2 L13.2 6.2";
constexpr const char* kHub = "M8.6 12 H11.4 V14.8 H8.6 Z";
constexpr double kOctagonPen = 1.6;
constexpr double kTickPen = 1.1;
constexpr double kNeedlePen = 1.8;
constexpr int kTicksFrom = 21;

double ToleranceFor(double scale) { return 0.05 / scale; }

// How far the pixels are from being empty or covered: small for crisp pictures.
long Blur(const Coverage& coverage) {
  long blur = 0;
  for (const std::uint8_t pixel : coverage.pixels) blur += pixel * (255 - pixel);
  return blur;
}

// The ring of a rating, in pixels of a 96-dpi screen.
constexpr PathPoint kRingCentre = {27, 23};
constexpr double kRingInner = 14;
constexpr double kRingOuter = 20;
constexpr double kRingPen = 2;
constexpr int kFirstTick = 150;  // degrees clockwise from the right
constexpr int kTickStep = 24;

}  // namespace

const IconShape& ShapeOf(Icon icon) {
  static constexpr IconShape kNothing;
  const auto index = static_cast<std::size_t>(icon);
  return index == 0 || index > kShapes.size() ? kNothing : kShapes[index - 1];
}

Coverage RenderIcon(Icon icon, int designSize, int size) {
  const IconShape& shape = ShapeOf(icon);
  Placement placement = {size / kGrid, 0, 0};
  const FlatPath path = ParsePath(shape.path, ToleranceFor(placement.scale));
  // The pen has the same width in design pixels for icons of all sizes, but never becomes hair-thin in large
  // ones.
  const double pen = std::max(kLargePen, kPen * kGrid / designSize);
  const std::vector<Polygon> polygons = shape.filled ? FillPolygons(path) : StrokePolygons(path, pen);
  Coverage onGrid = Rasterize(polygons, placement, size, size);
  if (shape.filled || size < kBlurredFrom) return onGrid;
  // A level line can come to lie across the border of two rows, which blurs it. Moving the picture by half a
  // pixel mends that, and the crisper of the two is taken.
  placement.offsetY = 0.5;
  Coverage moved = Rasterize(polygons, placement, size, size);
  return Blur(moved) < Blur(onGrid) ? moved : onGrid;
}

Pixels RenderProgramMark(int size, const MarkColors& colors, const Color* ground) {
  const Placement placement = {size / kMarkGrid, 0, 0};
  const double tolerance = ToleranceFor(placement.scale);
  Pixels pixels(static_cast<std::size_t>(size) * static_cast<std::size_t>(size));
  const auto paint = [&](const std::vector<Polygon>& polygons, Color color) {
    PaintOver(pixels, Rasterize(polygons, placement, size, size), color);
  };
  if (ground) paint(FillPolygons(ParsePath(kOctagon, tolerance)), *ground);
  paint(StrokePolygons(ParsePath(kOctagon, tolerance), kOctagonPen), colors.ink);
  // Small marks on a ground leave the ticks out, which would run together there.
  if (!ground || size >= kTicksFrom)
    paint(StrokePolygons(ParsePath(kTicks, tolerance), kTickPen), colors.ink);
  paint(StrokePolygons(ParsePath(kNeedle, tolerance), kNeedlePen), colors.needle);
  paint(FillPolygons(ParsePath(kHub, tolerance)), colors.needle);
  return pixels;
}

// The first tick is the zero: a rating of one half lights two.
int LitTicks(int halves) { return halves <= 0 ? 0 : std::min(halves + 1, kRingTicks); }

// As lines with a pen, like the icons, so that they are as sharp at any size.
Coverage RenderRing(int first, int end, int dpi) {
  FlatPath ticks;
  for (int tick = first; tick < end; ++tick) {
    const double angle = (kFirstTick + kTickStep * tick) * std::numbers::pi / 180;
    const PathPoint direction = {std::cos(angle), std::sin(angle)};
    const auto at = [&](double radius) {
      return PathPoint{kRingCentre.x + direction.x * radius, kRingCentre.y + direction.y * radius};
    };
    ticks.push_back({{at(kRingInner), at(kRingOuter)}, false});
  }
  const double scale = dpi / 96.0;
  return Rasterize(StrokePolygons(ticks, kRingPen), {scale, 0, 0},
                   static_cast<int>(std::ceil(kRingWidth * scale)),
                   static_cast<int>(std::ceil(kRingHeight * scale)));
}

}  // namespace sonaro
