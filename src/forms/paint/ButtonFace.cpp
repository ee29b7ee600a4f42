#include "forms/paint/ButtonFace.h"

namespace sonaro {
namespace {

// The first link of a station is what the whole panel is for.
bool IsPrimary(ControlKind kind, bool secondary) {
  return kind == ControlKind::PrimaryButton || (kind == ControlKind::PlayButton && !secondary);
}

void SetFace(ButtonFace& face, Color top, Color bottom) {
  face.top = top;
  face.bottom = bottom;
}

// A strip button shows its face only under the pointer; it lies on the title strip like print.
void PickPlain(ButtonFace& face, ControlKind kind, bool secondary, const ButtonState& state,
               const FaceplateColors& c) {
  SetFace(face, c.buttonTop, c.buttonBottom);
  face.text = c.text;
  face.secondText = c.buttonMuted;
  face.icon = c.text;
  if (kind == ControlKind::RankingButton) face.icon = c.muted;
  if (kind == ControlKind::PlayButton && secondary) face.icon = c.accent;
  face.strong = kind == ControlKind::HeaderButton;
  face.milledLine = c.buttonHigh;
  face.hasMilledLine = !state.pressed;
  if (state.pressed) {
    SetFace(face, c.buttonDown, c.buttonDown);
  } else if (state.hover) {
    SetFace(face, c.buttonHover, c.buttonHover);
  } else if (kind == ControlKind::StripButton) {
    face.hasFace = false;
    face.hasMilledLine = false;
  }
}

// Its focus line is drawn on the accent, on which the usual one could not be seen.
void PickPrimary(ButtonFace& face, const ButtonState& state, const FaceplateColors& c) {
  SetFace(face, c.accentTop, c.accentBottom);
  if (state.pressed) {
    SetFace(face, c.accentDown, c.accentDown);
  } else if (state.hover) {
    SetFace(face, c.accentHover, c.accentHover);
  }
  face.text = face.secondText = face.icon = face.focus = c.onAccent;
  face.milledLine = c.accentTop;
  face.hasMilledLine = !state.pressed;
  face.strong = true;
}

void PickActive(ButtonFace& face, const ButtonState& state, const FaceplateColors& c) {
  SetFace(face, c.buttonOn, c.buttonOn);
  if (state.hover && !state.pressed) SetFace(face, c.buttonHover, c.buttonHover);
  face.edge = c.accent;
  face.text = face.secondText = face.icon = c.tabText;
  face.strong = true;
}

}  // namespace

// The first that holds decides. An empty socket does not move when it is pressed: there is nothing in it.
ButtonFace PickButtonFace(ControlKind kind, bool secondary, const ButtonState& state,
                          const FaceplateColors& c) {
  ButtonFace face;
  face.edge = c.outline;
  face.focus = c.focus;
  face.shiftDown = state.pressed && !state.disabled;
  if (state.empty) {
    SetFace(face, c.socket, c.socket);
    face.edge = c.edgeOff;
    face.text = face.secondText = face.icon = c.textOff;
    face.shiftDown = false;
  } else if (state.disabled) {
    SetFace(face, c.buttonOff, c.buttonOff);
    face.edge = c.edgeOff;
    face.text = face.secondText = face.icon = c.textOff;
  } else if (state.active) {
    PickActive(face, state, c);
  } else if (IsPrimary(kind, secondary)) {
    PickPrimary(face, state, c);
  } else {
    PickPlain(face, kind, secondary, state, c);
  }
  return face;
}

}  // namespace sonaro
