// Which colours and marks a button shows in a state. A choice only; DrawnButton paints it.
#pragma once

#include "faceplate/FaceplateColors.h"
#include "forms/FormDesign.h"

namespace sonaro {

struct ButtonState {
  bool hover = false;
  bool pressed = false;
  bool disabled = false;
  bool active = false;  // a toggle that is on
  bool empty = false;   // GroupButton without a group
};

struct ButtonFace {
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
  friend bool operator==(const ButtonFace&, const ButtonFace&) = default;
};

// `secondary`: a play button that is not the first link.
ButtonFace PickButtonFace(ControlKind kind, bool secondary, const ButtonState& state,
                          const FaceplateColors& colors);

}  // namespace sonaro
