// The ring of eleven ticks that shows a rating, as geometry. Pure arithmetic; RatingPicture shows it.
#pragma once

#include "forms/paint/Raster.h"

namespace sonaro {

inline constexpr int kRingWidth = 54;   // 96-dpi pixels of the picture that the ring is part of
inline constexpr int kRingHeight = 44;  // down to the caption
inline constexpr int kRingTicks = 11;   // one for each half from 0 to 5

// How many ticks are lit for a rating in halves (1 to 10); none when it is not rated (0 or less).
int LitTicks(int halves);

// The ticks `first` to before `end`, `dpi` / 96 times as large.
Coverage RenderRing(int first, int end, int dpi);

}  // namespace sonaro
