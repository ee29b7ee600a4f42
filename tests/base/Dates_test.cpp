#include "base/Dates.h"

#include <gtest/gtest.h>

#include <ostream>

namespace sonaro {

void PrintTo(const DateTime& at, std::ostream* out) {
  *out << FormatShortDate(at.date) << ' ' << FormatTimeWithSeconds(at.time);
}

namespace {

constexpr DateTime At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
  return {{year, month, day}, {hour, minute, second}};
}

TEST(Dates, EveryDayOfFourHundredYearsFollowsTheOneBefore) {
  Date expected{1599, 12, 31};  // one day more than the 400 years after which everything comes again
  for (std::int64_t days = DaysFromEpoch(expected); expected.year <= 2000; ++days) {
    ASSERT_EQ(DateFromDays(days), expected);
    ASSERT_EQ(DaysFromEpoch(expected), days);
    ASSERT_TRUE(IsValid(expected));
    ++expected.day;
    if (IsValid(expected)) continue;
    expected = {expected.year, expected.month + 1, 1};
    if (expected.month > 12) expected = {expected.year + 1, 1, 1};
  }
  EXPECT_EQ(DaysFromEpoch({1970, 1, 1}), 0);
  EXPECT_EQ(DaysFromEpoch({2000, 8, 14}), 11183);
}

TEST(Dates, ImpossibleDates) {
  for (const Date& date : {Date{2001, 2, 29}, Date{1900, 2, 29}, Date{2000, 4, 31}, Date{2000, 0, 1},
                           Date{2000, 13, 1}, Date{2000, 1, 0}, Date{0, 1, 1}, Date{10000, 1, 1}}) {
    EXPECT_FALSE(IsValid(date)) << FormatShortDate(date);
  }
  EXPECT_TRUE(IsValid({2000, 2, 29}));
}

TEST(Dates, SecondsAcrossDaysAndTheEndsOfTheCalendar) {
  EXPECT_EQ(AddSeconds(At(1999, 12, 31, 23, 59, 59), 1), At(2000, 1, 1));
  EXPECT_EQ(AddSeconds(At(2000, 3, 1), -1), At(2000, 2, 29, 23, 59, 59));
  EXPECT_EQ(AddSeconds(At(2000, 1, 1, 12), -2 * 86400 - 12 * 3600), At(1999, 12, 30));
  EXPECT_EQ(AddSeconds(At(2000, 1, 1), INT64_MAX).date, (Date{9999, 12, 31}));
  EXPECT_EQ(AddSeconds(At(2000, 1, 1), INT64_MIN).date, (Date{1, 1, 1}));
  EXPECT_EQ(SecondsBetween(At(2000, 2, 28, 23), At(2000, 3, 1, 1)), 26 * 3600);
  EXPECT_EQ(SecondsBetween(At(2000, 3, 1, 1), At(2000, 2, 28, 23)), -26 * 3600);
}

TEST(Dates, Names) {
  EXPECT_EQ(EnglishDayName(Weekday({2000, 8, 14})), "Monday");
  EXPECT_EQ(EnglishDayName(Weekday({1969, 12, 28})), "Sunday");
  EXPECT_EQ(EnglishDayName(7), "");
  EXPECT_EQ(EnglishDayName(-1), "");
  EXPECT_EQ(EnglishMonthName(12), "December");
  EXPECT_EQ(EnglishMonthName(0), "");
}

TEST(Dates, Formats) {
  EXPECT_EQ(FormatShortDate({2000, 8, 4}), "8/4/2000");
  EXPECT_EQ(FormatMonthDay({2000, 8, 14}), "August 14");
  EXPECT_EQ(FormatLongDate({2000, 8, 14}), "August 14 2000 (Monday)");
  const struct {
    TimeOfDay time;
    const char* twelve;
    const char* twentyFour;
    const char* withSeconds;
  } times[] = {
      {{0, 5, 9}, "12:05 AM", "0:05", "12:05:09 AM"},
      {{11, 59, 0}, "11:59 AM", "11:59", "11:59:00 AM"},
      {{12, 0, 0}, "12:00 PM", "12:00", "12:00:00 PM"},
      {{13, 30, 5}, "1:30 PM", "13:30", "1:30:05 PM"},
  };
  for (const auto& c : times) {
    EXPECT_EQ(FormatTime(c.time, ClockStyle::Hours12), c.twelve);
    EXPECT_EQ(FormatTime(c.time, ClockStyle::Hours24), c.twentyFour);
    EXPECT_EQ(FormatTimeWithSeconds(c.time), c.withSeconds);
  }
}

TEST(Dates, PatternsOfTheRegionalSettings) {
  const struct {
    const char* pattern;
    const char* text;
  } cases[] = {
      {"M/d/yyyy", "3/5/2004"},     {"dd.MM.yy", "05.03.04"},         {"yyyy-MM-dd", "2004-03-05"},
      {"d. M. yyyy", "5. 3. 2004"}, {"d.M.yyyy 'г.'", "5.3.2004 г."},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FormatByPattern({2004, 3, 5}, c.pattern), c.text);
    EXPECT_EQ(ParseDate(c.text, c.pattern), At(2004, 3, 5)) << c.pattern;
  }
  EXPECT_EQ(ParseDate("31.12.99", "dd.MM.yy"), At(1999, 12, 31));
}

