// A rating as a ring of ticks with its figure inside and its name below. A static control whose text is the
// spoken form, so that it can be read out. Made by Form for rows of kind Rating, whose text is the name.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "forms/controls/PaintedControl.h"

namespace sonaro {

class RatingPicture final : public PaintedControl {
 public:
  // `caption` is the name below the ring: "Sound".
  RatingPicture(HWND form, int id, FormServices& services, std::string_view caption);

  // 1 to 10 halves with the figure that stands for them ("4.5"); 0: not rated, all ticks dark. `spoken` is
  // what a screen reader says: "Sound 4.5 of 5".
  void SetRating(int halves, std::string_view figure, std::string_view spoken);

 private:
  void PaintOn(HDC dc, const RECT& box) const override;

  std::wstring caption_;
  std::wstring figure_;
  int halves_ = 0;
};

}  // namespace sonaro
