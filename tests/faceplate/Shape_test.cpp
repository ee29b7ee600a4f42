#include "faceplate/Shape.h"

#include <gtest/gtest.h>

#include <string>

#include "base/DataFolder.h"
#include "fakes/FakeFiles.h"

namespace sonaro {
namespace {

TEST(OutlineLine, IsTheFirstThatBeginsWithTheKeyElseTheLast) {
  const std::string file = "ldf30=A\r\nfdf01=B\r\nfdf02=C\nddf44=D\r\n";
  const struct {
    const char* key;
    const char* line;
  } cases[] = {{"fdf01", "fdf01=B"}, {"fdf0", "fdf01=B"},  {"fdf02", "fdf02=C"},
               {"FDF01", "ddf44=D"}, {"xxxxx", "ddf44=D"}, {"", "ldf30=A"}};
  for (const auto& c : cases) EXPECT_EQ(OutlineLine(file, c.key), c.line) << c.key;
  EXPECT_EQ(OutlineLine("", "fdf01"), "");
}

TEST(ParseOutline, ReadsFiveCharactersANumber) {
  const struct {
    const char* line;
    Outline outline;
  } cases[] = {
      {"k=0001000020000300004000050000600007000080", {{10, 20}, {30, 40}, {50, 60}, {70, 80}}},
      {"k=   10   20  -30 40  ", {{10, 20}, {-30, 40}}},
      {"k=12x450002000 3a00040", {{0, 20}, {0, 40}}},  // what is no number stays 0
      {"k=00001=0002", {{1, 0}}},                      // only the first "=" separates
      {"k=", {}},
      {"no separator", {}},
  };
  for (const auto& c : cases) EXPECT_EQ(ParseOutline(c.line), c.outline) << c.line;
}

TEST(ParseOutline, RoundsTheHighestIndexToTheEvenOne) {
  const std::string points(60, '1');
  const struct {
    std::size_t length;
    std::size_t vertices;
  } cases[] = {{4, 0}, {5, 1}, {14, 1}, {15, 1}, {16, 2}, {25, 3}, {35, 3}, {36, 4}, {45, 5}, {50, 5}};
  for (const auto& c : cases)
    EXPECT_EQ(ParseOutline("k=" + points.substr(0, c.length)).size(), c.vertices) << c.length;
  EXPECT_EQ(ParseOutline("k=" + points.substr(0, 45)).back(), (ShapePoint{11111, 0}));
  EXPECT_EQ(ParseOutline("k=" + points.substr(0, 48)).back(), (ShapePoint{11111, 111}));
}

TEST(ScaleOutline, RoundsEachCoordinateTiesToEven) {
  const Outline outline = {{10, 14}, {14, 18}, {420, 248}, {-10, 99999}};
  EXPECT_EQ(ScaleOutline(outline, {15, 15}), outline);
  const Outline largeFonts = {{12, 18}, {18, 22}, {525, 310}, {-12, 124999}};
  EXPECT_EQ(ScaleOutline(outline, {12, 12}), largeFonts);
  const Outline unequal = {{10, 21}, {14, 27}, {420, 372}, {-10, 149998}};
  EXPECT_EQ(ScaleOutline(outline, {15, 10}), unequal);
}

TEST(FitOutline, KeepsEachPointAtTheNearerEdge) {
  const Outline outline = {{10, 0}, {210, 124}, {211, 125}, {420, 248}, {500, -5}};
  const struct {
    OutlineSize window;
    Outline fitted;
  } cases[] = {
      {{420, 248}, outline},
      {{440, 254}, {{10, 0}, {210, 124}, {231, 131}, {440, 254}, {520, -5}}},
      {{400, 240}, {{10, 0}, {210, 124}, {191, 117}, {400, 240}, {480, -5}}},
  };
  for (const auto& c : cases) EXPECT_EQ(FitOutline(outline, {420, 248}, c.window), c.fitted);
}

TEST(Shape, ReadsTheFileAtEachCall) {
  FakeFiles files;
  DataFolder folder(files, "/app", '/');
  const Shape shape(folder);
  EXPECT_EQ(shape.OutlineOf("fdf01", {}).status, Shape::Status::NoFile);

  files.Put("/app/depot/SShape.pts", "ldf30=0000100002\r\nfdf01=0001000020\r\n");
  const auto atLargeFonts = shape.OutlineOf("fdf01", TwipsPerPixel::OfDpi(120));
  EXPECT_EQ(atLargeFonts.status, Shape::Status::Ok);
  EXPECT_EQ(atLargeFonts.outline, (Outline{{12, 25}}));
}

}  // namespace
}  // namespace sonaro
