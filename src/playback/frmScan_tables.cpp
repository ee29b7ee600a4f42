// The controls of frmScan in both layouts, and what they call.
#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "playback/frmScan.h"
#include "resources/texts/playback.h"
#include "settings/SettingNames.h"

namespace sonaro {

const FormDesign& frmScan::Design() {
  // Three columns: the queue at the left, what can be done with it in the middle, the history at the right;
  // the key row below belongs to the scan as a whole. The order of the rows is the order of Tab and of screen
  // readers.
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_SCAN_W_TITLE, .at = {40, 4, 156, 26}},
      // Two panels rather than one that is moved: a layout gives a place only, and the corner cut differs.
      // Each layout shows one of them.
      {.id = panScanFull, .kind = ControlKind::Glass, .at = {14, 46, 692, 66}, .cut = 10},
      {.id = panScanCompact, .kind = ControlKind::Glass, .at = {12, 44, 416, 52}, .flags = kHidden, .cut = 8},
      {.id = lblCurrentScaning,
       .kind = ControlKind::StateLabel,
       .at = {28, 53, 440, 24},
       .flags = kOnGlass | kNoPrefix,
       .style = TextStyle::Title,
       .color = TextColor::TabText},
      {.id = lblTimeLeft,
       .kind = ControlKind::StateLabel,
       .at = {486, 53, 206, 24},
       .flags = kOnGlass | kRightAligned,
       .style = TextStyle::MessageStrong},
      {.id = picScan, .kind = ControlKind::Progress, .at = {28, 82, 664, 20}, .flags = kOnGlass},
      // Column headings only. Neither list is sorted, since its order is that of playing, so they are no stop
      // of Tab and nothing is bound to them.
      {.id = butQueueName,
       .kind = ControlKind::HeaderButton,
       .text = IDS_SCAN_W_COLUMN_NAME,
       .at = {14, 146, 164, 24},
       .flags = kNoTabStop},
      {.id = butQueueLocation,
       .kind = ControlKind::HeaderButton,
       .text = IDS_SCAN_W_COLUMN_LOCATION,
       .at = {178, 146, 136, 24},
       .flags = kNoTabStop},
      {.id = lblQueueCount,
       .kind = ControlKind::StateLabel,
       .at = {194, 120, 120, 24},
       .flags = kRightAligned,
       .color = TextColor::Muted},
      {.id = lblQueue,
       .kind = ControlKind::Label,
       .text = IDS_SCAN_W_QUEUE,
       .at = {14, 120, 170, 24},
       .style = TextStyle::BodyStrong,
       .color = TextColor::Muted},
      {.id = lstToScan, .kind = ControlKind::ListView, .text = IDS_SCAN_W_QUEUE, .at = {14, 170, 300, 244}},
      {.id = butMoveUpIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCAN_W_UP,
       .at = {322, 146, 88, 30},
       .icon = Icon::Up},
      {.id = butMoveDownIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCAN_W_DOWN,
       .at = {322, 182, 88, 30},
       .icon = Icon::Down},
      {.id = butRemoveStationIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCAN_W_REMOVE,
       .at = {322, 230, 88, 30},
       .icon = Icon::Remove},
      {.id = butClearIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCAN_W_CLEAR,
       .at = {322, 266, 88, 30},
       .icon = Icon::Clear},
      {.id = butScanTimeIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCAN_W_TIME_KEY,
       .at = {322, 314, 88, 30},
       .icon = Icon::Sched},
      {.id = butHistoryName,
       .kind = ControlKind::HeaderButton,
       .text = IDS_SCAN_W_COLUMN_NAME,
       .at = {418, 146, 170, 24},
       .flags = kNoTabStop},
      {.id = butHistoryWhat,
       .kind = ControlKind::HeaderButton,
       .text = IDS_SCAN_W_COLUMN_WHAT,
       .at = {588, 146, 118, 24},
       .flags = kNoTabStop},
      {.id = lblHistory,
       .kind = ControlKind::Label,
       .text = IDS_SCAN_W_HISTORY,
       .at = {418, 120, 288, 24},
       .style = TextStyle::BodyStrong,
       .color = TextColor::Muted},
      {.id = lstScanedAlready,
       .kind = ControlKind::ListView,
       .text = IDS_SCAN_W_HISTORY,
       .at = {418, 170, 288, 244}},
      {.id = butStartIt,
       .kind = ControlKind::PrimaryButton,
       .text = IDS_SCAN_START,
       .at = {14, 432, 140, 30},
       .icon = Icon::Play},
      {.id = butMoveNextIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCAN_W_SKIP,
       .at = {162, 432, 96, 30},
       .icon = Icon::Skip},
      {.id = butKeepIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCAN_W_KEEP,
       .at = {266, 432, 96, 30},
       .icon = Icon::Fav},
      // Its caption changes with the layout and has no letter of its own: Alt+F in the table of keys works in
      // both.
      {.id = butFullIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCAN_W_COMPACT,
       .at = {482, 432, 120, 30}},
      {.id = butDoneScanIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCAN_W_CLOSE,
       .at = {610, 432, 96, 30}},
      HelpButton(648),
      CloseButton(680),
      // Whoever sets its caption, another process too, adds the stations that it names; it is never shown.
      {.id = lblStationsAdd, .kind = ControlKind::Label, .at = {14, 10, 10, 10}, .flags = kHidden},
  };
  // The compact layout: what it does not name is hidden, so the lists and their keys go without a word here.
  static constexpr Bounds kCompact[] = {
      {lblTitle, {40, 4, 156, 26}},           {panScanCompact, {12, 44, 416, 52}},
      {lblCurrentScaning, {22, 47, 250, 22}}, {lblTimeLeft, {274, 47, 144, 22}},
      {picScan, {22, 72, 396, 18}},           {butStartIt, {12, 104, 120, 28}},
      {butMoveNextIt, {136, 104, 66, 28}},    {butKeepIt, {206, 104, 70, 28}},
      {butFullIt, {282, 104, 78, 28}},        {butDoneScanIt, {364, 104, 64, 28}},
      {butHelp, {368, 12, 28, 22}},           {butCloseIt, {400, 12, 28, 22}},
  };
  static constexpr Layout kLayouts[] = {{.size = {440, 150}, .outline = "scc44", .places = kCompact}};
  // Del takes away a row of the queue only. The history is a record; it goes as a whole, by Clear.
  static constexpr KeyRow kKeys[] = {{.key = VK_DELETE, .command = butRemoveStationIt, .onlyIn = lstToScan},
                                     {'Z', kCtrl, mnuUndo},
                                     {.key = 'F', .modifiers = kAlt, .command = butFullIt}};
  static constexpr Stretch kStretches[] = {
      {{640, 8, 80, 30}, 100, 100, 0, 0},      {{28, 53, 440, 24}, 0, 100, 0, 0},
      {{486, 53, 206, 24}, 100, 100, 0, 0},    {{14, 46, 692, 66}, 0, 100, 0, 0},
      {{14, 120, 300, 24}, 0, 50, 0, 0},       {{14, 146, 164, 24}, 0, 32, 0, 0},
      {{178, 146, 136, 24}, 32, 50, 0, 0},     {{14, 170, 300, 244}, 0, 50, 0, 100},
      {{322, 146, 88, 268}, 50, 50, 0, 0},     {{418, 120, 288, 24}, 50, 100, 0, 0},
      {{418, 146, 170, 24}, 50, 82, 0, 0},     {{588, 146, 118, 24}, 82, 100, 0, 0},
      {{418, 170, 288, 244}, 50, 100, 0, 100}, {{480, 420, 240, 60}, 100, 100, 100, 100},
      {{0, 420, 480, 60}, 0, 0, 100, 100},
  };
  static constexpr FormDesign kDesign = {.name = "frmScan",
                                         .caption = IDS_SCAN_W_TITLE,
                                         .size = {720, 480},
                                         .outline = "scf72",
                                         .controls = kControls,
                                         .layouts = kLayouts,
                                         .keys = kKeys,
                                         .firstFocus = lstToScan,
                                         .keptSize = &setting::kScanSize,
                                         .stretches = kStretches};
  return kDesign;
}

