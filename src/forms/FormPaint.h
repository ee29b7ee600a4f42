// What a form looks like: its fonts and colours for one dpi, its ground, and the painting of its controls.
#pragma once

#include <windows.h>

#include <memory>

#include "forms/ControlInstance.h"
#include "forms/paint/DrawnButton.h"
#include "forms/paint/Painter.h"

namespace sonaro {

class Faceplate;

class FormPaint {
 public:
  FormPaint(const FormWindow& form, const Faceplate& faceplate);
  ~FormPaint();
  FormPaint(const FormPaint&) = delete;
  FormPaint& operator=(const FormPaint&) = delete;

  // Takes the faceplate's colours of now, for this dpi. Returns the painter before, whose fonts are in use
  // until the controls have the new ones.
  [[nodiscard]] std::unique_ptr<Painter> Renew(int dpi);
  const Painter& Current() const { return *painter_; }

  // The ground is plate, decorations and outline: painted once for a theme and a layout; controls copy from
  // it what lies behind them. Discarded, it is painted anew when it is next needed.
  void DiscardGround();
  void CopyGround(HDC dc, HWND control);
  void PaintWindow(HDC dc, const RECT& dirty);
  void PaintControl(const ControlInstance& item, HDC dc, const RECT& box);
  ButtonPicture PictureOf(const ControlInstance& item) const;
  void Repaint(const ControlInstance& item);
  // The answer to WM_CTLCOLOR... for a control of the system; `item`: the row that it belongs to, if any.
  LRESULT ColorControl(UINT message, HDC dc, HWND control, const ControlInstance* item) const;

 private:
  HDC Ground();
  void PaintGround(const RECT& client) const;
  int DialOffset(const ControlInstance& tab) const;

  const FormWindow& form_;
  const Faceplate& faceplate_;
  std::unique_ptr<Painter> painter_;
  HBRUSH glassBrush_ = nullptr;
  HBRUSH plateBrush_ = nullptr;
  HBRUSH offBrush_ = nullptr;
  HDC ground_ = nullptr;
  HBITMAP bitmap_ = nullptr;
  HGDIOBJ before_ = nullptr;
};

}  // namespace sonaro
