#include "base/Dates.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "base/Text.h"

namespace sonaro {
namespace {

constexpr std::int64_t kSecondsPerDay = 24 * 60 * 60;
constexpr std::array<std::string_view, 7> kDayNames = {"Monday", "Tuesday",  "Wednesday", "Thursday",
                                                       "Friday", "Saturday", "Sunday"};
constexpr std::array<std::string_view, 12> kMonthNames = {"January",   "February", "March",    "April",
                                                          "May",       "June",     "July",     "August",
                                                          "September", "October",  "November", "December"};

bool IsLeapYear(int year) { return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0); }

int DaysInMonth(int year, int month) {
  if (month == 2) return IsLeapYear(year) ? 29 : 28;
  return month == 4 || month == 6 || month == 9 || month == 11 ? 30 : 31;
}

// Rounds down where the language rounds towards zero, which days before 1970 need.
std::int64_t FloorDivide(std::int64_t value, std::int64_t by) {
  return value / by - (value % by < 0 ? 1 : 0);
}

std::int64_t SecondOfDay(const TimeOfDay& time) { return (time.hour * 60 + time.minute) * 60 + time.second; }

std::string Padded(int value, int digits) {
  char buffer[16];
  std::snprintf(buffer, sizeof buffer, "%0*d", digits, value);
  return buffer;
}

}  // namespace

bool IsValid(const Date& date) {
  return date.year >= 1 && date.year <= 9999 && date.month >= 1 && date.month <= 12 && date.day >= 1 &&
         date.day <= DaysInMonth(date.year, date.month);
}

// Both directions count in years that begin in March, so that the leap day is the last day of a year, and in
// eras of 400 years, which all have the same number of days.

std::int64_t DaysFromEpoch(const Date& date) {
  const std::int64_t year = date.year - (date.month <= 2 ? 1 : 0);
  const std::int64_t era = FloorDivide(year, 400);
  const std::int64_t yearOfEra = year - era * 400;
  const std::int64_t dayOfYear = (153 * ((date.month + 9) % 12) + 2) / 5 + date.day - 1;
  return era * 146097 + yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear - 719468;
}

Date DateFromDays(std::int64_t days) {
  static const std::int64_t first = DaysFromEpoch({1, 1, 1});
  static const std::int64_t last = DaysFromEpoch({9999, 12, 31});
  days = std::clamp(days, first, last) + 719468;
  const std::int64_t era = FloorDivide(days, 146097);
  const std::int64_t dayOfEra = days - era * 146097;
  const std::int64_t yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
  const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
  const std::int64_t marchMonth = (5 * dayOfYear + 2) / 153;
  const std::int64_t month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9;
  const std::int64_t year = era * 400 + yearOfEra + (month <= 2 ? 1 : 0);
  return {static_cast<int>(year), static_cast<int>(month),
          static_cast<int>(dayOfYear - (153 * marchMonth + 2) / 5 + 1)};
}

// By parts, so that no sum leaves the range however large `seconds` is.
DateTime AddSeconds(const DateTime& at, std::int64_t seconds) {
  const std::int64_t second = SecondOfDay(at.time) + seconds % kSecondsPerDay;
  const std::int64_t carry = FloorDivide(second, kSecondsPerDay);
  const int rest = static_cast<int>(second - carry * kSecondsPerDay);
  return {DateFromDays(DaysFromEpoch(at.date) + seconds / kSecondsPerDay + carry),
          {rest / 3600, rest / 60 % 60, rest % 60}};
}

std::int64_t SecondsBetween(const DateTime& from, const DateTime& to) {
  return (DaysFromEpoch(to.date) - DaysFromEpoch(from.date)) * kSecondsPerDay + SecondOfDay(to.time) -
         SecondOfDay(from.time);
}

// 0 is Monday.
int Weekday(const Date& date) {
  const std::int64_t days = DaysFromEpoch(date) + 3;  // day 0 was a Thursday
  return static_cast<int>(days - FloorDivide(days, 7) * 7);
}

std::string_view EnglishDayName(int weekday) {
  return weekday >= 0 && weekday < 7 ? kDayNames[static_cast<std::size_t>(weekday)] : std::string_view();
}

std::string_view EnglishMonthName(int month) {
  return month >= 1 && month <= 12 ? kMonthNames[static_cast<std::size_t>(month - 1)] : std::string_view();
}

// The form of dates in the program's files, whatever the user's own pattern is.
std::string FormatShortDate(const Date& date) {
  return std::to_string(date.month) + '/' + std::to_string(date.day) + '/' + std::to_string(date.year);
}

std::string FormatMonthDay(const Date& date) {
  return std::string(EnglishMonthName(date.month)) + ' ' + std::to_string(date.day);
}

std::string FormatLongDate(const Date& date) {
  return FormatMonthDay(date) + ' ' + std::to_string(date.year) + " (" +
         std::string(EnglishDayName(Weekday(date))) + ')';
}

// The hour is not padded in either style; midnight is 12 AM, noon 12 PM.
std::string FormatTime(const TimeOfDay& time, ClockStyle style) {
  if (style == ClockStyle::Hours24) return std::to_string(time.hour) + ':' + Padded(time.minute, 2);
  const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
  return std::to_string(hour) + ':' + Padded(time.minute, 2) + (time.hour < 12 ? " AM" : " PM");
}

std::string FormatTimeWithSeconds(const TimeOfDay& time) {
  std::string text = FormatTime(time, ClockStyle::Hours12);
  // Before the blank and "AM" or "PM".
  return text.insert(text.size() - 3, ':' + Padded(time.second, 2));
}

std::string FormatByPattern(const Date& date, std::string_view shortDatePattern) {
  std::string text;
  bool quoted = false;
  for (std::size_t i = 0; i < shortDatePattern.size();) {
    const char letter = shortDatePattern[i];
    std::size_t run = shortDatePattern.find_first_not_of(letter, i);
    run = (run == std::string_view::npos ? shortDatePattern.size() : run) - i;
    i += run;
    // One letter is the number as it is, two pad it to two digits; of years two letters are the last two
    // digits.
    const int width = run == 1 ? 1 : 2;
    if (letter == '\'') {
      quoted ^= run % 2 == 1;
    } else if (quoted || (letter != 'd' && letter != 'M' && letter != 'y')) {
      text.append(run, letter);
    } else if (letter == 'y') {
      text += run > 2 ? Padded(date.year, 4) : Padded(date.year % 100, width);
    } else {
      text += Padded(letter == 'd' ? date.day : date.month, width);
    }
  }
  return text;
}

}  // namespace sonaro
