#include "schedule/ScheduleTexts.h"

#include <optional>

#include "base/Text.h"

namespace sonaro {

namespace {

constexpr std::size_t kShortName = 3;

std::string TwelveHourTime(const ScheduleItem& item) {
  return item.time ? FormatTime(*item.time, ClockStyle::Hours12) : item.fields.time;
}

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

std::string NoticeText(const ScheduleItem& item) {
  switch (item.kind) {
    case ScheduleKind::Once:
      return "This is your " + (item.date ? FormatMonthDay(*item.date) : item.fields.date) + "  " +
             TwelveHourTime(item) + " notice for";
    case ScheduleKind::Daily:
      return "This is your daily " + TwelveHourTime(item) + " notice for";
    case ScheduleKind::Weekly:
      return "This is your weekly " + item.fields.weekday + " " + TwelveHourTime(item) + " notice for";
    default:
      return "This is your event notice for";
  }
}

std::string ActionShown(const ScheduleItem& item) {
  return item.opensWebSite ? "Go to the website " : "Notify me ";
}

std::string ScheduleShown(const ScheduleItem& item) {
  switch (item.kind) {
    case ScheduleKind::Daily:
      if (item.fields.kind.find('|') == std::string::npos) return "every day at " + item.fields.time;
      return "every " + DaysShown(item.days) + " at " + item.fields.time;
    case ScheduleKind::Weekly:
      return "every " + item.fields.weekday + " at " + item.fields.time;
    case ScheduleKind::Once:
      return "at " + item.fields.time + " on " + item.fields.date;
    case ScheduleKind::Live:
      return "when the event begins";
    default:
      return {};
  }
}

std::string NextShown(const DateTime& next, const DateTime& now, ClockStyle style) {
  const std::string time = FormatTime(next.time, style);
  const std::int64_t days = DaysFromEpoch(next.date) - DaysFromEpoch(now.date);
  if (days == 0) return "Today " + time;
  if (days == 1) return "Tomorrow " + time;
  if (days > 1 && days < kDaysInWeek) {
    return std::string(EnglishDayName(Weekday(next.date)).substr(0, kShortName)) + " " + time;
  }
  std::string day = std::string(EnglishMonthName(next.date.month).substr(0, kShortName)) + " " +
                    std::to_string(next.date.day);
  if (next.date.year != now.date.year) day += " " + std::to_string(next.date.year);
  return day + ", " + time;
}

}  // namespace sonaro
