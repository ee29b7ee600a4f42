// How the icons look: their paths, and pixels of any size made from them. Pure; IconPainter shows them.
#pragma once

#include "faceplate/Icon.h"
#include "forms/paint/Raster.h"

namespace sonaro {

// The path of an icon on its 16 x 16 grid, stroked or filled. The program mark and None have
// none.
struct IconShape {
  bool filled = false;
  const char* path = "";
};
const IconShape& ShapeOf(Icon icon);

// `size` x `size` pixels of an icon with one colour that is `designSize` pixels wide at 96 dpi. The pen
// is 1.5 design pixels wide whatever the icon's size, and wider only in large ones. Line icons that the size
// blurs are moved down by half a pixel when that makes them crisper.
Coverage RenderIcon(Icon icon, int designSize, int size);

// The program mark in its two colours; `ground` fills the octagon (nullptr: see-through). As an
// icon of the system (with a ground) it leaves the ticks out up to 20 pixels.
struct MarkColors {
  Color ink;
  Color needle;
};
Pixels RenderProgramMark(int size, const MarkColors& colors, const Color* ground = nullptr);

}  // namespace sonaro
