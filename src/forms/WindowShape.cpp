#include "forms/WindowShape.h"

#include <vector>

#include "faceplate/Shape.h"

namespace sonaro {

bool ApplyWindowShape(HWND window, std::string_view key, const Shape& shape, int dpi,
                      const OutlineGrowth& growth) {
  const Shape::Result found = shape.OutlineOf(key, TwipsPerPixel::OfDpi(dpi));
  if (found.status == Shape::Status::NoFile) return false;
  if (found.outline.empty()) return true;

  std::vector<POINT> points;
  points.reserve(found.outline.size());
  for (const ShapePoint& point : found.outline) {
    points.push_back({point.x + (point.x > growth.middleX ? growth.extraX : 0),
                      point.y + (point.y > growth.middleY ? growth.extraY : 0)});
  }
  const HRGN outline = CreateRectRgn(0, 0, 0, 0);
  const HRGN polygon = CreatePolygonRgn(points.data(), static_cast<int>(points.size()), WINDING);
  const bool copied = CombineRgn(outline, polygon, nullptr, RGN_COPY) != ERROR;
  DeleteObject(polygon);
  // What lies outside of the window shows nothing, but a point far off would cost a row for each of its
  // pixels.
  RECT frame{};
  GetWindowRect(window, &frame);
  const HRGN whole = CreateRectRgn(0, 0, frame.right - frame.left, frame.bottom - frame.top);
  CombineRgn(outline, outline, whole, RGN_AND);
  DeleteObject(whole);
  // An outline without an area would make the window vanish: nothing could bring it back.
  RECT bounds{};
  const bool hasArea = copied && GetRgnBox(outline, &bounds) > NULLREGION;
  if (!hasArea || !SetWindowRgn(window, outline, TRUE)) DeleteObject(outline);
  return true;
}

}  // namespace sonaro
