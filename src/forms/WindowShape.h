// Cuts a window to its outline. The points come from faceplate/Shape; the region made of them is the system's
// from then on.
#pragma once

#include <windows.h>

#include <string_view>

#include "faceplate/Shape.h"

namespace sonaro {

// `made`: the size of the window that the outline was drawn for, in pixels of this screen.
// False when the point file could not be opened: the window stays as it is. True otherwise, also when the
// outline has no points and nothing changes.
bool ApplyWindowShape(HWND window, std::string_view key, const Shape& shape, int dpi, OutlineSize made);

}  // namespace sonaro
