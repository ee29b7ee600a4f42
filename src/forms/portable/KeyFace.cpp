#include "forms/portable/KeyFace.h"

namespace sonaro {
namespace {

bool IsPrimary(Kind kind, bool secondary) {
  return kind == Kind::PrimaryKey || (kind == Kind::PlayKey && !secondary);
}

void SetFace(KeyFace& face, Color top, Color bottom) {
  face.top = top;
  face.bottom = bottom;
}

void PickPlain(KeyFace& face, Kind kind, bool secondary, const KeyState& state, const FaceplateColors& c) {
  SetFace(face, c.keyTop, c.keyBottom);
  face.text = c.text;
  face.secondText = c.keyMuted;
  face.icon = c.text;
  if (kind == Kind::RankingKey) face.icon = c.muted;
  if (kind == Kind::PlayKey && secondary) face.icon = c.accent;
  face.strong = kind == Kind::HeaderKey;
  face.milledLine = c.keyHigh;
  face.hasMilledLine = !state.pressed;
  if (state.pressed) {
    SetFace(face, c.keyDown, c.keyDown);
  } else if (state.hover) {
    SetFace(face, c.keyHover, c.keyHover);
  } else if (kind == Kind::StripKey) {
    face.hasFace = false;
    face.hasMilledLine = false;
  }
}

void PickPrimary(KeyFace& face, const KeyState& state, const FaceplateColors& c) {
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

void PickActive(KeyFace& face, const KeyState& state, const FaceplateColors& c) {
  SetFace(face, c.keyOn, c.keyOn);
  if (state.hover && !state.pressed) SetFace(face, c.keyHover, c.keyHover);
  face.edge = c.accent;
  face.text = face.secondText = face.icon = c.tabText;
  face.strong = true;
}

}  // namespace

KeyFace PickKeyFace(Kind kind, bool secondary, const KeyState& state, const FaceplateColors& c) {
  KeyFace face;
  face.edge = c.outline;
  face.focus = c.focus;
  face.shiftDown = state.pressed && !state.disabled;
  if (state.empty) {
    SetFace(face, c.socket, c.socket);
    face.edge = c.edgeOff;
    face.text = face.secondText = face.icon = c.textOff;
    face.shiftDown = false;
  } else if (state.disabled) {
    SetFace(face, c.keyOff, c.keyOff);
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
