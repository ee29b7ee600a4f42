// Draws the faceplate's parts for one window at its dpi: type, lines, buttons' shapes, glass, icons. Owned by
// Form, which makes a new one when dpi or colours change; controls reach it through FormServices::Theme.
// Rectangles are pixels; a measure named design is in 96-dpi pixels and is scaled here.
#pragma once

#include <windows.h>

#include <array>
#include <memory>
#include <optional>
#include <string_view>

#include "faceplate/FaceplateColors.h"
#include "forms/FormDesign.h"
#include "forms/paint/IconPainter.h"

namespace sonaro {

// The needle that marks the chosen tab, row or node: the width of its bar, in 96-dpi pixels.
inline constexpr int kNeedleBar = 3;

constexpr COLORREF ToColorRef(Color color) { return RGB(color.red, color.green, color.blue); }

class Painter {
 public:
  Painter(const FaceplateColors& colors, int dpi);
  ~Painter();
  Painter(const Painter&) = delete;
  Painter& operator=(const Painter&) = delete;

  const FaceplateColors& Colors() const { return colors_; }
  int Dpi() const { return dpi_; }
  int Px(int design) const { return MulDiv(design, dpi_, 96); }
  int Line() const { return dpi_ < 192 ? 1 : dpi_ / 96; }  // width of a "1 px" line
  int FocusLine() const { return MulDiv(2, dpi_, 96); }
  HFONT Font(TextStyle style) const;  // lives as long as the painter

  void Fill(HDC dc, const RECT& box, Color color) const;
  void Gradient(HDC dc, const RECT& box, Color top, Color bottom) const;
  void Frame(HDC dc, const RECT& box, Color color, int width) const;  // drawn inside the box

  // One line, vertically centred, with an end ellipsis; `format` takes DT_CENTER, DT_RIGHT, DT_WORDBREAK
  // (then from the top) and without DT_NOPREFIX draws access keys. Text is in the code page (UTF-8).
  void Text(HDC dc, const RECT& box, std::string_view text, TextStyle style, Color color,
            UINT format = DT_NOPREFIX) const;
  void Text(HDC dc, const RECT& box, std::wstring_view text, TextStyle style, Color color,
            UINT format = DT_NOPREFIX) const;
  SIZE Measure(std::wstring_view text, TextStyle style, UINT format = DT_NOPREFIX) const;  // of one line
  int WrappedHeight(std::wstring_view text, TextStyle style, int width) const;
  int LineHeight(TextStyle style) const;

  // An icon whose grid is `designSize` wide, its top-left corner at pixel (x, y). In the text colour the
  // program mark has its needle in the accent; in any other it is of that colour alone.
  void DrawIcon(HDC dc, Icon icon, int x, int y, int designSize, Color color) const;

  // The rectangle with its top-left and bottom-right corners cut by `cut` pixels.
  void CutShape(HDC dc, const RECT& box, int cut, Color top, Color bottom, Color edge) const;
  void CutFrame(HDC dc, const RECT& box, int cut, Color color, int width) const;
  // Glass with its frame and the light line below; the line lies under the box's bottom edge.
  void Glass(HDC dc, const RECT& box, int cut = 0) const;
  void Groove(HDC dc, int x, int y, int width) const;

 private:
  void MeasureIn(RECT& place, std::wstring_view text, TextStyle style, UINT format) const;

  const FaceplateColors colors_;
  const int dpi_;
  const HDC measuring_;
  mutable std::array<std::optional<LOGFONTW>, 2> faces_;  // normal and strong, found at first use
  mutable std::array<HFONT, 13> fonts_{};                 // by TextStyle, made at first use
  mutable IconPainter icons_;
};

// An off-screen bitmap that is copied to `target` when it goes out of scope: everything is painted in it, and
// the screen never shows a half-drawn state. Its coordinates are those of the target.
class BufferedPaint {
 public:
  BufferedPaint(HDC target, const RECT& box);
  ~BufferedPaint();
  BufferedPaint(const BufferedPaint&) = delete;
  BufferedPaint& operator=(const BufferedPaint&) = delete;
  HDC Dc() const;

 private:
  struct Canvas;
  static std::unique_ptr<Canvas>& Kept();

  HDC target_;
  RECT box_;
  std::unique_ptr<Canvas> own_;  // of a large picture, or one inside another; else the kept one is used
  Canvas* canvas_;
};

}  // namespace sonaro
