#include "forms/paint/Icons.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace sonaro {
namespace {

constexpr double kTolerance = 0.01;

// The covered area in pixels.
double Area(const Coverage& coverage) {
  double sum = 0;
  for (const std::uint8_t pixel : coverage.pixels) sum += pixel / 255.0;
  return sum;
}

Coverage Filled(const char* path, int size, double scale = 1) {
  return Rasterize(FillPolygons(ParsePath(path, kTolerance)), {scale, 0, 0}, size, size);
}

Coverage Stroked(const char* path, double pen, int size, double scale = 1) {
  return Rasterize(StrokePolygons(ParsePath(path, kTolerance), pen), {scale, 0, 0}, size, size);
}

TEST(Rasterize, CoversExactParts) {
  const Coverage box = Filled("M1.25 1 H3 V2.5 H1.25 Z", 4);
  EXPECT_EQ(box.At(0, 1), 0);
  EXPECT_EQ(box.At(1, 1), 191);  // three quarters
  EXPECT_EQ(box.At(2, 1), 255);
  EXPECT_EQ(box.At(1, 2), 96);  // three eighths
  EXPECT_EQ(box.At(3, 1), 0);
  EXPECT_NEAR(Area(box), 1.75 * 1.5, 0.01);
  EXPECT_EQ(Filled("M0 0 L4 0 L0 4 Z", 4).At(0, 3), 128);  // the diagonal halves its pixels
}

TEST(Rasterize, CutsOffWhatLiesOutside) {
  const Coverage coverage = Filled("M-10 -10 H10 V10 H-10 Z", 3);
  EXPECT_NEAR(Area(coverage), 9, 1e-9);
}

TEST(Rasterize, OverlapsCountOnce) {
  EXPECT_NEAR(Area(Filled("M1 1 H3 V3 H1 Z M2 1 H4 V3 H2 Z", 5)), 6, 0.01);
}

TEST(ParsePath, Areas) {
  const double pi = std::numbers::pi;
  const struct {
    const char* path;
    double area;
  } cases[] = {
      {"M2 2 L10 2 10 8", 0},  // a number without command ends the path: one line
      {"M2,2 H10 V8 H2 Z", 48},
      {"M8 2 A6 6 0 1 1 7.99 2 Z", 36 * pi},     // the long way round, clockwise
      {"M2 8 A6 6 0 0 1 14 8 Z", 18 * pi},       // upper half
      {"M2 8 A6 3 0 0 0 14 8 Z", 9 * pi},        // lower half of an ellipse
      {"M8 2 A6 6 0 0 1 14 8 L8 8 Z", 9 * pi},   // a quarter, the short way
      {"M8 2 A6 6 0 1 0 14 8 L8 8 Z", 27 * pi},  // and the long way round
      {"M4 8 A1 1 0 0 1 12 8 Z", 8 * pi},        // radii too small are enlarged
      {"M2 8 C2 2 14 2 14 8 Z", 0.6 * 12 * 6},
      {"M2 2 H10 V8 H2 Z Q", 48},
      {"", 0},
  };
  for (const auto& c : cases) EXPECT_NEAR(Area(Filled(c.path, 16)), c.area, 0.25) << c.path;
}

TEST(ParsePath, ArcsBulgeTheRightWay) {
  EXPECT_EQ(Filled("M2 8 A6 6 0 0 1 14 8 Z", 16).At(8, 4), 255);   // sweep 1: clockwise, above
  EXPECT_EQ(Filled("M2 8 A6 6 0 0 0 14 8 Z", 16).At(8, 11), 255);  // sweep 0: below
}

TEST(StrokePolygons, AreasTellEndsAndJoins) {
  const struct {
    const char* path;
    double area;
  } cases[] = {
      {"M2 8 H14", 24},                   // flat ends
      {"M2 2 H14 V14", 24 + 24 - 1 + 1},  // mitred corner: the inner overlap once, the outer square added
      {"M2 2 H14 V14 H2 Z", 14 * 14 - 10 * 10},
      {"M2 8 H14 M8 2 V14", 24 + 24 - 4},  // a crossing counts once
      {"M2 8 H8 H14", 24},                 // a corner without a turn
      {"M3 3 H3", 0},                      // no length, no ink
  };
  for (const auto& c : cases) EXPECT_NEAR(Area(Stroked(c.path, 2, 16)), c.area, 0.05) << c.path;
  // Sharper than the mitre limit: bevelled, so the pen stays near the corner.
  EXPECT_EQ(Stroked("M2 7 L10 8 L2 9", 2, 16).At(12, 7), 0);
}

TEST(Icons, EveryIconFillsItsGridWithoutBeingCut) {
  for (int number = 1; number < static_cast<int>(Icon::ProgramMark); ++number) {
    const Icon icon = static_cast<Icon>(number);
    for (const int size : {14, 21}) {
      const Coverage coverage = RenderIcon(icon, 16, size);
      const double share = Area(coverage) / (size * size);
      EXPECT_GT(share, 0.04) << number << " at " << size;
      EXPECT_LT(share, 0.60) << number << " at " << size;
    }
    const Coverage framed =
        Rasterize(ShapeOf(icon).filled ? FillPolygons(ParsePath(ShapeOf(icon).path, kTolerance))
                                       : StrokePolygons(ParsePath(ShapeOf(icon).path, kTolerance), 1.5),
                  {1, 2, 2}, 20, 20);
    EXPECT_NEAR(Area(framed), Area(RenderIcon(icon, 16, 16)), 0.6) << number << " leaves its grid";
  }
}

TEST(Icons, SymmetricShapesComeOutSymmetric) {
  for (const Icon icon : {Icon::Menu, Icon::Close, Icon::Add, Icon::New, Icon::Up, Icon::Sort, Icon::Warn}) {
    for (const int size : {14, 16, 21}) {
      const Coverage coverage = RenderIcon(icon, 16, size);
      for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x)
          EXPECT_NEAR(coverage.At(x, y), coverage.At(size - 1 - x, y), 1)
              << static_cast<int>(icon) << " at " << size << ": " << x << "," << y;
    }
  }
}

