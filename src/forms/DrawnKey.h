// Paints keys, check boxes and radio buttons as the faceplate draws them. Only painting: the control stays a
// button of the system, and its state comes in with each call.
#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "forms/FormDesign.h"
#include "forms/portable/KeyFace.h"

namespace sonaro {

class Painter;

struct KeyPicture {
  Kind kind = Kind::PushKey;
  bool secondary = false;  // PlayKey that is not the first link
  KeyState state;          // for check boxes and radio buttons `active` is checked
  bool focused = false;    // draw the focus line
  bool hideAccel = false;  // do not underline access keys
  bool noPrefix = false;   // "&" is an ordinary character
  std::wstring text;
  std::wstring detail;  // PlayKey: second line, and after a tab the link's number; GroupKey: its figure
  Icon icon = Icon::None;
  SortMark sort = SortMark::None;
  int dialOffset = 0;         // TabKey: pixels from the dial's left edge
  std::optional<int> needle;  // TabKey: where the needle stands, pixels from the key's left edge
};

// `dc` already shows what lies behind the key; `box` is the whole control.
void PaintKey(HDC dc, const RECT& box, const KeyPicture& key, const Painter& painter);

// How many pixels a check box or radio button needs left of its mark for the focus line.
inline constexpr int kMarkMargin = 4;  // 96-dpi

// The width that the key's text takes and the width that it has, for checks of the layout; pixels.
struct KeyTextRoom {
  int needed = 0;
  int available = 0;
};
KeyTextRoom MeasureKey(const RECT& box, const KeyPicture& key, const Painter& painter);

}  // namespace sonaro
