// The dialog shows texts; the draft holds values as far as it can. Only the date stays the text that the user
// types, since half a date is no value, and what he sees must not change under his hands.
//
// In the file a time is written by the clock style of the user, a date always as m/d/yyyy.
#include "schedule/ScheduleDraft.h"

#include <algorithm>

#include "base/Text.h"
#include "directory/EventRecord.h"
#include "platform/Clock.h"
#include "resources/texts/schedule.h"
#include "schedule/ScheduleTexts.h"
#include "schedule/TimeZone.h"

namespace sonaro {

namespace {

constexpr int kHalfDay = 12;

std::string ChosenDays(const DayFlags& days) {
  std::string chosen;
  for (std::size_t day = 0; day < days.size(); ++day) {
    if (!days[day]) continue;
    if (!chosen.empty()) chosen += ", ";
    chosen += EnglishDayName(static_cast<int>(day)).substr(0, 3);
  }
  return chosen;
}

bool AnyDay(const DayFlags& days) { return std::find(days.begin(), days.end(), true) != days.end(); }

bool EveryDay(const DayFlags& days) { return std::find(days.begin(), days.end(), false) == days.end(); }

}  // namespace

ScheduleDraft ScheduleDraft::ForStation(const StationKey& station, std::string_view stationName,
                                        const DateTime& now) {
  ScheduleDraft draft;
  draft.station = station;
  draft.name.name = stationName;
  // The next full hour is what programmes begin at, and never lies in the past.
  const DateTime next = AddSeconds({now.date, {now.time.hour, 0, 0}}, 3600);
  draft.time = next.time;
  draft.dateText = FormatLongDate(next.date);
  draft.weekday = Weekday(next.date);
  return draft;
}

ScheduleDraft ScheduleDraft::ForEvent(const EventRecord& event, Clock& clock) {
  ScheduleDraft draft;
  draft.mode = DraftMode::AddLive;
  draft.station = StationKey::FromToken(event[EventField::StationId]);
  draft.name = {event[EventField::Name], event[EventField::StationName], event[EventField::WebAddress]};
  if (const auto local = ServiceTimeToLocal(clock, event[EventField::StartGmt])) {
    draft.time = local->time;
    draft.dateText = FormatLongDate(local->date);
    draft.weekday = Weekday(local->date);
  }
  return draft;
}

// An item that another program has written may lack anything; what it lacks becomes midnight, Monday, a text
// that is no date, so that the dialog opens and the user can mend it.
ScheduleDraft ScheduleDraft::FromItem(const ScheduleItem& item) {
  ScheduleDraft draft;
  draft.mode = DraftMode::Modify;
  draft.kind = item.kind == ScheduleKind::Unknown ? ScheduleKind::Once : item.kind;
  draft.time = item.time.value_or(TimeOfDay{});
  draft.dateText = item.date ? FormatLongDate(*item.date) : item.fields.date;
  draft.weekday = item.weekday.value_or(0);
  if (draft.kind == ScheduleKind::Daily) draft.days = item.days;
  draft.note = item.note;
  draft.name = item.name;
  draft.station = item.station;
  draft.openWebSite = item.opensWebSite;
  return draft;
}

std::string ScheduleDraft::StationShown(const ScheduleTexts& texts) const {
  const std::string shown = name.IsEvent() ? texts.Filled(IDS_SCHED_CHANGE_EVENT, {name.station}) : name.name;
  return texts.Filled(IDS_SCHED_CHANGE_STATION, {shown});
}

// A station that has no name any more counts as none. The order is that of the controls.
DraftFault ScheduleDraft::Missing(std::string_view shortDatePattern) const {
  if (TrimBlanks(name.name).empty()) return DraftFault::NoStation;
  if (kind == ScheduleKind::Once && !ParseTypedDate(dateText, shortDatePattern)) return DraftFault::NoDate;
  if (kind == ScheduleKind::Daily && !AnyDay(days)) return DraftFault::NoDay;
  return DraftFault::None;
}

DraftFault ScheduleDraft::Fault(std::string_view shortDatePattern, const DateTime& now) const {
  const DraftFault missing = Missing(shortDatePattern);
  if (missing != DraftFault::None || kind != ScheduleKind::Once) return missing;
  const bool passed = DateTime{ParseTypedDate(dateText, shortDatePattern)->date, time} <= now;
  return passed ? DraftFault::Passed : DraftFault::None;
}

// Only the fields that the kind reads are filled, so that no date or day of an earlier kind stays in the
// file.
ScheduleFields ScheduleDraft::ToFields(ClockStyle style, std::string_view shortDatePattern) const {
  ScheduleFields item;
  item.name = JoinItemName(name);
  item.time = FormatTime(time, style);
  item.note = NoteForFile(note);
  item.action = ActionText(openWebSite, station);
  switch (kind) {
    case ScheduleKind::Daily:
      item.kind = DailyKind(days);
      break;
    case ScheduleKind::Weekly:
      item.kind = "weekly";
      item.weekday = EnglishDayName(weekday);
      break;
    case ScheduleKind::Live:
      item.kind = "live";
      break;
    default:
      item.kind = "once";
      if (const auto date = ParseTypedDate(dateText, shortDatePattern))
        item.date = FormatShortDate(date->date);
  }
  return item;
}

std::string ScheduleDraft::Summary(const ScheduleTexts& texts, std::string_view shortDatePattern) const {
  if (Missing(shortDatePattern) != DraftFault::None) return {};
  const std::string at = FormatTime(time, texts.Style());
  switch (kind) {
    case ScheduleKind::Daily:
      return EveryDay(days) ? texts.Filled(IDS_SCHED_SUMMARY_DAILY, {at})
                            : texts.Filled(IDS_SCHED_SUMMARY_DAYS, {ChosenDays(days), at});
    case ScheduleKind::Weekly:
      return texts.Filled(IDS_SCHED_SUMMARY_DAYS, {EnglishDayName(weekday), at});
    case ScheduleKind::Live:
      return texts.Filled(IDS_SCHED_SUMMARY_EVENT);
    default:
      return texts.Filled(IDS_SCHED_SUMMARY_ONCE,
                          {FormatLongDate(ParseTypedDate(dateText, shortDatePattern)->date), at});
  }
}

std::vector<std::string> HourChoices(ClockStyle style) {
  std::vector<std::string> hours;
  const bool twelve = style == ClockStyle::Hours12;
  for (int hour = twelve ? 1 : 0; hour <= (twelve ? kHalfDay : 23); ++hour)
    hours.push_back(std::to_string(hour));
  return hours;
}

std::vector<std::string> MinuteChoices() {
  std::vector<std::string> minutes;
  for (int minute = 0; minute < 60; ++minute)
    minutes.push_back((minute < 10 ? "0" : "") + std::to_string(minute));
  return minutes;
}

// The list begins with 1 and ends with 12, while noon and midnight are the twelfth hour of the other half:
// hour 0 and 12 are the last entry, 1 and 13 the first.
TimeChoice ChoiceOf(const TimeOfDay& time, ClockStyle style) {
  if (style == ClockStyle::Hours24) return {time.hour, time.minute, 0};
  return {(time.hour + kHalfDay - 1) % kHalfDay, time.minute, time.hour >= kHalfDay ? 0 : 1};
}

TimeOfDay TimeOfChoice(const TimeChoice& choice, ClockStyle style) {
  if (style == ClockStyle::Hours24) return {choice.hour, choice.minute, 0};
  return {(choice.hour + 1) % kHalfDay + (choice.half == 0 ? kHalfDay : 0), choice.minute, 0};
}

}  // namespace sonaro
