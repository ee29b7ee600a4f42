// The reading side of Dates.h: a cursor over the text, one attempt for each accepted form.
#include <algorithm>

#include "base/Dates.h"
#include "base/Text.h"

namespace sonaro {
namespace {

// Two-digit years up to this one lie in the present century, the others in the last.
constexpr int kLastTwoDigitYear = 49;

// Takes pieces off the front of a text; every Take leaves the text as it was when it fails.
class Cursor {
 public:
  explicit Cursor(std::string_view text) : rest_(text) {}

  bool AtEnd() const { return rest_.empty(); }
  std::string_view Rest() const { return rest_; }

  // A number of `fewest` to `most` digits, and not one digit more.
  bool TakeNumber(std::size_t fewest, std::size_t most, int& value) {
    std::size_t count = 0;
    int number = 0;
    while (count < rest_.size() && rest_[count] >= '0' && rest_[count] <= '9' && count <= most) {
      number = number * 10 + (rest_[count++] - '0');
    }
    if (count < fewest || count > most) return false;
    value = number;
    rest_.remove_prefix(count);
    return true;
  }

  bool Take(std::string_view text) {
    if (!EqualIgnoringCase(rest_.substr(0, text.size()), text)) return false;
    rest_.remove_prefix(text.size());
    return true;
  }

  bool TakeBlanks() {
    const std::size_t before = rest_.size();
    rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), before));
    return rest_.size() < before;
  }

 private:
  std::string_view rest_;
};

bool TakeMonthDayYear(Cursor& cursor, Date& date) {
  return cursor.TakeNumber(1, 2, date.month) && cursor.Take("/") && cursor.TakeNumber(1, 2, date.day) &&
         cursor.Take("/") && cursor.TakeNumber(4, 4, date.year);
}

bool TakeIso(Cursor& cursor, Date& date) {
  return cursor.TakeNumber(4, 4, date.year) && cursor.Take("-") && cursor.TakeNumber(2, 2, date.month) &&
         cursor.Take("-") && cursor.TakeNumber(2, 2, date.day);
}

// "August 14 2000 (Monday)"; the name in brackets must be the day that it was.
bool TakeLong(Cursor& cursor, Date& date) {
  date.month = 1;
  while (date.month <= 12 && !cursor.Take(EnglishMonthName(date.month))) ++date.month;
  if (date.month > 12 || !cursor.TakeBlanks() || !cursor.TakeNumber(1, 2, date.day) || !cursor.TakeBlanks() ||
      !cursor.TakeNumber(4, 4, date.year)) {
    return false;
  }
  Cursor ahead = cursor;
  ahead.TakeBlanks();
  if (!ahead.Take("(")) return true;
  cursor = ahead;
  return IsValid(date) && cursor.Take(EnglishDayName(Weekday(date))) && cursor.Take(")");
}

bool TakeYear(Cursor& cursor, std::size_t letters, int& year) {
  if (letters > 2) return cursor.TakeNumber(4, 4, year);
  if (!cursor.TakeNumber(2, 2, year)) return false;
  year += year <= kLastTwoDigitYear ? 2000 : 1900;
  return true;
}

// The pattern's separators must stand as they are; d and dd, M and MM both take one or two digits.
bool TakeByPattern(Cursor& cursor, std::string_view pattern, Date& date) {
  bool quoted = false;
  while (!pattern.empty()) {
    const char letter = pattern.front();
    // A pattern is runs of letters ("dd", "yyyy"), separators, and texts in apostrophes; two apostrophes in a
    // row leave the state as it was.
    const std::size_t run = std::min(pattern.find_first_not_of(letter), pattern.size());
    const std::string_view piece = pattern.substr(0, run);
    pattern.remove_prefix(run);
    bool taken = true;
    if (letter == '\'') {
      quoted ^= run % 2 == 1;
    } else if (!quoted && letter == 'y') {
      taken = TakeYear(cursor, run, date.year);
    } else if (!quoted && (letter == 'd' || letter == 'M')) {
      taken = cursor.TakeNumber(1, 2, letter == 'd' ? date.day : date.month);
    } else {
      taken = cursor.Take(piece);
    }
    if (!taken) return false;
  }
  return true;
}

