#include "forms/Resizing.h"

#include <algorithm>

#include "base/Numbers.h"
#include "base/Text.h"

namespace sonaro {
namespace {

constexpr int kEdgeWidth = 6;
constexpr int kCornerReach = 26;
constexpr int kWidestEver = 32767;  // what a window of the system can have
constexpr std::string_view kMaximised = "Max";

bool Holds(const DesignRect& outer, const DesignRect& inner) {
  return inner.x >= outer.x && inner.y >= outer.y && inner.x + inner.width <= outer.x + outer.width &&
         inner.y + inner.height <= outer.y + outer.height;
}

// How far an edge at `place` of a stretch from `start` goes: in proportion between its two ends.
int Moved(int place, int start, int length, int lowShare, int highShare, int gained) {
  const std::int64_t share =
      std::int64_t{lowShare} * length + std::int64_t{highShare - lowShare} * (place - start);
  return static_cast<int>(share * gained / (std::int64_t{100} * length));
}

}  // namespace

// The cut corners of an outline leave nothing of the edges there: the corner is what lies along the cut.
unsigned EdgeAt(PixelSize window, int x, int y, int dpi) {
  const int edge = ScaleToDpi(kEdgeWidth, dpi);
  const int fromSide = std::min(x, window.width - 1 - x);
  const int fromEnd = std::min(y, window.height - 1 - y);
  const unsigned side = x < window.width / 2 ? kLeftEdge : kRightEdge;
  const unsigned end = y < window.height / 2 ? kTopEdge : kBottomEdge;
  if (fromSide + fromEnd < ScaleToDpi(kCornerReach, dpi)) return side | end;
  if (fromSide < edge) return side;
  return fromEnd < edge ? end : kNoEdge;
}

// Edges move by what the window gained and not by how much larger it is: at the designed size every control
// is where the table has it, to the pixel, and neighbours stay in touch.
PixelRect ArrangeRow(const FormDesign& design, const ControlRow& row, const DesignRect& at, DesignSize made,
                     PixelSize client, int dpi) {
  const auto stretch = std::ranges::find_if(design.stretches, [&](const Stretch& candidate) {
    return (candidate.pane == 0 || candidate.pane == row.pane) && Holds(candidate.at, at);
  });
  if (stretch == design.stretches.end()) return Arrange(at, row.anchors, made, client, dpi);
  const PixelSize scaled = ScaleToDpi(made, dpi);
  const auto across = [&](int x) {
    return ScaleToDpi(x, dpi) + Moved(x, stretch->at.x, stretch->at.width, stretch->left, stretch->right,
                                      client.width - scaled.width);
  };
  const auto down = [&](int y) {
    return ScaleToDpi(y, dpi) + Moved(y, stretch->at.y, stretch->at.height, stretch->top, stretch->bottom,
                                      client.height - scaled.height);
  };
  return {across(at.x), down(at.y), across(at.x + at.width), down(at.y + at.height)};
}

std::optional<KeptSize> ReadKeptSize(std::string_view text) {
  const auto fields = Split(text, ',');
  if (fields.size() < 2 || fields.size() > 3 || (fields.size() == 3 && fields[2] != kMaximised)) return {};
  for (const std::string_view number : {fields[0], fields[1]}) {
    if (!std::ranges::all_of(number, IsDigit) || number.empty() || number.size() > 5) return {};
    if (NumberValue(number) > kWidestEver) return {};
  }
  return KeptSize{{static_cast<int>(NumberValue(fields[0])), static_cast<int>(NumberValue(fields[1]))},
                  fields.size() == 3};
}

std::string WriteKeptSize(const KeptSize& kept) {
  std::string text = std::to_string(kept.size.width) + "," + std::to_string(kept.size.height);
  if (kept.maximised) text.append(",").append(kMaximised);
  return text;
}

DesignSize UsableSize(DesignSize kept, DesignSize least, std::span<const PixelRect> screens, int dpi) {
  if (kept.width < least.width || kept.height < least.height) return least;
  const PixelSize needed = ScaleToDpi(kept, dpi);
  const bool fits = std::ranges::any_of(screens, [&](const PixelRect& screen) {
    return needed.width <= screen.Width() && needed.height <= screen.Height();
  });
  return fits ? kept : least;
}

}  // namespace sonaro
