// What nearly every dialog has, as rows of its control table.
#pragma once

#include "forms/ControlIds.h"
#include "forms/FormDesign.h"
#include "resources/texts/app.h"

namespace sonaro {

// Stands just before the control that it names.
constexpr ControlRow Caption(Words text, DesignRect at, unsigned char pane = 0) {
  return {
      .kind = Kind::Label, .text = text, .at = at, .type = Type::BodyStrong, .ink = Ink::Muted, .pane = pane};
}

// What a window that says something has: the picture, and beside it the text, for Form::SetTextAndGrow.
constexpr ControlRow MessagePicture() {
  return {
      .id = picStuff, .kind = Kind::Label, .at = {20, 52, 36, 36}, .icon = Icon::Info, .ink = Ink::Signal};
}

constexpr ControlRow MessageText(int id, int height) {
  return {.id = id,
          .kind = Kind::StateLabel,
          .at = {68, 50, 336, height},
          .flags = kWrap | kNoPrefix,
          .anchors = kLeft | kTop | kBottom,
          .type = Type::Message};
}

constexpr ControlRow OkKey(DesignRect at, unsigned flags = kNone) {
  return {.id = butOKIt, .kind = Kind::PrimaryKey, .text = IDS_APP_OK, .at = at, .flags = flags};
}

constexpr ControlRow CancelKey(DesignRect at) {
  return {.id = butCancelIt, .kind = Kind::PushKey, .text = IDS_APP_CANCEL, .at = at};
}

// The keys in the title strip, whose left edge is at `x`.
constexpr ControlRow HelpKey(int x) {
  return {
      .id = butHelp, .kind = Kind::StripKey, .text = IDS_APP_HELP, .at = {x, 12, 28, 22}, .icon = Icon::Help};
}

constexpr ControlRow CloseKey(int x, int id = butCloseIt) {
  return {
      .id = id, .kind = Kind::StripKey, .text = IDS_APP_CLOSE, .at = {x, 12, 28, 22}, .icon = Icon::Close};
}

}  // namespace sonaro
