// An iCalendar file (RFC 5545) of the whole schedule. Times are written without a zone, as "floating" local
// times: an item at eight comes on at eight by the clock of whoever opens the file, as it does here.
#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>
#include <set>
#include <string_view>

#include "base/Text.h"
#include "base/crypto/Signing.h"
#include "schedule/ScheduleItem.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTexts.h"

namespace sonaro {

namespace {

constexpr std::size_t kLineBytes = 75;  // RFC 5545, 3.1: without the line break
constexpr std::array<std::string_view, 7> kDayCodes = {"MO", "TU", "WE", "TH", "FR", "SA", "SU"};

std::string Stamp(const DateTime& at) {
  char text[32];
  std::snprintf(text, sizeof text, "%04d%02d%02dT%02d%02d%02d", at.date.year, at.date.month, at.date.day,
                at.time.hour, at.time.minute, at.time.second);
  return text;
}

// RFC 5545, 3.3.11: the characters that a text value escapes.
std::string Escaped(std::string_view text) {
  std::string escaped;
  for (char c : text) {
    if (c == '\n') escaped += "\\n";
    if (c == '\n' || c == '\r') continue;
    if (c == '\\' || c == ';' || c == ',') escaped += '\\';
    escaped += c;
  }
  return escaped;
}

// Appends a content line, folded so that no line is too long and no character is cut in two. A control
// character, which might end the line, becomes a blank whatever value it stands in.
void AddLine(std::string& file, std::string content) {
  const auto control = [](unsigned char c) { return (c < 0x20 && c != '\t') || c == 0x7F; };
  std::replace_if(content.begin(), content.end(), control, ' ');
  std::string_view line = content;
  std::string_view piece = TruncateUtf8(line, kLineBytes);
  file.append(piece).append("\r\n");
  for (line.remove_prefix(piece.size()); !line.empty(); line.remove_prefix(piece.size())) {
    // The blank that marks a continued line counts as well.
    piece = TruncateUtf8(line, kLineBytes - 1);
    if (piece.empty()) piece = line.substr(0, 1);  // bytes that are no UTF-8
    file.append(" ").append(piece).append("\r\n");
  }
}

// A repetition must begin on one of its days, or calendars show it on its first day besides.
Date FirstDayFrom(Date day, const DayFlags& days) {
  for (int tried = 0; tried < 7 && !days[static_cast<std::size_t>(Weekday(day))]; ++tried) {
    day = DateFromDays(DaysFromEpoch(day) + 1);
  }
  return day;
}

std::string RepeatRule(const DayFlags& days) {
  std::string codes;
  for (std::size_t day = 0; day < days.size(); ++day) {
    if (!days[day]) continue;
    if (!codes.empty()) codes += ',';
    codes += kDayCodes[day];
  }
  return "RRULE:FREQ=WEEKLY;BYDAY=" + codes;
}

struct Times {
  DateTime start;
  std::string rule;  // "" for an item that comes on once
};

// A repetition has no end: it is in the schedule until the user deletes it.
std::optional<Times> TimesOf(const ScheduleItem& item, const Date& today) {
  if (!item.time) return std::nullopt;
  switch (item.kind) {
    case ScheduleKind::Once:
      return item.date ? std::optional(Times{{*item.date, *item.time}, {}}) : std::nullopt;
    case ScheduleKind::Daily:
    case ScheduleKind::Weekly:
      if (item.days == DayFlags{}) return std::nullopt;
      return Times{{FirstDayFrom(today, item.days), *item.time}, RepeatRule(item.days)};
    default:
      return std::nullopt;
  }
}

// The same for one item in every export, wherever it stands in the schedule and whatever its note says, so
// that a calendar knows it again. `earlier`: the identities of the items in front, since two may be alike.
std::string IdentityOf(const ScheduleFields& item, std::set<std::string>& earlier) {
  constexpr std::size_t kDigits = 32;
  std::string text;
  for (const std::string* field :
       {&item.name, &item.action, &item.date, &item.time, &item.weekday, &item.kind}) {
    text += *field + '\t';
  }
  std::string identity;
  do {
    identity = Sha256Hex(text).substr(0, kDigits);
    text += '\t';
  } while (!earlier.insert(identity).second);
  return identity;
}

// The alarm is part of each entry: calendars that import an entry without one do not remind.
void AddEntry(std::string& file, const std::string& identity, const ScheduleItem& item, const Times& times,
              const DateTime& gmtNow, const ScheduleTexts& texts) {
  const std::string name = Escaped(texts.Name(item.name));
  AddLine(file, "BEGIN:VEVENT");
  AddLine(file, "UID:" + identity + "@sonaro.example");
  AddLine(file, "DTSTAMP:" + Stamp(gmtNow) + "Z");
  AddLine(file, "DTSTART:" + Stamp(times.start));
  if (!times.rule.empty()) AddLine(file, times.rule);
  AddLine(file, "SUMMARY:" + name);
  if (!item.note.empty()) AddLine(file, "DESCRIPTION:" + Escaped(item.note));
  const std::string webSite = item.name.Address();
  if (!webSite.empty()) AddLine(file, "URL:" + webSite);  // an address is not escaped
  AddLine(file, "BEGIN:VALARM");
  AddLine(file, "ACTION:DISPLAY");
  AddLine(file, "TRIGGER:PT0S");
  AddLine(file, "DESCRIPTION:" + name);
  AddLine(file, "END:VALARM");
  AddLine(file, "END:VEVENT");
}

}  // namespace

std::string ExportCalendar(const ScheduleStore& store, const Date& today, const DateTime& gmtNow,
                           const ScheduleTexts& texts) {
  std::string file;
  AddLine(file, "BEGIN:VCALENDAR");
  AddLine(file, "VERSION:2.0");
  AddLine(file, "PRODID:-//Sonaro//Schedule//EN");
  std::set<std::string> identities;
  for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) {
    const ScheduleItem& item = store.Item(slot);
    if (item.Free()) continue;
    if (const auto times = TimesOf(item, today)) {
      AddEntry(file, IdentityOf(item.fields, identities), item, *times, gmtNow, texts);
    }
  }
  AddLine(file, "END:VCALENDAR");
  return file;
}

}  // namespace sonaro
