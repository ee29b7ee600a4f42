#include "forms/Arrange.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

TEST(ScaleToDpi, RoundsToNearestHalvesAwayFromZero) {
  const struct {
    int design, dpi, pixels;
  } cases[] = {{980, 96, 980}, {14, 120, 18}, {5, 144, 8},   {5, 120, 6},
               {22, 120, 28},  {1, 144, 2},   {-1, 144, -2}, {0, 192, 0}};
  for (const auto& c : cases) EXPECT_EQ(ScaleToDpi(c.design, c.dpi), c.pixels) << c.design << " at " << c.dpi;
}

// Buttons that touch in the design touch at every dpi, and none overlaps the next.
TEST(Arrange, KeepsNeighboursInTouch) {
  for (const int dpi : {96, 120, 144, 192}) {
    const PixelSize client = ScaleToDpi(DesignSize{717, 480}, dpi);
    for (int x = 0; x + 61 <= 717; x += 41) {
      const PixelRect left = Arrange({x, 7, 41, 23}, kLeftTop, {717, 480}, client, dpi);
      const PixelRect right = Arrange({x + 41, 7, 20, 23}, kLeftTop, {717, 480}, client, dpi);
      EXPECT_EQ(left.right, right.left) << "x " << x << " at " << dpi;
      EXPECT_LE(right.right, client.width);
    }
  }
}

TEST(Arrange, MovesTheEdgesThatAreAnchoredToTheFarSide) {
  const DesignRect at = {10, 20, 100, 30};
  const DesignSize design = {200, 100};
  const PixelSize client = {260, 130};
  const struct {
    unsigned anchors;
    PixelRect box;
  } cases[] = {{kLeft | kTop, {10, 20, 110, 50}},           {kRight | kTop, {70, 20, 170, 50}},
               {kLeft | kRight | kTop, {10, 20, 170, 50}},  {kLeft | kBottom, {10, 50, 110, 80}},
               {kLeft | kTop | kBottom, {10, 20, 110, 80}}, {0, {40, 35, 140, 65}}};
  for (const auto& c : cases) EXPECT_EQ(Arrange(at, c.anchors, design, client, 96), c.box) << c.anchors;
  const PixelRect shrunk = Arrange(at, kLeft | kRight | kTop, design, {60, 100}, 96);
  EXPECT_EQ(shrunk.Width(), 0) << "never turned inside out";
}

TEST(BoundsIn, OfALayoutIsWhatItNamesAndTheRestHiddenOrAsDesigned) {
  static constexpr ControlRow kRows[] = {{.id = 1, .kind = ControlKind::PushButton, .at = {1, 2, 3, 4}},
                                         {.id = 2, .kind = ControlKind::PushButton},
                                         {.id = 0, .kind = ControlKind::Label},
                                         {.id = 3, .kind = ControlKind::PushButton}};
  static constexpr Bounds kPlaces[] = {{2, {5, 6, 7, 8}}, {0, {1, 1, 1, 1}}, {3, {}}};
  static constexpr Layout kLayouts[] = {{{440, 150}, "scc44", kPlaces},
                                        {.places = kPlaces, .others = Layout::Others::AsDesigned}};
  const FormDesign design = {.size = {720, 480}, .outline = "scf72", .controls = kRows, .layouts = kLayouts};
  EXPECT_EQ(BoundsIn(design, 0, kRows[0]), &kRows[0].at);
  EXPECT_EQ(BoundsIn(design, 1, kRows[0]), nullptr);
  EXPECT_EQ(BoundsIn(design, 1, kRows[1]), &kPlaces[0].at);
  EXPECT_EQ(BoundsIn(design, 1, kRows[2]), nullptr) << "an unnumbered caption belongs to the design only";
  EXPECT_EQ(BoundsIn(design, 2, kRows[0]), &kRows[0].at);
  EXPECT_EQ(BoundsIn(design, 2, kRows[1]), &kPlaces[0].at);
  EXPECT_EQ(BoundsIn(design, 2, kRows[3]), nullptr);
  EXPECT_EQ(SizeOf(design, 1).width, 440);
  EXPECT_STREQ(OutlineOf(design, 1), "scc44");
  EXPECT_STREQ(OutlineOf(design, 0), "scf72");
  EXPECT_EQ(SizeOf(design, 2).width, 720) << "without a size of its own";
  EXPECT_STREQ(OutlineOf(design, 2), "scf72");
}

TEST(FittingDpi, TakesTheLargestStepThatFits) {
  const DesignSize main = {980, 640};
  const struct {
    PixelSize room;
    int dpi, fitting;
  } cases[] = {{{1920, 1040}, 144, 144}, {{1440, 860}, 144, 120}, {{1366, 728}, 120, 96},
               {{1280, 720}, 192, 96},   {{800, 600}, 144, 96},   {{1225, 800}, 120, 120},
               {{4000, 3000}, 168, 168}};
  for (const auto& c : cases) {
    EXPECT_EQ(FittingDpi(main, c.room, c.dpi), c.fitting)
        << c.room.width << " x " << c.room.height << " " << c.dpi;
  }
}

TEST(KeepOnScreens, MovesOnlyWhatIsNotAllShown) {
  const PixelRect two[] = {{0, 0, 1920, 1040}, {1920, 0, 3200, 984}};
  const struct {
    const char* what;
    PixelRect window, kept;
  } cases[] = {
      {"inside", {100, 100, 820, 580}, {100, 100, 820, 580}},
      {"across both screens", {1700, 100, 2420, 580}, {1700, 100, 2420, 580}},
      {"across both, below the lower edge of one", {1700, 600, 2420, 1000}, {1920, 584, 2640, 984}},
      {"off to the left", {-300, 100, 420, 580}, {0, 100, 720, 580}},
      {"off below", {100, 900, 820, 1380}, {100, 560, 820, 1040}},
      {"on a screen that is gone", {5000, -900, 5720, -420}, {2480, 0, 3200, 480}},
      {"larger than the screen", {50, 50, 2150, 1250}, {0, 0, 2100, 1200}},
  };
  for (const auto& c : cases) EXPECT_EQ(KeepOnScreens(c.window, two), c.kept) << c.what;
  EXPECT_EQ(KeepOnScreens({-300, 0, 0, 90}, {}), (PixelRect{-300, 0, 0, 90})) << "no screen is known";
}

}  // namespace
}  // namespace sonaro
