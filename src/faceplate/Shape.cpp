#include "faceplate/Shape.h"

#include <cmath>
#include <cstdint>
#include <string>

#include "base/DataFolder.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace sonaro {
namespace {

constexpr std::string_view kFile = "\\Depot\\sshape.pts";
constexpr std::size_t kNumberWidth = 5;
constexpr std::size_t kGroupWidth = 2 * kNumberWidth;
constexpr double kDesignTwips = 15.0;

// The number in the five characters from `position`; 0 past the end and for a text that is not a number.
int NumberAt(std::string_view points, std::size_t position) {
  if (position >= points.size()) return 0;
  const std::string_view text = points.substr(position, kNumberWidth);
  return IsNumeric(text) ? static_cast<int>(NumberValue(text)) : 0;
}

int Scaled(int value, double twips) { return static_cast<int>(std::nearbyint(value * kDesignTwips / twips)); }

}  // namespace

// The line of a window by its key; a window that is not in the file gets the last line.
std::string_view OutlineLine(std::string_view fileText, std::string_view key) {
  std::string_view last;
  for (const std::string_view line : SplitLines(fileText)) {
    if (line.starts_with(key)) return line;
    last = line;
  }
  return last;
}

Outline ParseOutline(std::string_view line) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos) return {};
  const std::string_view points = line.substr(equals + 1);
  if (points.empty()) return {};
  // The index of the last point. Rounding lets a line that was cut off within its last point keep that point.
  const double highest = std::nearbyint(static_cast<double>(points.size()) / kGroupWidth - 1.0);
  Outline outline;
  for (std::size_t i = 0; static_cast<double>(i) <= highest; ++i) {
    const std::size_t start = i * kGroupWidth;
    outline.push_back({NumberAt(points, start), NumberAt(points, start + kNumberWidth)});
  }
  return outline;
}

Outline ScaleOutline(const Outline& outline, TwipsPerPixel twips) {
  Outline scaled;
  scaled.reserve(outline.size());
  for (const ShapePoint point : outline)
    scaled.push_back({Scaled(point.x, twips.x), Scaled(point.y, twips.y)});
  return scaled;
}

// Points in the right or lower half move with that edge when the window is larger than the outline was made
// for, so that corners keep their form and only the straight parts grow.
Outline FitOutline(const Outline& outline, OutlineSize made, OutlineSize window) {
  Outline fitted;
  fitted.reserve(outline.size());
  for (const ShapePoint point : outline) {
    fitted.push_back({point.x + (2 * std::int64_t{point.x} > made.width ? window.width - made.width : 0),
                      point.y + (2 * std::int64_t{point.y} > made.height ? window.height - made.height : 0)});
  }
  return fitted;
}

Shape::Result Shape::OutlineOf(std::string_view key, TwipsPerPixel twips) const {
  const ReadResult file = folder_.Read(kFile);
  if (file.status != ReadStatus::Ok) return {};
  return {Status::Ok, ScaleOutline(ParseOutline(OutlineLine(file.bytes, key)), twips)};
}

}  // namespace sonaro
