// The way of the tab dial's needle from one tab to the next. Pure arithmetic; the form asks it where to draw.
#pragma once

#include <cstdint>

namespace sonaro {

struct NeedleSlide {
  static constexpr unsigned kMilliseconds = 120;  // the whole way, however far
  static constexpr unsigned kFrame = 20;          // between two pictures

  int from = 0;  // pixels
  int to = 0;
  std::uint64_t start = 0;  // on the clock of the calls below, in milliseconds

  bool IsOver(std::uint64_t now) const { return now >= start + kMilliseconds; }
  // `to` when it is over; a clock that stands before the start gives `from`.
  int At(std::uint64_t now) const {
    if (IsOver(now)) return to;
    if (now <= start) return from;
    return from + (to - from) * static_cast<int>(now - start) / static_cast<int>(kMilliseconds);
  }
};

}  // namespace sonaro
