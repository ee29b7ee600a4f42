// The controls of frmSchedChange and what they call.
#include "forms/ControlIds.h"
#include "forms/DialogRows.h"
#include "resources/texts/schedule.h"
#include "schedule/frmSchedChange.h"

namespace sonaro {
namespace {

// Beside the last box of the time, of which the 24-hour clock has one less.
constexpr ControlRow LocalTime(int x, unsigned char pane) {
  return {.kind = ControlKind::Label,
          .text = IDS_SCHED_CHANGE_LOCAL,
          .at = {x, 124, 190, 28},
          .color = TextColor::Muted,
          .pane = pane};
}

}  // namespace

const FormDesign& frmSchedChange::Design() {
  // One row of the dialog, at 162, is there three times: a date for an item that comes on once, toggles for
  // the days of a daily one, a weekday for a weekly one. They stand in panes of which one is shown at a time.
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_SCHED_CHANGE_TITLE, .at = {40, 4, 196, 26}},
      {.id = lblStationToSched,
       .kind = ControlKind::StateLabel,
       .at = {14, 48, 418, 28},
       .flags = kNoPrefix,
       .style = TextStyle::BodyStrong},
      {.id = butSchedIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_CHANGE_SELECT,
       .at = {440, 48, 106, 28}},
      // In the order of the buttons: once, daily, weekly.
      Caption(IDS_SCHED_CHANGE_HOW_OFTEN, {14, 86, 100, 28}),
      {.id = cmdHowOften,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_ONCE,
       .at = {120, 86, 100, 28},
       .flags = kGroup},
      {.id = cmdHowOften + 1,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_DAILY,
       .at = {226, 86, 100, 28}},
      {.id = cmdHowOften + 2,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_WEEKLY,
       .at = {332, 86, 100, 28}},
      Caption(IDS_SCHED_CHANGE_TIME, {14, 124, 100, 28}),
      {.id = cmbTimeHour,
       .kind = ControlKind::Combo,
       .text = IDS_SCHED_CHANGE_HOUR,
       .at = {120, 124, 64, 28}},
      {.kind = ControlKind::Label,
       .text = ":",
       .at = {186, 124, 10, 28},
       .flags = kCentred,
       .style = TextStyle::Title},
      {.id = cmbTimeMinute,
       .kind = ControlKind::Combo,
       .text = IDS_SCHED_CHANGE_MINUTE,
       .at = {198, 124, 64, 28}},
      {.id = cmbTimeAMPM,
       .kind = ControlKind::Combo,
       .text = IDS_SCHED_CHANGE_HALF,
       .at = {270, 124, 70, 28},
       .pane = kHours12Pane},
      // The same words behind the last box of the time, wherever that is.
      LocalTime(352, kHours12Pane),
      LocalTime(274, kHours24Pane),
      Caption(IDS_SCHED_CHANGE_DATE, {14, 162, 100, 28}, kOncePane),
      {.id = txtOneDate, .kind = ControlKind::Edit, .at = {120, 162, 212, 28}, .pane = kOncePane},
      {.id = butPickDateIt,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_CHANGE_CALENDAR,
       .at = {340, 162, 106, 28},
       .icon = Icon::Sched,
       .pane = kOncePane},
      Caption(IDS_SCHED_CHANGE_DAYS, {14, 162, 100, 28}, kDailyPane),
      // Monday first, as the flags of a daily item stand in the file.
      {.id = chkDay,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_MON,
       .at = {120, 162, 56, 28},
       .flags = kGroup,
       .pane = kDailyPane},
      {.id = chkDay + 1,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_TUE,
       .at = {181, 162, 56, 28},
       .pane = kDailyPane},
      {.id = chkDay + 2,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_WED,
       .at = {242, 162, 56, 28},
       .pane = kDailyPane},
      {.id = chkDay + 3,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_THU,
       .at = {303, 162, 56, 28},
       .pane = kDailyPane},
      {.id = chkDay + 4,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_FRI,
       .at = {364, 162, 56, 28},
       .pane = kDailyPane},
      {.id = chkDay + 5,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_SAT,
       .at = {425, 162, 56, 28},
       .pane = kDailyPane},
      {.id = chkDay + 6,
       .kind = ControlKind::ToggleButton,
       .text = IDS_SCHED_SUN,
       .at = {486, 162, 56, 28},
       .pane = kDailyPane},
      Caption(IDS_SCHED_CHANGE_WEEKDAY, {14, 162, 100, 28}, kWeeklyPane),
      {.id = cmbThreeDay,
       .kind = ControlKind::Combo,
       .text = IDS_SCHED_CHANGE_WEEKDAY,
       .at = {120, 162, 142, 28},
       .pane = kWeeklyPane},
      Caption(IDS_SCHED_CHANGE_NOTE, {14, 200, 100, 28}),
      {.id = txtNote, .kind = ControlKind::MultiEdit, .at = {120, 202, 426, 84}},
      {.kind = ControlKind::Groove, .at = {14, 300, 532, 2}},
      {.kind = ControlKind::Glass, .at = {14, 312, 532, 56}, .cut = 10},
      {.kind = ControlKind::Label,
       .at = {32, 328, 24, 24},
       .icon = Icon::Bell,
       .flags = kOnGlass,
       .color = TextColor::Accent},
      // What the choices above come to, in words. Both labels are told to a screen reader with every change,
      // so a choice that means something else than was thought is heard.
      {.id = lblSummary,
       .kind = ControlKind::StateLabel,
       .at = {64, 318, 470, 24},
       .flags = kOnGlass,
       .style = TextStyle::Title,
       .color = TextColor::TabText},
      {.id = lblNextTime,
       .kind = ControlKind::StateLabel,
       .at = {64, 340, 470, 20},
       .flags = kOnGlass,
       .color = TextColor::GlassMuted},
      {.id = chkWebSite,
       .kind = ControlKind::CheckBox,
       .text = IDS_SCHED_CHANGE_WEB,
       .at = {16, 384, 290, 26}},
      OkButton({346, 382, 96, 30}),
      CancelButton({450, 382, 96, 30}),
      HelpButton(488),
      CloseButton(520),
  };
  static constexpr FormDesign kDesign = {.name = "frmSchedChange",
                                         .caption = IDS_SCHED_CHANGE_TITLE,
                                         .size = {560, 430},
                                         .outline = "ddf44",
                                         .controls = kControls};
  return kDesign;
}

std::span<const EventRow> frmSchedChange::Events() const {
  static const EventRow kRows[] = {
      {butSchedIt, Click, &frmSchedChange::butSchedIt_Click},
      {cmdHowOften, Click, &frmSchedChange::cmdHowOften_Click, 3},
      {cmbTimeHour, SelChange, &frmSchedChange::Any_Change},
      {cmbTimeMinute, SelChange, &frmSchedChange::Any_Change},
      {cmbTimeAMPM, SelChange, &frmSchedChange::Any_Change},
      {cmbThreeDay, SelChange, &frmSchedChange::Any_Change},
      {txtOneDate, Change, &frmSchedChange::Any_Change},
      {butPickDateIt, Click, &frmSchedChange::butPickDateIt_Click},
      {chkDay, Click, &frmSchedChange::chkDay_Click, 7},
      {butOKIt, Click, &frmSchedChange::butOKIt_Click},
      {butCancelIt, Click, &frmSchedChange::butCancelIt_Click},
      {butCloseIt, Click, &frmSchedChange::butCancelIt_Click},
      {butHelp, Click, &frmSchedChange::butHelp_Click},
  };
  return kRows;
}

}  // namespace sonaro
