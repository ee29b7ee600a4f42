#include "schedule/ScheduleTexts.h"

#include <optional>

#include "base/Text.h"

namespace sonaro {

namespace {

constexpr std::size_t kShortName = 3;

std::string TwelveHourTime(const ScheduleItem& item) {
  const std::optional<TimeOfDay> time = ParseTime(item.time);
  return time ? FormatTime(*time, ClockStyle::Hours12) : item.time;
}

std::string DaysShown(std::string_view dailyKind) {
  std::string shown;
  const DayFlags days = DaysOf(dailyKind);
  for (std::size_t day = 0; day < days.size(); ++day) {
    if (!days[day]) continue;
    if (!shown.empty()) shown += ", ";
    shown += DayKey(static_cast<int>(day));
  }
  return shown;
}

}  // namespace

std::string NoticeText(const ScheduleItem& item, std::string_view shortDatePattern) {
  switch (KindOf(item.kind)) {
    case ScheduleKind::Once: {
      const std::optional<DateTime> date = ParseDate(item.date, shortDatePattern);
      return "This is your " + (date ? FormatMonthDay(date->date) : item.date) + "  " + TwelveHourTime(item) +
             " notice for";
    }
    case ScheduleKind::Daily:
      return "This is your daily " + TwelveHourTime(item) + " notice for";
    case ScheduleKind::Weekly:
      return "This is your weekly " + item.weekday + " " + TwelveHourTime(item) + " notice for";
    default:
      return "This is your event notice for";
  }
}

std::string ActionShown(std::string_view action) {
  return OpensWebSite(action) ? "Go to the website " : "Notify me ";
}

std::string ScheduleShown(const ScheduleItem& item) {
  switch (KindOf(item.kind)) {
    case ScheduleKind::Daily:
      if (item.kind.find('|') == std::string::npos) return "every day at " + item.time;
      return "every " + DaysShown(item.kind) + " at " + item.time;
    case ScheduleKind::Weekly:
      return "every " + item.weekday + " at " + item.time;
    case ScheduleKind::Once:
      return "at " + item.time + " on " + item.date;
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
