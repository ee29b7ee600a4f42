// The words are in resources/texts/schedule.rc. Names of days and months are not: base/Dates writes them, in
// English, since the same names stand in the user's files.
#include "schedule/ScheduleTexts.h"

#include "resources/texts/schedule.h"
#include "settings/Strings.h"

namespace sonaro {

namespace {

constexpr std::size_t kShortName = 3;

// A notice tells its time by the 12-hour clock whatever the user's own is.
std::string TwelveHourTime(const ScheduleItem& item) {
  return item.time ? FormatTime(*item.time, ClockStyle::Hours12) : item.fields.time;
}

// With the keys of the file: "Thr" for Thursday.
std::string DaysShown(const DayFlags& days) {
  std::string shown;
  for (std::size_t day = 0; day < days.size(); ++day) {
    if (!days[day]) continue;
    if (!shown.empty()) shown += ", ";
    shown += DayKey(static_cast<int>(day));
  }
  return shown;
}

}  // namespace

std::string ScheduleTexts::Filled(int id, std::initializer_list<std::string_view> values) const {
  return FormatText(strings_.Load(id), values);
}

std::string ScheduleTexts::Name(const ItemName& name) const {
  return name.IsEvent() ? Filled(IDS_SCHED_EVENT_ON, {name.name, name.station}) : name.name;
}

std::string ScheduleTexts::Notice(const ScheduleItem& item) const {
  switch (item.kind) {
    case ScheduleKind::Once:
      return Filled(IDS_SCHED_NOTICE_ONCE,
                    {item.date ? FormatMonthDay(*item.date) : item.fields.date, TwelveHourTime(item)});
    case ScheduleKind::Daily:
      return Filled(IDS_SCHED_NOTICE_DAILY, {TwelveHourTime(item)});
    case ScheduleKind::Weekly:
      return Filled(IDS_SCHED_NOTICE_WEEKLY, {item.fields.weekday, TwelveHourTime(item)});
    default:
      return Filled(IDS_SCHED_NOTICE_EVENT);
  }
}

std::string ScheduleTexts::Action(const ScheduleItem& item) const {
  return Filled(item.opensWebSite ? IDS_SCHED_ACTION_WEB : IDS_SCHED_ACTION_NOTIFY);
}

// With the time as the list shows it, so that the user finds the row again that he is asked about.
std::string ScheduleTexts::DeleteQuestion(const ScheduleItem& item) const {
  const std::string name = Name(item.name);
  switch (item.kind) {
    case ScheduleKind::Once:
      return Filled(IDS_SCHED_DELETE_ONCE,
                    {item.date ? FormatMonthDay(*item.date) : item.fields.date, item.fields.time, name});
    case ScheduleKind::Daily:
      return Filled(IDS_SCHED_DELETE_DAILY, {item.fields.time, name});
    case ScheduleKind::Weekly:
      return Filled(IDS_SCHED_DELETE_WEEKLY, {item.fields.weekday, item.fields.time, name});
    default:
      return Filled(IDS_SCHED_DELETE_EVENT, {name});
  }
}

// Times and dates as the user entered them, not as they would be written now.
std::string ScheduleTexts::HowOften(const ScheduleItem& item) const {
  switch (item.kind) {
    case ScheduleKind::Daily:
      if (item.fields.kind.find('|') == std::string::npos) {
        return Filled(IDS_SCHED_OFTEN_DAILY, {item.fields.time});
      }
      return Filled(IDS_SCHED_OFTEN_DAYS, {DaysShown(item.days), item.fields.time});
    case ScheduleKind::Weekly:
      return Filled(IDS_SCHED_OFTEN_DAYS, {item.fields.weekday, item.fields.time});
    case ScheduleKind::Once:
      return Filled(IDS_SCHED_OFTEN_ONCE, {item.fields.time, item.fields.date});
    case ScheduleKind::Live:
      return Filled(IDS_SCHED_OFTEN_EVENT);
    default:
      return {};
  }
}

std::string ScheduleTexts::Next(const DateTime& next, const DateTime& now) const {
  const std::string time = FormatTime(next.time, style_);
  const std::int64_t days = DaysFromEpoch(next.date) - DaysFromEpoch(now.date);
  if (days == 0) return Filled(IDS_SCHED_TODAY, {time});
  if (days == 1) return Filled(IDS_SCHED_TOMORROW, {time});
  // Not the seventh day: its name is today's.
  if (days > 1 && days < kDaysInWeek) {
    return std::string(EnglishDayName(Weekday(next.date)).substr(0, kShortName)) + " " + time;
  }
  std::string day = std::string(EnglishMonthName(next.date.month).substr(0, kShortName)) + " " +
                    std::to_string(next.date.day);
  if (next.date.year != now.date.year) day += " " + std::to_string(next.date.year);
  return day + ", " + time;
}

}  // namespace sonaro
