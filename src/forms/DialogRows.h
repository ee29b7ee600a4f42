// What nearly every dialog has, as rows of its control table.
#pragma once

#include "forms/ControlIds.h"
#include "forms/FormDesign.h"
#include "resources/texts/app.h"

namespace sonaro {

// Stands just before the control that it names.
constexpr ControlRow Caption(ControlText text, DesignRect at, unsigned char pane = 0) {
  return {.kind = ControlKind::Label,
          .text = text,
          .at = at,
          .style = TextStyle::BodyStrong,
          .color = TextColor::Muted,
          .pane = pane};
}

// What a window that says something has: the picture, and beside it the text, for Label::SetTextAndGrow.
constexpr ControlRow MessagePicture() {
  return {.id = picStuff,
          .kind = ControlKind::Label,
          .at = {20, 52, 36, 36},
          .icon = Icon::Info,
          .color = TextColor::Signal};
}

constexpr ControlRow MessageText(int id, int height) {
  return {.id = id,
          .kind = ControlKind::StateLabel,
          .at = {68, 50, 336, height},
          .flags = kWrap | kNoPrefix,
          .anchors = kLeft | kTop | kBottom,
          .style = TextStyle::Message};
}

constexpr ControlRow OkButton(DesignRect at, unsigned flags = kNone) {
  return {.id = butOKIt, .kind = ControlKind::PrimaryButton, .text = IDS_APP_OK, .at = at, .flags = flags};
}

constexpr ControlRow CancelButton(DesignRect at) {
  return {.id = butCancelIt, .kind = ControlKind::PushButton, .text = IDS_APP_CANCEL, .at = at};
}

// The buttons in the title strip, whose left edge is at `x`.
constexpr ControlRow HelpButton(int x) {
  return {.id = butHelp,
          .kind = ControlKind::StripButton,
          .text = IDS_APP_HELP,
          .at = {x, 12, 28, 22},
          .icon = Icon::Help};
}

constexpr ControlRow CloseButton(int x, int id = butCloseIt) {
  return {.id = id,
          .kind = ControlKind::StripButton,
          .text = IDS_APP_CLOSE,
          .at = {x, 12, 28, 22},
          .icon = Icon::Close};
}

}  // namespace sonaro