std::span<const EventRow> frmScan::Events() const {
  // mnu...: entries of the two context menus, which are made when they are opened, and the undoing of Ctrl+Z.
  // None of them has a control here.
  static const EventRow kRows[] = {
      {butStartIt, Click, &frmScan::butStartIt_Click},
      {lstToScan, BeginDrag, &frmScan::lstToScan_BeginDrag},
      {butMoveNextIt, Click, &frmScan::butMoveNextIt_Click},
      {butMoveUpIt, Click, &frmScan::butMoveUpIt_Click},
      {butMoveDownIt, Click, &frmScan::butMoveDownIt_Click},
      {butRemoveStationIt, Click, &frmScan::butRemoveStationIt_Click},
      {butKeepIt, Click, &frmScan::butKeepIt_Click},
      {mnuScanRemove, Click, &frmScan::mnuScanRemove_Click},
      {butClearIt, Click, &frmScan::butClearIt_Click},
      {mnuUndo, Click, &frmScan::mnuUndo_Click},
      {butFullIt, Click, &frmScan::butFullIt_Click},
      {butScanTimeIt, Click, &frmScan::butScanTimeIt_Click},
      {butDoneScanIt, Click, &frmScan::butCloseIt_Click},
      {butCloseIt, Click, &frmScan::butCloseIt_Click},
      {butHelp, Click, &frmScan::butHelp_Click},
      {lblStationsAdd, Change, &frmScan::lblStationsAdd_Change},
      {lstToScan, ItemSelected, &frmScan::lstToScan_ItemSelected},
      {lstToScan, ContextMenu, &frmScan::lstToScan_ContextMenu},
      {lstScanedAlready, ItemActivated, &frmScan::lstScanedAlready_ItemActivate},
      {lstScanedAlready, ContextMenu, &frmScan::lstScanedAlready_ContextMenu},
      {mnuScanPlay, Click, &frmScan::mnuScanPlay_Click},
      {mnuScanPutBack, Click, &frmScan::mnuScanPutBack_Click},
      // One entry for each of the ten favourite groups.
      {mnuScanToGroup, Click, &frmScan::mnuScanToGroup_Click, 10},
  };
  return kRows;
}

std::span<const TimerRow> frmScan::Timers() const {
  static const TimerRow kRows[] = {{tmrScan, &frmScan::tmrScan_Timer}};
  return kRows;
}

}  // namespace sonaro
