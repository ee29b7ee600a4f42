// The controls of frmOptions. Each section is a heading at the left and its controls beside it, between
// engraved lines. What the controls call stands in frmOptions.cpp.
#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "resources/texts/tray.h"
#include "tray/frmOptions.h"

namespace sonaro {

namespace {

constexpr int kHeadings = 14;  // of the sections' headings
constexpr int kBeside = 170;   // of what stands beside them
constexpr int kLineWidth = 572;

// A heading names no control: every control of its section has a text or a caption of its own.
constexpr ControlRow Heading(int text, int y) {
  return {.kind = ControlKind::Label,
          .text = text,
          .at = {kHeadings, y, 150, 24},
          .style = TextStyle::MessageStrong,
          .color = TextColor::TabText};
}

constexpr ControlRow Line(int y) {
  return {.kind = ControlKind::Groove, .at = {kHeadings, y, kLineWidth, 2}};
}

constexpr ControlRow Box(int id, int text, int y) {
  return {.id = id, .kind = ControlKind::CheckBox, .text = text, .at = {kBeside, y, 290, 24}};
}

// For the label that stands just before its control and gives it its spoken name.
constexpr ControlRow PlainCaption(int text, DesignRect at) {
  return {.kind = ControlKind::Label, .text = text, .at = at, .color = TextColor::Muted};
}

constexpr ControlRow ButtonRow(int id, int text, DesignRect at, Icon icon = Icon::None) {
  return {.id = id, .kind = ControlKind::PushButton, .text = text, .at = at, .icon = icon};
}

}  // namespace

const FormDesign& frmOptions::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_OPTIONS_TITLE, .at = {40, 4, 206, 26}},

      Heading(IDS_OPTIONS_GENERAL, 46),
      Box(chkStartWindows, IDS_OPTIONS_START_WINDOWS, 46),
      PlainCaption(IDS_OPTIONS_AFTER_CLOSE, {kBeside, 74, 208, 28}),
      {.id = cmbAfterClose, .kind = ControlKind::Combo, .at = {386, 74, 200, 28}},

      Line(108),
      Heading(IDS_OPTIONS_SOUNDS, 116),
      Box(chkSoundNotice, IDS_OPTIONS_SOUND_NOTICE, 116),
      ButtonRow(butPlaySoundIt, IDS_OPTIONS_PLAY_SOUND, {474, 114, 112, 28}, Icon::Sound),
      Box(chkSoundKeys, IDS_OPTIONS_SOUND_KEYS, 142),

      Line(170),
      Heading(IDS_OPTIONS_CONNECTION, 176),
      // The two radio buttons are a control array: optProxy is the direct connection, the next number the
      // proxy. kGroup keeps the arrow keys within the two.
      {.id = optProxy,
       .kind = ControlKind::RadioButton,
       .text = IDS_OPTIONS_DIRECT,
       .at = {kBeside, 176, 180, 24},
       .flags = kGroup},
      {.id = optProxy + 1,
       .kind = ControlKind::RadioButton,
       .text = IDS_OPTIONS_PROXY,
       .at = {kBeside, 202, 180, 24}},
      ButtonRow(butFindProxyIt, IDS_OPTIONS_FIND_PROXY, {354, 200, 112, 28}),
      ButtonRow(butTestProxyIt, IDS_OPTIONS_TEST_PROXY, {474, 200, 112, 28}),
      PlainCaption(IDS_OPTIONS_ADDRESS, {194, 234, 60, 28}),
      {.id = txtProxy, .kind = ControlKind::Edit, .at = {254, 234, 190, 28}},
      PlainCaption(IDS_OPTIONS_PORT, {454, 234, 34, 28}),
      {.id = txtPort, .kind = ControlKind::Edit, .at = {490, 234, 96, 28}},
      // What is wrong with the proxy, or what was found. A StateLabel, so that a screen reader says a refusal
      // that would else only be seen.
      {.id = lblOptionsInfo,
       .kind = ControlKind::StateLabel,
       .at = {194, 264, 392, 34},
       .flags = kWrap | kNoPrefix},

      Line(300),
      Heading(IDS_OPTIONS_PLAYING, 306),
      ButtonRow(butPlayerIt, IDS_OPTIONS_PLAYER, {kHeadings, 334, 124, 28}),
      // Room for several lines: what plays which stations.
      {.id = lblPlaying,
       .kind = ControlKind::StateLabel,
       .at = {kBeside, 309, 416, 70},
       .flags = kWrap | kNoPrefix},

      Line(382),
      Heading(IDS_OPTIONS_START, 388),
      Box(chkLookForPlayer, IDS_OPTIONS_LOOK_PLAYER, 388),
      Box(chkLookForProxy, IDS_OPTIONS_LOOK_PROXY, 412),
      Box(chkOfferTutorial, IDS_OPTIONS_TUTORIAL, 436),

      Line(462),
      Heading(IDS_OPTIONS_FACEPLATE, 468),
      // In the order of BuiltInFaceplate, from optFaceplate on. Neither is active while a faceplate of
      // another name is set.
      {.id = optFaceplate,
       .kind = ControlKind::ToggleButton,
       .text = IDS_OPTIONS_GRAPHITE,
       .at = {kBeside, 468, 108, 28},
       .flags = kGroup},
      {.id = optFaceplate + 1,
       .kind = ControlKind::ToggleButton,
       .text = IDS_OPTIONS_PORCELAIN,
       .at = {286, 468, 108, 28}},

      ButtonRow(butAboutTimeIt, IDS_OPTIONS_ABOUT_TIME, {kHeadings, 504, 124, 30}, Icon::Sched),
      ButtonRow(butBackupIt, IDS_OPTIONS_BACKUP, {146, 504, 104, 30}),
      ButtonRow(butRestoreIt, IDS_OPTIONS_RESTORE, {258, 504, 104, 30}),
      OkButton({386, 504, 96, 30}),
      CancelButton({490, 504, 96, 30}),
      HelpButton(528),
      CloseButton(560),
  };
  // The outline of the point file was made for a window of 470; ApplyWindowShape is told, since this one is
  // higher.
  static constexpr FormDesign kDesign = {.name = "frmOptions",
                                         .caption = IDS_OPTIONS_TITLE,
                                         .size = {600, 552},
                                         .outline = "opf60",
                                         .controls = kControls,
                                         .outlineSize = {600, 470},
                                         .firstFocus = chkStartWindows};
  return kDesign;
}

}  // namespace sonaro
