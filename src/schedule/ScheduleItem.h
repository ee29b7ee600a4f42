// One scheduled notification: eight text fields as they stand in the schedule table and, all but the last, on
// a line of "\Sched.snr". Knows how the fields encode kinds, day flags and names; knows no clock and no file.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Dates.h"

namespace sonaro {

enum class ScheduleKind { Once, Daily, Weekly, Live, Unknown };

// Monday first, as everywhere in the schedule.
using DayFlags = std::array<bool, 7>;

struct ScheduleItem {
  std::string name;     // empty: the slot is free. See ItemName for what an event's name holds
  std::string date;     // "m/d/yyyy", for "once"
  std::string time;     // "h:mm AMPM" or, with the 24-hour clock, "h:mm"
  std::string weekday;  // English day name, for "weekly"
  std::string kind;     // "once", "weekly", "live", "daily", or "daily" and seven day flags
  std::string note;     // the rest of the line, tabs included
  std::string action;   // first letter 'W': open the web site; then the station key, see ActionText
  std::string spare;    // never in the file

  bool Free() const { return name.empty(); }
  bool operator==(const ScheduleItem&) const = default;
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
  // As shown to the user: "event on station" or the name.
  std::string Shown() const;
};
ItemName SplitItemName(std::string_view nameField);
std::string JoinItemName(const ItemName& name);
// The web site of a name field as it is opened, beginning with "http"; "" when there is none.
std::string WebSiteOf(std::string_view nameField);

// A note as the user writes it, with lines separated by CR LF, in one line of the file, and back.
std::string NoteForFile(std::string_view note);
std::string NoteFromFile(std::string_view stored);

// The action field: the letter ('W' web site, 'N' notice) followed by the station's key ("S1204", "P3", or
// "").
std::string ActionText(bool openWebSite, std::string_view stationKey);
bool OpensWebSite(std::string_view action);
std::string_view StationKeyOf(std::string_view action);

}  // namespace sonaro
