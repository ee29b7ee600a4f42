#include "forms/paint/IconPainter.h"

#include <algorithm>

namespace sonaro {
namespace {

// A top-down bitmap of 32 bits a pixel. nullptr when the system refuses.
HBITMAP MakeBitmap(const Pixels& pixels, int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  if (bitmap) std::copy(pixels.begin(), pixels.end(), static_cast<std::uint32_t*>(bits));
  return bitmap;
}

COLORREF Number(Color color) { return RGB(color.red, color.green, color.blue); }

}  // namespace

BlendBitmap::BlendBitmap(const Pixels& pixels, int width, int height)
    : bitmap_(MakeBitmap(pixels, width, height)), width_(width), height_(height) {}

BlendBitmap::~BlendBitmap() {
  if (bitmap_) DeleteObject(bitmap_);
}

// The pixels carry their colour multiplied by their coverage, as AC_SRC_ALPHA wants it.
void BlendBitmap::Draw(HDC dc, int x, int y) const {
  if (!bitmap_) return;
  const HDC source = CreateCompatibleDC(dc);
  const HGDIOBJ before = SelectObject(source, bitmap_);
  const BLENDFUNCTION blend = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  GdiAlphaBlend(dc, x, y, width_, height_, source, 0, 0, width_, height_, blend);
  SelectObject(source, before);
  DeleteDC(source);
}

// Not kept: rings and marks come in too many sizes and states to be worth it.
void DrawCoverage(HDC dc, int x, int y, const Coverage& coverage, Color color) {
  Pixels pixels;
  PaintOver(pixels, coverage, color);
  BlendBitmap(pixels, coverage.width, coverage.height).Draw(dc, x, y);
}

void DrawNeedleHead(HDC dc, int x, int y, int width, int height, Color color) {
  const Polygon head = {{0, 0}, {width * 1.0, 0}, {width / 2.0, height * 1.0}};
  DrawCoverage(dc, x, y, Rasterize({head}, {}, width, height), color);
}

// Icons are the same few in the same few colours: each is rendered once for a theme and a dpi.
void IconPainter::Draw(HDC dc, Icon icon, int x, int y, int designSize, int size, Color color) {
  if (icon == Icon::None || designSize <= 0 || size <= 0) return;
  const Key key = {icon, designSize, size, Number(color), 0};
  auto found = pictures_.find(key);
  if (found == pictures_.end()) {
    Pixels pixels;
    PaintOver(pixels, RenderIcon(icon, designSize, size), color);
    found = pictures_.try_emplace(key, pixels, size, size).first;
  }
  found->second.Draw(dc, x, y);
}

void IconPainter::DrawProgramMark(HDC dc, int x, int y, int size, const MarkColors& colors) {
  if (size <= 0) return;
  const Key key = {Icon::ProgramMark, 0, size, Number(colors.ink), Number(colors.needle)};
  auto found = pictures_.find(key);
  if (found == pictures_.end())
    found = pictures_.try_emplace(key, RenderProgramMark(size, colors), size, size).first;
  found->second.Draw(dc, x, y);
}

}  // namespace sonaro
