// Progress as a lit scale of ticks with a needle at the border. The system's progress bar, so that its value
// can be read out, with its own painting. Made by Form for rows of kind Progress.
#pragma once

#include <windows.h>

#include "forms/FormControl.h"

namespace sonaro {

class ProgressScale final : public FormControl {
 public:
  ProgressScale(HWND form, int id, FormServices& services);
  ~ProgressScale() override;
  ProgressScale(const ProgressScale&) = delete;
  ProgressScale& operator=(const ProgressScale&) = delete;

  // `done` of `total` steps. A total of 0 or less is an empty scale; more than done is full.
  void SetProgress(int done, int total);
  // Design pixels from tick to tick; 6 unless told otherwise.
  void SetPitch(int design);

  HWND Window() const override { return window_; }
  void MoveTo(const RECT& place) override;
  void SetShown(bool shown) override;
  void LookChanged() override;
  bool OnNotify(NMHDR&, LRESULT&) override { return false; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data) noexcept;
  void Paint();
  void PaintScale(HDC dc, const RECT& box) const;
  void PaintNeedle(HDC dc, int x, int bottom) const;

  FormServices& services_;
  HWND window_ = nullptr;
  int pitch_ = 6;
};

}  // namespace sonaro
