// A rating as a ring of ticks with its figure inside and its name below. A static control whose text is the
// spoken form, so that it can be read out. Made by Form for rows of kind Rating, whose text is the name.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

#include "forms/FormControl.h"

namespace sonaro {

class RatingPicture final : public FormControl {
 public:
  // `caption` is the name below the ring: "Sound".
  RatingPicture(HWND form, int id, FormServices& services, std::string_view caption);
  ~RatingPicture() override;
  RatingPicture(const RatingPicture&) = delete;
  RatingPicture& operator=(const RatingPicture&) = delete;

  // 1 to 10 halves with the figure that stands for them ("4.5"); 0: not rated, all ticks dark. `spoken` is
  // what a screen reader says: "Sound 4.5 of 5".
  void SetRating(int halves, std::string_view figure, std::string_view spoken);

  HWND Window() const override { return window_; }
  void MoveTo(const RECT& place) override;
  void SetShown(bool shown) override;
  void LookChanged() override;
  bool OnNotify(NMHDR&, LRESULT&) override { return false; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                    DWORD_PTR data) noexcept;
  void Paint();
  void PaintRing(HDC dc, const RECT& box) const;

  FormServices& services_;
  HWND window_ = nullptr;
  std::wstring caption_;
  std::wstring figure_;
  int halves_ = 0;
};

}  // namespace sonaro
