// The controls of frmSched and what they call.
#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "resources/ids.h"
#include "schedule/frmSched.h"

namespace sonaro {

const FormDesign& frmSched::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = Kind::TitleBar, .text = IDS_SCHED_LIST_TITLE, .at = {40, 4, 216, 26}},
      {.kind = Kind::HeaderKey, .text = IDS_SCHED_COLUMN_NEXT, .at = {14, 66, 130, 24}, .flags = kNoTabStop},
      {.kind = Kind::HeaderKey,
       .text = IDS_SCHED_COLUMN_STATION,
       .at = {144, 66, 180, 24},
       .flags = kNoTabStop},
      {.kind = Kind::HeaderKey,
       .text = IDS_SCHED_COLUMN_OFTEN,
       .at = {324, 66, 172, 24},
       .flags = kNoTabStop},
      {.kind = Kind::HeaderKey, .text = IDS_SCHED_COLUMN_NOTE, .at = {496, 66, 190, 24}, .flags = kNoTabStop},
      {.kind = Kind::Label,
       .text = IDS_SCHED_LIST_CAPTION,
       .at = {14, 42, 400, 24},
       .type = Type::BodyStrong,
       .ink = Ink::Muted},
      {.id = lstSched, .kind = Kind::ListView, .text = IDS_SCHED_LIST_CAPTION, .at = {14, 90, 672, 162}},
      {.kind = Kind::HeaderKey, .text = IDS_SCHED_COLUMN_SHOW, .at = {14, 284, 672, 24}, .flags = kNoTabStop},
      {.kind = Kind::Label,
       .text = IDS_SCHED_LIST_SHOWS,
       .at = {14, 260, 400, 24},
       .type = Type::BodyStrong,
       .ink = Ink::Muted},
      {.id = lstShows, .kind = Kind::ListView, .text = IDS_SCHED_LIST_SHOWS, .at = {14, 308, 672, 94}},
      {.id = butAddIt,
       .kind = Kind::PrimaryKey,
       .text = IDS_SCHED_ADD,
       .at = {14, 412, 98, 30},
       .icon = Icon::Add},
      {.id = butChangeIt,
       .kind = Kind::PushKey,
       .text = IDS_SCHED_MODIFY,
       .at = {118, 412, 98, 30},
       .icon = Icon::Modify,
       .flags = kDisabled},
      {.id = butDeleteIt,
       .kind = Kind::PushKey,
       .text = IDS_SCHED_DELETE,
       .at = {222, 412, 98, 30},
       .icon = Icon::Clear,
       .flags = kDisabled},
      {.id = butExportIt, .kind = Kind::PushKey, .text = IDS_SCHED_EXPORT, .at = {326, 412, 96, 30}},
      {.id = butAboutTimeIt, .kind = Kind::PushKey, .text = IDS_SCHED_ABOUT_TIMES, .at = {458, 412, 120, 30}},
      {.id = butCloseIt, .kind = Kind::PushKey, .text = IDS_SCHED_NOTIFY_CLOSE, .at = {590, 412, 96, 30}},
      HelpKey(628),
      CloseKey(660, butCancelIt),
  };
  static constexpr KeyRow kKeys[] = {
      {.key = VK_DELETE, .command = butDeleteIt, .onlyIn = lstSched},
      {.key = VK_DELETE, .command = butDeleteIt, .onlyIn = lstShows},
      {.key = VK_INSERT, .command = butAddIt},
  };
  static constexpr FormDesign kDesign = {.name = "frmSched",
                                         .caption = IDS_SCHED_LIST_TITLE,
                                         .size = {700, 460},
                                         .outline = "ldf30",
                                         .controls = kControls,
                                         .keys = kKeys,
                                         .firstFocus = lstSched};
  return kDesign;
}

std::span<const EventRow> frmSched::Events() const {
  static const EventRow kRows[] = {
      {lstSched, ItemSelected, &frmSched::lst_ItemSelected},
      {lstSched, ItemActivated, &frmSched::lstSched_ItemActivate},
      {lstShows, ItemSelected, &frmSched::lstShows_ItemSelected},
      {butAddIt, Click, &frmSched::butAddIt_Click},
      {butChangeIt, Click, &frmSched::butChangeIt_Click},
      {butDeleteIt, Click, &frmSched::butDeleteIt_Click},
      {butExportIt, Click, &frmSched::butExportIt_Click},
      {butAboutTimeIt, Click, &frmSched::butAboutTimeIt_Click},
      {butCloseIt, Click, &frmSched::butCloseIt_Click},
      {butCancelIt, Click, &frmSched::butCloseIt_Click},
      {butHelp, Click, &frmSched::butHelp_Click},
  };
  return kRows;
}

}  // namespace sonaro
