// The controls of frmSched and what they call.
#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "resources/texts/schedule.h"
#include "schedule/frmSched.h"
#include "settings/SettingNames.h"

namespace sonaro {
namespace {

constexpr int kListLeft = 14;

// The header button over a column of the list whose header is at `y`.
constexpr ControlRow Header(int id, int text, int y, int column) {
  constexpr int kEdges[] = {0, 130, 310, 482, 672};
  return {.id = id + column,
          .kind = ControlKind::HeaderButton,
          .text = text,
          .at = {kListLeft + kEdges[column], y, kEdges[column + 1] - kEdges[column], 24}};
}

}  // namespace

const FormDesign& frmSched::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_SCHED_LIST_TITLE, .at = {40, 4, 216, 26}},
      Header(butSchedSplit, IDS_SCHED_COLUMN_NEXT, 66, kNextColumn),
      Header(butSchedSplit, IDS_SCHED_COLUMN_STATION, 66, kNameColumn),
      Header(butSchedSplit, IDS_SCHED_COLUMN_OFTEN, 66, kOftenColumn),
      Header(butSchedSplit, IDS_SCHED_COLUMN_NOTE, 66, kNoteColumn),
      Caption(IDS_SCHED_LIST_CAPTION, {14, 42, 400, 24}),
      {.id = lstSched,
       .kind = ControlKind::ListView,
       .text = IDS_SCHED_LIST_CAPTION,
       .at = {14, 90, 672, 162}},
      Header(butShowSplit, IDS_SCHED_COLUMN_NEXT, 284, kNextColumn),
      Header(butShowSplit, IDS_SCHED_COLUMN_SHOW, 284, kNameColumn),
      Header(butShowSplit, IDS_SCHED_COLUMN_OFTEN, 284, kOftenColumn),
      Header(butShowSplit, IDS_SCHED_COLUMN_NOTE, 284, kNoteColumn),
      Caption(IDS_SCHED_LIST_SHOWS, {14, 260, 400, 24}),
      {.id = lstShows, .kind = ControlKind::ListView, .text = IDS_SCHED_LIST_SHOWS, .at = {14, 308, 672, 94}},
      {.id = butAddIt,
       .kind = ControlKind::PrimaryButton,
       .text = IDS_SCHED_ADD,
       .at = {14, 412, 98, 30},
       .icon = Icon::Add},
      {.id = butChangeIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_MODIFY,
       .at = {118, 412, 98, 30},
       .icon = Icon::Modify,
       .flags = kDisabled},
      {.id = butDeleteIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_DELETE,
       .at = {222, 412, 98, 30},
       .icon = Icon::Clear,
       .flags = kDisabled},
      {.id = butExportIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_EXPORT,
       .at = {326, 412, 96, 30}},
      {.id = butAboutTimeIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_ABOUT_TIMES,
       .at = {458, 412, 120, 30}},
      {.id = butCloseIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_NOTIFY_CLOSE,
       .at = {590, 412, 96, 30}},
      HelpButton(628),
      CloseButton(660, butCancelIt),
  };
  // lstSched and lstShows have consecutive numbers: Del works in both.
  static constexpr KeyRow kKeys[] = {
      {.key = VK_DELETE, .command = butDeleteIt, .onlyIn = lstSched, .controls = 2},
      {.key = VK_INSERT, .command = butAddIt},
      {.key = 'Z', .modifiers = kCtrl, .command = mnuUndo},
  };
  // Of the height two thirds go to the upper list; names and notes share the width.
  static constexpr Stretch kStretches[] = {
      {{620, 8, 80, 30}, 100, 100, 0, 0},        {{14, 66, 130, 24}, 0, 10, 0, 0},
      {{144, 66, 180, 24}, 10, 55, 0, 0},        {{324, 66, 172, 24}, 55, 65, 0, 0},
      {{496, 66, 190, 24}, 65, 100, 0, 0},       {{14, 90, 672, 162}, 0, 100, 0, 66},
      {{14, 260, 400, 24}, 0, 0, 66, 66},        {{14, 284, 130, 24}, 0, 10, 66, 66},
      {{144, 284, 180, 24}, 10, 55, 66, 66},     {{324, 284, 172, 24}, 55, 65, 66, 66},
      {{496, 284, 190, 24}, 65, 100, 66, 66},    {{14, 308, 672, 94}, 0, 100, 66, 100},
      {{450, 404, 250, 56}, 100, 100, 100, 100}, {{0, 404, 450, 56}, 0, 0, 100, 100},
  };
  static constexpr FormDesign kDesign = {.name = "frmSched",
                                         .caption = IDS_SCHED_LIST_TITLE,
                                         .size = {700, 460},
                                         .outline = "ldf30",
                                         .controls = kControls,
                                         .keys = kKeys,
                                         .firstFocus = lstSched,
                                         .keptSize = &setting::kScheduleSize,
                                         .stretches = kStretches};
  return kDesign;
}

std::span<const EventRow> frmSched::Events() const {
  static const EventRow kRows[] = {
      {butSchedSplit, Click, &frmSched::butSchedSplit_Click, kScheduleColumns},
      {butShowSplit, Click, &frmSched::butShowSplit_Click, kScheduleColumns},
      {lstSched, ItemSelected, &frmSched::lstSched_ItemSelected},
      {lstSched, ItemActivated, &frmSched::lstSched_ItemActivate},
      {lstShows, ItemSelected, &frmSched::lstShows_ItemSelected},
      {butAddIt, Click, &frmSched::butAddIt_Click},
      {butChangeIt, Click, &frmSched::butChangeIt_Click},
      {butDeleteIt, Click, &frmSched::butDeleteIt_Click},
      {mnuUndo, Click, &frmSched::mnuUndo_Click},
      {butExportIt, Click, &frmSched::butExportIt_Click},
      {butAboutTimeIt, Click, &frmSched::butAboutTimeIt_Click},
      {butCloseIt, Click, &frmSched::butCloseIt_Click},
      {butCancelIt, Click, &frmSched::butCloseIt_Click},
      {butHelp, Click, &frmSched::butHelp_Click},
  };
  return kRows;
}

}  // namespace sonaro