TEST(ParseDate, AcceptedForms) {
  const struct {
    const char* text;
    const char* pattern;
    DateTime expected;
  } cases[] = {
      {"8/14/2000", "", At(2000, 8, 14)},
      {" 08/04/2000 ", "", At(2000, 8, 4)},
      {"8/14/2000 1:30 PM", "", At(2000, 8, 14, 13, 30)},
      {"8/14/2000  13:30:05", "", At(2000, 8, 14, 13, 30, 5)},
      {"1/2/2000", "d/M/yyyy", At(2000, 1, 2)},  // the stored form goes before the user's
      {"14/8/2000", "d/M/yyyy", At(2000, 8, 14)},
      {"14/8/2000 0:05", "d/M/yyyy", At(2000, 8, 14, 0, 5)},
      {"2000-08-14", "", At(2000, 8, 14)},
      {"2000-08-14T01:02:03", "", At(2000, 8, 14, 1, 2, 3)},
      {"August 14 2000 (Monday)", "", At(2000, 8, 14)},
      {"may 1 2000", "", At(2000, 5, 1)},
      {"May 1 2000 (monday) 6:00 am", "", At(2000, 5, 1, 6)},
  };
  for (const auto& c : cases) EXPECT_EQ(ParseDate(c.text, c.pattern), c.expected) << c.text;
}

TEST(ParseDate, WhatIsTypedFollowsTheUsersOrder) {
  const struct {
    const char* text;
    const char* pattern;
    std::optional<DateTime> expected;
  } cases[] = {
      {"3/8/2026", "dd/MM/yyyy", At(2026, 8, 3)},
      {"3/8/2026", "M/d/yyyy", At(2026, 3, 8)},
      {"3/8/2026", "d.M.yy", At(2026, 8, 3)},
      {"3-8-26", "dd/MM/yyyy", At(2026, 8, 3)},
      {"26.08.03", "yyyy-MM-dd", At(2026, 8, 3)},
      {"8/13/2026", "dd/MM/yyyy", At(2026, 8, 13)},  // cannot be meant otherwise
      {"2026-08-03", "dd/MM/yyyy", At(2026, 8, 3)},
      {"August 3 2026 (Monday)", "dd/MM/yyyy", At(2026, 8, 3)},
      {"3/8/2026", "", At(2026, 3, 8)},
      {"31/2/2026", "dd/MM/yyyy", std::nullopt},
  };
  for (const auto& c : cases)
    EXPECT_EQ(ParseTypedDate(c.text, c.pattern), c.expected) << c.text << " " << c.pattern;
}

TEST(ParseDate, EverythingElseIsNoDate) {
  for (const char* text : {"",
                           "x",
                           "2/30/2000",
                           "13/1/2000",
                           "0/1/2000",
                           "1/1/0000",
                           "1/1/99",
                           "1/1/20000",
                           "1/1",
                           "1/1/2000x",
                           "1/1/2000 25:00",
                           "1/1/20001:30",
                           "1/1/2000T",
                           "2000-8-14",
                           "2000-02-30",
                           "Augus 14 2000",
                           "August 32 2000",
                           "August 14 2000 (Tuesday)",
                           "August 14 2000 (Monday",
                           "99999999999/1/2000"}) {
    EXPECT_FALSE(ParseDate(text, "M/d/yyyy")) << text;
  }
  EXPECT_FALSE(ParseDate("14/8/2000"));
  EXPECT_FALSE(ParseDate("8/14", "M/d"));  // a pattern without a year
}

TEST(ParseTime, AcceptedForms) {
  const struct {
    const char* text;
    TimeOfDay expected;
  } cases[] = {
      {"0:05", {0, 5, 0}},          {"23:59:59", {23, 59, 59}}, {"12:05 AM", {0, 5, 0}},
      {"0:30 AM", {0, 30, 0}},      {"12:00 pm", {12, 0, 0}},   {" 1:30PM ", {13, 30, 0}},
      {"1:30:05  Pm", {13, 30, 5}}, {"09:07", {9, 7, 0}},
  };
  for (const auto& c : cases) EXPECT_EQ(ParseTime(c.text), c.expected) << c.text;
  for (const char* text : {"", "5", "24:00", "1:60", "1:5", "1:00:60", "13:00 PM", "1:30 XM", "1:30 PMX",
                           ":30", "-1:30", "1:30:", "001:30"}) {
    EXPECT_FALSE(ParseTime(text)) << text;
  }
}

}  // namespace
}  // namespace sonaro
