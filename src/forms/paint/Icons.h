// How the icons and the ring of a rating look: their geometry, and pixels of any size made from them. Pure;
// IconPainter and RatingPicture show them.
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

// The ring of eleven ticks that shows a rating.
inline constexpr int kRingWidth = 54;   // 96-dpi pixels of the picture that the ring is part of
inline constexpr int kRingHeight = 44;  // down to the caption
inline constexpr int kRingTicks = 11;   // one for each half from 0 to 5

// How many ticks are lit for a rating in halves (1 to 10); none when it is not rated (0 or less).
int LitTicks(int halves);

// The ticks `first` to before `end`, `dpi` / 96 times as large.
Coverage RenderRing(int first, int end, int dpi);

}  // namespace sonaro