// The numbers in the order of the pattern's letters.
bool TakeInOrder(Cursor& cursor, std::string_view pattern, Date& date) {
  bool quoted = false;
  std::string order;
  for (char letter : pattern) {
    quoted ^= letter == '\'';
    if (!quoted && std::string_view("dMy").find(letter) != std::string_view::npos &&
        order.find(letter) == std::string::npos) {
      order += letter;
    }
  }
  if (order.size() != 3) return false;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (i > 0 && !cursor.Take("/") && !cursor.Take(".") && !cursor.Take("-")) return false;
    const bool taken = order[i] == 'y' ? TakeYear(cursor, 4, date.year) || TakeYear(cursor, 2, date.year)
                                       : cursor.TakeNumber(1, 2, order[i] == 'd' ? date.day : date.month);
    if (!taken) return false;
  }
  return true;
}

// What follows a date: nothing, or a time of day set off by blanks or, in the ISO manner, a T.
std::optional<DateTime> WithTimeAfter(Cursor cursor, const Date& date) {
  if (!IsValid(date)) return std::nullopt;
  if (cursor.AtEnd()) return DateTime{date, {}};
  const bool setOff = cursor.TakeBlanks() || cursor.Take("T");
  const std::optional<TimeOfDay> time = setOff ? ParseTime(cursor.Rest()) : std::nullopt;
  if (!time) return std::nullopt;
  return DateTime{date, *time};
}

// One form of a date, from the start of the text to its end.
template <class Take>
std::optional<DateTime> Attempt(std::string_view text, Take take) {
  Cursor cursor(TrimBlanks(text));
  Date date;
  return take(cursor, date) ? WithTimeAfter(cursor, date) : std::nullopt;
}

}  // namespace

// Month first, as the program itself writes dates, before the user's own pattern: files must read the same on
// a machine where the day comes first.
std::optional<DateTime> ParseDate(std::string_view text, std::string_view shortDatePattern) {
  if (const auto found = Attempt(text, TakeMonthDayYear)) return found;
  if (!shortDatePattern.empty()) {
    const auto byPattern = [&](Cursor& cursor, Date& date) {
      return TakeByPattern(cursor, shortDatePattern, date);
    };
    if (const auto found = Attempt(text, byPattern)) return found;
  }
  if (const auto found = Attempt(text, TakeIso)) return found;
  return Attempt(text, TakeLong);
}

// The other way round: what somebody types follows the settings of their system.
std::optional<DateTime> ParseTypedDate(std::string_view text, std::string_view shortDatePattern) {
  const auto inOrder = [&](Cursor& cursor, Date& date) {
    return TakeInOrder(cursor, shortDatePattern, date);
  };
  const auto found = Attempt(text, inOrder);
  return found ? found : ParseDate(text, shortDatePattern);
}

std::optional<TimeOfDay> ParseTime(std::string_view text) {
  Cursor cursor(TrimBlanks(text));
  TimeOfDay time;
  if (!cursor.TakeNumber(1, 2, time.hour) || !cursor.Take(":") || !cursor.TakeNumber(2, 2, time.minute) ||
      (cursor.Take(":") && !cursor.TakeNumber(2, 2, time.second))) {
    return std::nullopt;
  }
  cursor.TakeBlanks();
  const bool morning = cursor.Take("AM");
  const bool afternoon = !morning && cursor.Take("PM");
  if (morning || afternoon) {
    if (time.hour > 12) return std::nullopt;  // hour 0 with AM: how older schedules write midnight
    time.hour = time.hour % 12 + (afternoon ? 12 : 0);
  }
  if (!cursor.AtEnd() || time.hour > 23 || time.minute > 59 || time.second > 59) return std::nullopt;
  return time;
}

}  // namespace sonaro
