// The tab strip as a tuning dial: glass with a scale of ticks, and on it the tabs, which are buttons of the
// system. The form paints the dial once as part of its backdrop; each tab paints its own stretch of it.
#pragma once

#include <windows.h>

#include <optional>
#include <string_view>

namespace sonaro {

class Painter;

// Glass and unlit ticks.
void PaintDial(HDC dc, const RECT& box, const Painter& painter);

struct TabPicture {
  std::wstring_view text;
  UINT prefix = 0;  // DT_NOPREFIX, DT_HIDEPREFIX or 0
  bool active = false;
  bool hover = false;
  bool pressed = false;
  bool focused = false;
  int offset = 0;             // pixels from the dial's left edge to the tab's
  std::optional<int> needle;  // pixels from the tab's left edge, perhaps beside the tab
};

// `dc` already shows the dial behind the tab; `box` is the whole tab, which ends above the dial's frame.
void PaintTab(HDC dc, const RECT& box, const TabPicture& tab, const Painter& painter);

}  // namespace sonaro
