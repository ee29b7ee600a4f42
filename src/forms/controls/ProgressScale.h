// Progress as a lit scale of ticks with a needle at the border. The system's progress bar, so that its value
// can be read out, with its own painting. Made by Form for rows of kind Progress.
#pragma once

#include <windows.h>

#include "forms/controls/PaintedControl.h"

namespace sonaro {

class ProgressScale final : public PaintedControl {
 public:
  ProgressScale(HWND form, int id, FormServices& services);

  // `done` of `total` steps. A total of 0 or less is an empty scale; more than done is full.
  void SetProgress(int done, int total);
  // Design pixels from tick to tick; 6 unless told otherwise.
  void SetPitch(int design);

 private:
  void PaintOn(HDC dc, const RECT& box) const override;
  void PaintNeedle(HDC dc, int x, int bottom) const;

  int pitch_ = 6;
};

}  // namespace sonaro
