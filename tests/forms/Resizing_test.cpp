#include "forms/Resizing.h"

#include <gtest/gtest.h>

namespace sonaro {
namespace {

TEST(EdgeAt, IsSixPixelsWideAndItsCornersLieAlongTheCut) {
  const struct {
    int x, y, dpi;
    unsigned edge;
  } cases[] = {{5, 200, 96, kLeftEdge},
               {6, 200, 96, kNoEdge},
               {8, 200, 144, kLeftEdge},
               {394, 200, 96, kRightEdge},
               {200, 0, 96, kTopEdge},
               {200, 299, 96, kBottomEdge},
               {2, 23, 96, kLeftEdge | kTopEdge},
               {2, 24, 96, kLeftEdge},
               {387, 287, 96, kRightEdge | kBottomEdge},
               {386, 286, 96, kNoEdge},
               {381, 281, 144, kRightEdge | kBottomEdge}};
  for (const auto& c : cases) {
    EXPECT_EQ(EdgeAt({400, 300}, c.x, c.y, c.dpi), c.edge) << c.x << "," << c.y << " at " << c.dpi;
  }
}

class ArrangeRowTest : public testing::Test {
 protected:
  static PixelRect At(const DesignRect& at, PixelSize client, unsigned char pane = 0, int dpi = 96) {
    static constexpr Stretch kStretches[] = {{{10, 10, 100, 20}, 0, 60, 0, 0, 2},
                                             {{110, 10, 80, 20}, 60, 100, 0, 0},
                                             {{0, 40, 200, 60}, 0, 100, 100, 100}};
    const FormDesign design = {.size = {200, 100}, .stretches = kStretches};
    const ControlRow row = {.at = at, .pane = pane};
    return ArrangeRow(design, row, at, design.size, client, dpi);
  }
};

TEST_F(ArrangeRowTest, MovesWithTheFirstStretchThatHoldsIt) {
  EXPECT_EQ(At({10, 10, 100, 20}, {300, 150}, 2), (PixelRect{10, 10, 170, 30}));
  EXPECT_EQ(At({110, 10, 80, 20}, {300, 150}), (PixelRect{170, 10, 290, 30})) << "they stay in touch";
  EXPECT_EQ(At({60, 10, 50, 20}, {300, 150}, 2), (PixelRect{90, 10, 170, 30})) << "half of 60 percent";
  EXPECT_EQ(At({0, 50, 100, 20}, {300, 150}), (PixelRect{0, 100, 150, 120})) << "keeps its height";
  EXPECT_EQ(At({10, 10, 100, 20}, {300, 150}, 1), (PixelRect{10, 10, 110, 30})) << "of another pane";
  EXPECT_EQ(At({100, 10, 50, 20}, {300, 150}), (PixelRect{100, 10, 150, 30})) << "in none as a whole";
}

TEST_F(ArrangeRowTest, LeavesTheDesignedSizeAsItIsAtEveryDpi) {
  for (const int dpi : {96, 120, 144}) {
    const PixelSize client = ScaleToDpi(DesignSize{200, 100}, dpi);
    const DesignRect at = {110, 10, 80, 20};
    EXPECT_EQ(At(at, client, 0, dpi), Arrange(at, kLeftTop, {200, 100}, client, dpi)) << dpi;
  }
}

TEST(KeptSize, IsReadOnlyWhenItIsWhole) {
  const KeptSize large = {{1400, 900}, false};
  const KeptSize maximised = {{1400, 900}, true};
  EXPECT_EQ(ReadKeptSize(WriteKeptSize(large)), large);
  EXPECT_EQ(ReadKeptSize(WriteKeptSize(maximised)), maximised);
  for (const char* text : {"", "1400", "1400,", ",900", "1400,900,", "1400,900,max", "1400,900,Max,1",
                           "-1400,900", "1400 ,900", "14e2,900", "40000,900", "999999999999,900"}) {
    EXPECT_EQ(ReadKeptSize(text), std::nullopt) << text;
  }
}

TEST(UsableSize, IsTheLeastWhenAScreenHasNoRoomForIt) {
  const PixelRect screens[] = {{0, 0, 1280, 1000}, {1280, 0, 3200, 1040}};
  const struct {
    DesignSize kept;
    int dpi, width;
  } cases[] = {{{1920, 1040}, 96, 1920}, {{1921, 1040}, 96, 980}, {{1300, 1041}, 96, 980},
               {{1400, 700}, 144, 980},  {{979, 900}, 96, 980},   {{1200, 639}, 96, 980},
               {{0, 0}, 96, 980}};
  for (const auto& c : cases) {
    EXPECT_EQ(UsableSize(c.kept, {980, 640}, screens, c.dpi).width, c.width)
        << c.kept.width << " x " << c.kept.height << " at " << c.dpi;
  }
}

}  // namespace
}  // namespace sonaro
