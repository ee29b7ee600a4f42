// Pictures of what the display really shows: shapes, themes and overlapping windows included.
#pragma once

#include <windows.h>

#include <string>

namespace sonaro::desktop {

// Writes this part of the screen to a PNG file; folders are not created. False when that failed.
bool SavePicture(const RECT& part, const std::string& path);

// A number that changes with any pixel of this part of the screen.
unsigned long long PictureHash(const RECT& part);

RECT WholeScreen();

}  // namespace sonaro::desktop
