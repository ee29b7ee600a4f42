// The system's month calendar with the chosen day in large beside it, since the mark in the calendar is small
// and, in some themes, pale. Returns a date, never a time.
#include "schedule/frmDateFinder.h"

#include "forms/DialogRows.h"
#include "resources/texts/schedule.h"
#include "settings/HelpPages.h"

namespace sonaro {

const FormDesign& frmDateFinder::Design() {
  static constexpr ControlRow kControls[] = {
      {.id = lblTitle, .kind = ControlKind::TitleBar, .text = IDS_SCHED_DATE_TITLE, .at = {40, 4, 156, 26}},
      {.id = calDates,
       .kind = ControlKind::MonthCalendar,
       .text = IDS_SCHED_DATE_CALENDAR,
       .at = {14, 44, 226, 184}},
      {.kind = ControlKind::Glass, .at = {252, 44, 154, 114}, .cut = 10},
      {.id = lblWeekday,
       .kind = ControlKind::StateLabel,
       .at = {264, 54, 130, 20},
       .flags = kOnGlass,
       .color = TextColor::GlassMuted},
      {.id = lblDay,
       .kind = ControlKind::StateLabel,
       .at = {264, 70, 130, 48},
       .flags = kOnGlass,
       .style = TextStyle::Day,
       .color = TextColor::TabText},
      {.id = lblMonthYear,
       .kind = ControlKind::StateLabel,
       .at = {264, 120, 130, 22},
       .flags = kOnGlass,
       .style = TextStyle::BodyStrong},
      {.id = butToday,
       .kind = ControlKind::PushButton,
       .text = IDS_SCHED_DATE_TODAY,
       .at = {252, 166, 154, 28}},
      OkButton({252, 200, 74, 28}),
      CancelButton({332, 200, 74, 28}),
      HelpButton(348),
      CloseButton(380),
  };
  static constexpr FormDesign kDesign = {.name = "frmDateFinder",
                                         .caption = IDS_SCHED_DATE_TITLE,
                                         .size = {420, 248},
                                         .outline = "fdf01",
                                         .controls = kControls,
                                         .firstFocus = calDates};
  return kDesign;
}

std::span<const EventRow> frmDateFinder::Events() const {
  static const EventRow kRows[] = {
      {calDates, SelChange, &frmDateFinder::calDates_Change},
      {butToday, Click, &frmDateFinder::butToday_Click},
      {butOKIt, Click, &frmDateFinder::butOKIt_Click},
      {butCancelIt, Click, &frmDateFinder::butCancelIt_Click},
      {butCloseIt, Click, &frmDateFinder::butCancelIt_Click},
      {butHelp, Click, &frmDateFinder::butHelp_Click},
  };
  return kRows;
}

std::optional<Date> frmDateFinder::Choose(HWND owner) {
  return ShowModal(owner) == 1 ? std::optional(chosen_) : std::nullopt;
}

void frmDateFinder::OnLoad() { Show(chosen_); }

// The calendar and the large day always show the same date, whichever of them was told.
void frmDateFinder::Show(const Date& date) {
  chosen_ = date;
  SYSTEMTIME shown{};
  shown.wYear = static_cast<WORD>(date.year);
  shown.wMonth = static_cast<WORD>(date.month);
  shown.wDay = static_cast<WORD>(date.day);
  calDates_.SetDate(shown);
  lblWeekday_.SetText(EnglishDayName(Weekday(date)));
  lblDay_.SetText(std::to_string(date.day));
  lblMonthYear_.SetText(std::string(EnglishMonthName(date.month)) + " " + std::to_string(date.year));
}

void frmDateFinder::calDates_Change() {
  const SYSTEMTIME date = calDates_.Date();
  const Date chosen{date.wYear, date.wMonth, date.wDay};
  // The calendar tells of a date that it was given, too.
  if (IsValid(chosen) && chosen != chosen_) Show(chosen);
}

void frmDateFinder::butHelp_Click() { help_.OpenHelpPage("9004.html"); }

}  // namespace sonaro
