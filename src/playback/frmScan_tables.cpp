// The controls of frmScan in both layouts, and what they call.
#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "playback/frmScan.h"
#include "resources/texts/playback.h"

namespace sonaro {

const FormDesign& frmScan::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = Kind::TitleBar, .text = IDS_SCAN_W_TITLE, .at = {40, 4, 156, 26}},
      {.id = panScanFull, .kind = Kind::Glass, .at = {14, 46, 692, 66}, .cut = 10},
      {.id = panScanCompact, .kind = Kind::Glass, .at = {12, 44, 416, 52}, .flags = kHidden, .cut = 8},
      {.id = lblCurrentScaning,
       .kind = Kind::StateLabel,
       .at = {28, 53, 440, 24},
       .flags = kOnGlass | kNoPrefix,
       .type = Type::Title,
       .ink = Ink::TabText},
      {.id = lblTimeLeft,
       .kind = Kind::StateLabel,
       .at = {486, 53, 206, 24},
       .flags = kOnGlass | kRightAligned,
       .type = Type::MessageStrong},
      {.id = picScan, .kind = Kind::Progress, .at = {28, 82, 664, 20}, .flags = kOnGlass},
      {.id = butQueueName,
       .kind = Kind::HeaderKey,
       .text = IDS_SCAN_W_COLUMN_NAME,
       .at = {14, 146, 164, 24},
       .flags = kNoTabStop},
      {.id = butQueueLocation,
       .kind = Kind::HeaderKey,
       .text = IDS_SCAN_W_COLUMN_LOCATION,
       .at = {178, 146, 136, 24},
       .flags = kNoTabStop},
      {.id = lblQueueCount,
       .kind = Kind::StateLabel,
       .at = {194, 120, 120, 24},
       .flags = kRightAligned,
       .ink = Ink::Muted},
      {.id = lblQueue,
       .kind = Kind::Label,
       .text = IDS_SCAN_W_QUEUE,
       .at = {14, 120, 170, 24},
       .type = Type::BodyStrong,
       .ink = Ink::Muted},
      {.id = lstToScan, .kind = Kind::ListView, .text = IDS_SCAN_W_QUEUE, .at = {14, 170, 300, 244}},
      {.id = butMoveUpIt,
       .kind = Kind::PushKey,
       .text = IDS_SCAN_W_UP,
       .at = {322, 146, 88, 30},
       .icon = Icon::Up},
      {.id = butMoveDownIt,
       .kind = Kind::PushKey,
       .text = IDS_SCAN_W_DOWN,
       .at = {322, 182, 88, 30},
       .icon = Icon::Down},
      {.id = butRemoveStationIt,
       .kind = Kind::PushKey,
       .text = IDS_SCAN_W_REMOVE,
       .at = {322, 230, 88, 30},
       .icon = Icon::Remove},
      {.id = butClearIt,
       .kind = Kind::PushKey,
       .text = IDS_SCAN_W_CLEAR,
       .at = {322, 266, 88, 30},
       .icon = Icon::Clear},
      {.id = butScanTimeIt,
       .kind = Kind::PushKey,
       .text = IDS_SCAN_W_TIME_KEY,
       .at = {322, 314, 88, 30},
       .icon = Icon::Sched},
      {.id = butHistoryName,
       .kind = Kind::HeaderKey,
       .text = IDS_SCAN_W_COLUMN_NAME,
       .at = {418, 146, 170, 24},
       .flags = kNoTabStop},
      {.id = butHistoryWhat,
       .kind = Kind::HeaderKey,
       .text = IDS_SCAN_W_COLUMN_WHAT,
       .at = {588, 146, 118, 24},
       .flags = kNoTabStop},
      {.id = lblHistory,
       .kind = Kind::Label,
       .text = IDS_SCAN_W_HISTORY,
       .at = {418, 120, 288, 24},
       .type = Type::BodyStrong,
       .ink = Ink::Muted},
      {.id = lstScanedAlready,
       .kind = Kind::ListView,
       .text = IDS_SCAN_W_HISTORY,
       .at = {418, 170, 288, 244}},
      {.id = butStartIt,
       .kind = Kind::PrimaryKey,
       .text = IDS_SCAN_START,
       .at = {14, 432, 140, 30},
       .icon = Icon::Play},
      {.id = butMoveNextIt,
       .kind = Kind::PushKey,
       .text = IDS_SCAN_W_SKIP,
       .at = {162, 432, 96, 30},
       .icon = Icon::Skip},
      {.id = butFullIt, .kind = Kind::PushKey, .text = IDS_SCAN_W_COMPACT, .at = {482, 432, 120, 30}},
      {.id = butDoneScanIt, .kind = Kind::PushKey, .text = IDS_SCAN_W_CLOSE, .at = {610, 432, 96, 30}},
      HelpKey(648),
      CloseKey(680),
      // Whoever sets its caption, another process too, adds the stations that it names; it is never shown.
      {.id = lblStationsAdd, .kind = Kind::Label, .at = {14, 10, 10, 10}, .flags = kHidden},
  };
  static constexpr Place kCompact[] = {
      {lblTitle, {40, 4, 156, 26}},           {panScanCompact, {12, 44, 416, 52}},
      {lblCurrentScaning, {22, 47, 250, 22}}, {lblTimeLeft, {274, 47, 144, 22}},
      {picScan, {22, 72, 396, 18}},           {butStartIt, {12, 104, 124, 28}},
      {butMoveNextIt, {142, 104, 76, 28}},    {butFullIt, {246, 104, 92, 28}},
      {butDoneScanIt, {344, 104, 84, 28}},    {butHelp, {368, 12, 28, 22}},
      {butCloseIt, {400, 12, 28, 22}},
  };
  static constexpr Layout kLayouts[] = {{.size = {440, 150}, .outline = "scc44", .places = kCompact}};
  static constexpr KeyRow kKeys[] = {{.key = VK_DELETE, .command = butRemoveStationIt, .onlyIn = lstToScan},
                                     {.key = 'F', .modifiers = kAlt, .command = butFullIt}};
  static constexpr FormDesign kDesign = {.name = "frmScan",
                                         .caption = IDS_SCAN_W_TITLE,
                                         .size = {720, 480},
                                         .outline = "scf72",
                                         .controls = kControls,
                                         .layouts = kLayouts,
                                         .keys = kKeys,
                                         .firstFocus = lstToScan};
  return kDesign;
}

std::span<const EventRow> frmScan::Events() const {
  static const EventRow kRows[] = {
      {butStartIt, Click, &frmScan::butStartIt_Click},
      {butMoveNextIt, Click, &frmScan::butMoveNextIt_Click},
      {butMoveUpIt, Click, &frmScan::butMoveUpIt_Click},
      {butMoveDownIt, Click, &frmScan::butMoveDownIt_Click},
      {butRemoveStationIt, Click, &frmScan::butRemoveStationIt_Click},
      {mnuScanRemove, Click, &frmScan::mnuScanRemove_Click},
      {butClearIt, Click, &frmScan::butClearIt_Click},
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
      {mnuScanPutBack, Click, &frmScan::mnuScanPutBack_Click},
      {mnuScanToGroup, Click, &frmScan::mnuScanToGroup_Click, 10},
  };
  return kRows;
}

std::span<const TimerRow> frmScan::Timers() const {
  static const TimerRow kRows[] = {{tmrScan, &frmScan::tmrScan_Timer}};
  return kRows;
}

}  // namespace sonaro
