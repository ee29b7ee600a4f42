#include "forms/paint/NeedleSlide.h"

namespace sonaro {

bool NeedleSlide::IsOver(std::uint64_t now) const { return now >= start + kMilliseconds; }

int NeedleSlide::At(std::uint64_t now) const {
  if (IsOver(now)) return to;
  if (now <= start) return from;
  return from + (to - from) * static_cast<int>(now - start) / static_cast<int>(kMilliseconds);
}

}  // namespace sonaro
