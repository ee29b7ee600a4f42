// What the system says of the screen, also on systems that know only one resolution for all: the dots per
// inch of monitors, where windows may lie, high contrast; and the outline that a window is cut to.
#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

#include "faceplate/Shape.h"
#include "forms/Arrange.h"

namespace sonaro {

class Faceplate;

int DpiOfMonitor(HMONITOR monitor);

// The work area (screen without task bar) of the monitor that shows most of the window; nullptr: the primary
// one.
PixelRect WorkAreaOf(HWND window);
HMONITOR MonitorOf(HWND window);

// The work areas of all monitors.
std::vector<PixelRect> WorkAreas();

inline PixelRect ToPixelRect(const RECT& box) {
  return {static_cast<int>(box.left), static_cast<int>(box.top), static_cast<int>(box.right),
          static_cast<int>(box.bottom)};
}
inline RECT ToRect(const PixelRect& box) { return {box.left, box.top, box.right, box.bottom}; }

// Makes the faceplate draw with the system's colours while a high-contrast theme is on, and with its own
// again after it. Forms do this when they open and when the system tells of a change.
void FollowHighContrast(Faceplate& faceplate);

// Cuts a window to its outline. The points come from faceplate/Shape; the region made of them is the system's
// from then on. `made`: the size of the window that the outline was drawn for, in pixels of this screen.
// False when the point file could not be opened: the window stays as it is. True otherwise, also when the
// outline has no points and nothing changes.
bool ApplyWindowShape(HWND window, std::string_view key, const Shape& shape, int dpi, OutlineSize made);

}  // namespace sonaro
