#include "forms/WindowShape.h"

#include <vector>

namespace sonaro {

bool ApplyWindowShape(HWND window, std::string_view key, const Shape& shape, int dpi, OutlineSize made) {
  const Shape::Result found = shape.OutlineOf(key, TwipsPerPixel::OfDpi(dpi));
  if (found.status == Shape::Status::NoFile) return false;
  if (found.outline.empty()) return true;

  RECT frame{};
  GetWindowRect(window, &frame);
  const OutlineSize size = {static_cast<int>(frame.right - frame.left),
                            static_cast<int>(frame.bottom - frame.top)};
  std::vector<POINT> points;
  points.reserve(found.outline.size());
  for (const ShapePoint point : FitOutline(found.outline, made, size)) points.push_back({point.x, point.y});
  const HRGN outline = CreateRectRgn(0, 0, 0, 0);
  const HRGN polygon = CreatePolygonRgn(points.data(), static_cast<int>(points.size()), WINDING);
  const bool copied = CombineRgn(outline, polygon, nullptr, RGN_COPY) != ERROR;
  DeleteObject(polygon);
  // What lies outside of the window shows nothing, but a point far off would cost a row for each of its
  // pixels.
  const HRGN whole = CreateRectRgn(0, 0, size.width, size.height);
  CombineRgn(outline, outline, whole, RGN_AND);
  DeleteObject(whole);
  // An outline without an area would make the window vanish: nothing could bring it back.
  RECT bounds{};
  const bool hasArea = copied && GetRgnBox(outline, &bounds) > NULLREGION;
  if (!hasArea || !SetWindowRgn(window, outline, TRUE)) DeleteObject(outline);
  return true;
}

}  // namespace sonaro
