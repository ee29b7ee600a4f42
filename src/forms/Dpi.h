// The dots per inch of monitors and windows, also on systems that know only one value for all.
#pragma once

#include <windows.h>

#include <vector>

#include "forms/Arrange.h"

namespace sonaro {

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

}  // namespace sonaro
