// Windows that the user makes larger: what the pointer takes hold of at their edges, where their controls go
// with them, and the text that their size is kept as. Arithmetic only; FormWindow asks the system.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "forms/Arrange.h"

namespace sonaro {

// The edge or corner of a window at a point of it, both in pixels: three bits of where, 0 when it is none.
// An edge is six design pixels wide; a corner is also what lies along the cut of an outline there.
enum WindowEdge : unsigned { kNoEdge = 0, kLeftEdge = 1, kRightEdge = 2, kTopEdge = 4, kBottomEdge = 8 };
unsigned EdgeAt(PixelSize window, int x, int y, int dpi);

// A control's place in the client area of a window that was designed for `made`: by the first stretch that it
// stands in, else by its anchors.
PixelRect ArrangeRow(const FormDesign& design, const ControlRow& row, const DesignRect& at, DesignSize made,
                     PixelSize client, int dpi);

// What is kept of a window from one time to the next. Sizes are design pixels, so that another screen's dpi
// shows the same.
struct KeptSize {
  DesignSize size;
  bool maximised = false;
  friend bool operator==(const KeptSize& a, const KeptSize& b) {
    return a.size.width == b.size.width && a.size.height == b.size.height && a.maximised == b.maximised;
  }
};

// "1400,900" or "1400,900,Max"; nothing when the text is neither.
std::optional<KeptSize> ReadKeptSize(std::string_view text);
std::string WriteKeptSize(const KeptSize& kept);

// The kept size when no side is less than `least` and one of the screens has the room for it at `dpi`, else
// `least`.
DesignSize UsableSize(DesignSize kept, DesignSize least, std::span<const PixelRect> screens, int dpi);

}  // namespace sonaro