TEST(Icons, HorizontalStrokesAreMovedOntoPixels) {
  // On 21 pixels the bar lies at 10.5 and is nearly 2 thick: three blurred rows, or two crisp ones lower
  // down.
  const Coverage bar = RenderIcon(Icon::Remove, 16, 21);
  EXPECT_LT(bar.At(10, 9), 10);
  EXPECT_GT(bar.At(10, 10), 245);
  EXPECT_GT(bar.At(10, 11), 245);
}

TEST(Icons, ThePenKeepsItsWidthInSmallIcons) {
  const auto bar = [](int designSize) {  // the width of the minus sign's bar
    const Coverage minus = RenderIcon(Icon::Remove, designSize, designSize);
    double width = 0;
    for (int y = 0; y < designSize; ++y) width += minus.At(designSize / 2, y) / 255.0;
    return width;
  };
  for (const int size : {9, 12, 14, 16}) EXPECT_NEAR(bar(size), 1.5, 0.07) << size;
  EXPECT_NEAR(bar(32), 2.6, 0.07);
}

TEST(RatingRing, LightsOneTickForEachHalf) {
  const struct {
    int halves;
    int lit;
  } cases[] = {{-1, 0}, {0, 0}, {1, 2}, {9, 10}, {10, 11}, {11, 11}};
  for (const auto& c : cases) EXPECT_EQ(LitTicks(c.halves), c.lit) << c.halves;
  const Coverage whole = RenderRing(0, kRingTicks, 96);
  EXPECT_NEAR(Area(whole), kRingTicks * 6 * 2, 0.5);
  EXPECT_NEAR(Area(RenderRing(0, 4, 96)) + Area(RenderRing(4, kRingTicks, 96)), Area(whole), 0.5);
  EXPECT_NEAR(Area(RenderRing(0, 1, 192)), 4 * 12, 0.3);
  EXPECT_GT(RenderRing(0, 1, 96).At(12, 31), 200);  // the first tick stands at the lower left
  EXPECT_EQ(whole.At(26, 40), 0);                   // the ring is open below
}

TEST(PaintOver, BlendsPremultiplied) {
  Pixels pixels;
  PaintOver(pixels, {3, 1, {0, 128, 255}}, Rgb(0xFF8000));
  EXPECT_EQ(pixels, (Pixels{0, 0x80804000, 0xFFFF8000}));
  PaintOver(pixels, {3, 1, {0, 128, 128}}, Rgb(0x0000FF));
  EXPECT_EQ(pixels, (Pixels{0, 0xC0402080, 0xFF7F4080}));
}

TEST(ProgramMark, HasItsColoursWhereTheyBelong) {
  const MarkColors colors = {Rgb(0xEEF0F2), Rgb(0xFFB03A)};
  const Color ground = Rgb(0x262A30);
  const Pixels mark = RenderProgramMark(100, colors, &ground);
  const auto at = [&](int x, int y) { return mark[static_cast<std::size_t>(y * 100 + x)]; };
  EXPECT_EQ(at(0, 0), 0U);            // outside the octagon
  EXPECT_EQ(at(50, 5), 0xFFEEF0F2);   // ring
  EXPECT_EQ(at(50, 67), 0xFFFFB03A);  // hub
  EXPECT_EQ(at(30, 80), 0xFF262A30);  // ground
  EXPECT_EQ(at(50, 27), 0xFFEEF0F2);  // the middle tick
  const Pixels icon = RenderProgramMark(20, colors, &ground);
  EXPECT_EQ(icon[4 * 20 + 9] & 0xFFFFFF, 0x262A30U) << "a tick in the tray's icon";
  EXPECT_NE(RenderProgramMark(18, colors)[4 * 18 + 9] >> 24, 0U) << "no ticks in the windows' titles";
}

}  // namespace
}  // namespace sonaro
