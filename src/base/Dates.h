// Calendar dates and times of day as plain values, and the one formatter and the one parser of the program.
// All values are local wall-clock or GMT as their owner says; nothing here knows a time zone or the clock.
#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace sonaro {

struct Date {
  int year = 0;   // 1 to 9999
  int month = 0;  // 1 to 12
  int day = 0;    // 1 to 31
  auto operator<=>(const Date&) const = default;
};

struct TimeOfDay {
  int hour = 0;    // 0 to 23
  int minute = 0;  // 0 to 59
  int second = 0;  // 0 to 59
  auto operator<=>(const TimeOfDay&) const = default;
};

struct DateTime {
  Date date;
  TimeOfDay time;
  auto operator<=>(const DateTime&) const = default;
};

// 1 = 12-hour clock with AM/PM, 2 = 24-hour clock.
enum class ClockStyle : int { Hours12 = 1, Hours24 = 2 };

// Proleptic Gregorian calendar.
bool IsValid(const Date& date);
std::int64_t DaysFromEpoch(const Date& date);  // days since 1 January 1970
Date DateFromDays(std::int64_t days);
DateTime AddSeconds(const DateTime& at, std::int64_t seconds);
std::int64_t SecondsBetween(const DateTime& from, const DateTime& to);
inline constexpr int kDaysInWeek = 7;
int Weekday(const Date& date);                 // 0 = Monday ... 6 = Sunday
std::string_view EnglishDayName(int weekday);  // "Monday" ... "Sunday"; "" outside 0 to 6
std::string_view EnglishMonthName(int month);  // "January" ... "December"; "" outside 1 to 12

std::string FormatShortDate(const Date& date);  // "m/d/yyyy": 8/14/2000, no leading zeros
std::string FormatMonthDay(const Date& date);   // "mmmm d": August 14
std::string FormatLongDate(const Date& date);   // "mmmm d yyyy (dddd)": August 14 2000 (Monday)
// "h:mm AMPM" (12:05 AM, 1:30 PM) for the 12-hour clock, "h:mm" (0:05, 13:30) for the 24-hour clock.
std::string FormatTime(const TimeOfDay& time, ClockStyle style);
std::string FormatTimeWithSeconds(const TimeOfDay& time);  // "h:nn:ss AMPM": 1:30:05 PM
// The date by a pattern of the user's regional settings made of d, dd, M, MM, yy, yyyy and separators.
std::string FormatByPattern(const Date& date, std::string_view shortDatePattern);

// A date as it is stored: in m/d/yyyy, in the user's short-date pattern ("" when unknown), in ISO form
// (yyyy-mm-dd) or in the long form of FormatLongDate, with an optional time of day after it. An impossible
// date is no date.
std::optional<DateTime> ParseDate(std::string_view text, std::string_view shortDatePattern = {});
// A date as the user types it. Where a text can be read in two ways, the order of the user's pattern decides;
// "/", ".", and "-" stand for each other, and a year has two or four digits. What this order does not explain
// is read as ParseDate reads it.
std::optional<DateTime> ParseTypedDate(std::string_view text, std::string_view shortDatePattern);
// A time of day: h:mm or h:mm:ss, 24-hour or followed by AM or PM in any letter case, blanks allowed around.
std::optional<TimeOfDay> ParseTime(std::string_view text);

}  // namespace sonaro
