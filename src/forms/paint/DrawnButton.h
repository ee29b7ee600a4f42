// Paints buttons, check boxes and radio buttons as the faceplate draws them. Only painting: the control stays
// a button of the system, and its state comes in with each call.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "forms/FormDesign.h"
#include "forms/paint/ButtonFace.h"

namespace sonaro {

class Painter;

struct ButtonPicture {
  ControlKind kind = ControlKind::PushButton;
  bool secondary = false;  // PlayButton that is not the first link
  ButtonState state;       // for check boxes and radio buttons `active` is checked
  bool focused = false;    // draw the focus line
  bool hideAccel = false;  // do not underline access buttons
  bool noPrefix = false;   // "&" is an ordinary character
  std::wstring text;
  std::wstring detail;  // PlayButton: second line, and after a tab the link's number; GroupButton: its figure
  Icon icon = Icon::None;
  SortMark sort = SortMark::None;
  int dialOffset = 0;         // TabButton: pixels from the dial's left edge
  std::optional<int> needle;  // TabButton: where the needle stands, pixels from the button's left edge
};

// `dc` already shows what lies behind the button; `box` is the whole control.
void PaintButton(HDC dc, const RECT& box, const ButtonPicture& button, const Painter& painter);

// How many pixels a check box or radio button needs left of its mark for the focus line.
inline constexpr int kMarkMargin = 4;  // 96-dpi

// The width that the button's text takes and the width that it has, for checks of the layout; pixels.
struct ButtonTextRoom {
  int needed = 0;
  int available = 0;
};
ButtonTextRoom MeasureButton(const RECT& box, const ButtonPicture& button, const Painter& painter);

}  // namespace sonaro
