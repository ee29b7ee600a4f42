// Which colours and marks a key shows in a state. A choice only; DrawnKey paints it.
#pragma once

#include "faceplate/FaceplateColors.h"
#include "forms/FormDesign.h"

namespace sonaro {

struct KeyState {
  bool hover = false;
  bool pressed = false;
  bool disabled = false;
  bool active = false;  // a toggle that is on
  bool empty = false;   // GroupKey without a group
};

struct KeyFace {
  bool hasFace = true;  // false: only icon or text on what lies behind
  Color top, bottom;    // face gradient
  Color edge;
  bool hasMilledLine = false;
  Color milledLine;
  Color text;
  Color secondText;  // bit rate, group number, link number
  Color icon;
  Color focus;
  bool strong = false;     // semibold text
  bool shiftDown = false;  // text and icon lie 1 px lower
  friend bool operator==(const KeyFace&, const KeyFace&) = default;
};

// `secondary`: a play key that is not the first link.
KeyFace PickKeyFace(Kind kind, bool secondary, const KeyState& state, const FaceplateColors& colors);

}  // namespace sonaro
