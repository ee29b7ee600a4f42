// One scheduled notification: the texts that stand on its line of "\Sched.snr", and the values that they are
// read to when the item comes into the table. Knows how the texts encode kinds, day flags and names; knows no
// clock and no file.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "base/Dates.h"
#include "stations/StationKey.h"

namespace sonaro {

enum class ScheduleKind { Once, Daily, Weekly, Live, Unknown };

// Monday first, as everywhere in the schedule.
using DayFlags = std::array<bool, 7>;

// As they stand on the line.
struct ScheduleFields {
  std::string name;     // empty: the slot is free. See ItemName for what an event's name holds
  std::string date;     // "m/d/yyyy", for "once"
  std::string time;     // "h:mm AMPM" or, with the 24-hour clock, "h:mm"
  std::string weekday;  // English day name, for "weekly"
  std::string kind;     // "once", "weekly", "live", "daily", or "daily" and seven day flags
  std::string note;     // the rest of the line, tabs included
  std::string action;   // first letter 'W': open the web site; then the station key, see ActionText

  bool operator==(const ScheduleFields&) const = default;
};

// Letter case ignored; daily when the first five characters are "daily".
ScheduleKind KindOf(std::string_view kind);

// The days that a daily kind names: all of them when the text holds no "|".
DayFlags DaysOf(std::string_view dailyKind);
// "daily" for all seven days, else "daily|Mon=-1|Tue=0|...|Sun=0|". Thursday's key is "Thr".
std::string DailyKind(const DayFlags& days);
// "Mon", "Tue", "Wed", "Thr", "Fri", "Sat", "Sun".
std::string_view DayKey(int weekday);

// What a name field holds: "event|||Z|||station>>>>>>web address", each later part optional.
struct ItemName {
  std::string name;     // the event's name, or the station's when there is no event
  std::string station;  // only for an event
  std::string webSite;

  bool IsEvent() const { return !station.empty(); }
  // As it is opened, beginning with "http"; "" when there is none.
  std::string Address() const;
};
ItemName SplitItemName(std::string_view nameField);
std::string JoinItemName(const ItemName& name);

// A note as the user writes it, with lines separated by CR LF, in one line of the file, and back.
std::string NoteForFile(std::string_view note);
std::string NoteFromFile(std::string_view stored);

// The action field: the letter ('W' web site, 'N' notice) followed by the station's row key ("S1204", "P3"),
// or by nothing.
std::string ActionText(bool openWebSite, const StationKey& station);

// An item of the table. A text that is not what its field is for gives no value, and its bytes stay in
// `fields`, which alone are written.
struct ScheduleItem {
  ScheduleFields fields;
  ItemName name;
  ScheduleKind kind = ScheduleKind::Unknown;
  std::optional<TimeOfDay> time;
  std::optional<Date> date;
  std::optional<int> weekday;  // 0 = Monday
  DayFlags days{};             // on which it comes: of daily and weekly items
  std::string note;            // lines separated by CR LF
  bool opensWebSite = false;
  StationKey station;

  ScheduleItem() = default;
  // Dates are read as the user writes them.
  ScheduleItem(ScheduleFields texts, std::string_view shortDatePattern);

  bool Free() const { return fields.name.empty(); }
};

}  // namespace sonaro
