// Shows icons and other smooth shapes on a device context. Owned by Painter; keeps the pictures that it has
// made, by icon, size and colour. The shapes themselves come from forms/paint.
#pragma once

#include <windows.h>

#include <map>
#include <tuple>

#include "forms/paint/Icons.h"

namespace sonaro {

// Pixels as a bitmap that can be blended again and again.
class BlendBitmap {
 public:
  BlendBitmap(const Pixels& pixels, int width, int height);
  ~BlendBitmap();
  BlendBitmap(const BlendBitmap&) = delete;
  BlendBitmap& operator=(const BlendBitmap&) = delete;
  void Draw(HDC dc, int x, int y) const;

 private:
  HBITMAP bitmap_;
  int width_;
  int height_;
};

// A smooth shape in one colour, its top-left corner at pixel (x, y).
void DrawCoverage(HDC dc, int x, int y, const Coverage& coverage, Color color);

// The head of a needle: a triangle that points down, its top-left corner at pixel (x, y). Measures in pixels.
void DrawNeedleHead(HDC dc, int x, int y, int width, int height, Color color);

class IconPainter {
 public:
  // `size` pixels wide, which are `designSize` at 96 dpi. Not for the program mark.
  void Draw(HDC dc, Icon icon, int x, int y, int designSize, int size, Color color);
  void DrawProgramMark(HDC dc, int x, int y, int size, const MarkColors& colors);

 private:
  using Key = std::tuple<Icon, int, int, COLORREF, COLORREF>;
  std::map<Key, BlendBitmap> pictures_;
};

}  // namespace sonaro
