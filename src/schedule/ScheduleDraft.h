// The working copy of one schedule item that frmSchedChange edits, and the partner that turns its controls
// into an item and back. Saves nothing itself.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Dates.h"
#include "schedule/ScheduleItem.h"

namespace sonaro {

struct EventRecord;
class Clock;
class ScheduleTexts;

enum class DraftMode { AddMain, AddLive, Modify };

// Why a draft cannot be saved, in the order in which it is checked.
enum class DraftFault { None, NoStation, NoDate, NoDay, Passed };

struct ScheduleDraft {
  DraftMode mode = DraftMode::AddMain;
  ScheduleKind kind = ScheduleKind::Once;
  TimeOfDay time{20, 0, 0};
  std::string dateText;  // as the date box holds it: as the user types dates, or in the long form
  int weekday = 0;       // 0 = Monday
  DayFlags days{true, true, true, true, true, true, true};
  std::string note;  // lines separated by CR LF
  ItemName name;     // name.name is empty while no station is chosen
  StationKey station;
  bool openWebSite = false;

  // A new item for a station, at the next full hour.
  static ScheduleDraft ForStation(const StationKey& station, std::string_view stationName,
                                  const DateTime& now);
  // An event of the directory: once, at its start on the local clock.
  static ScheduleDraft ForEvent(const EventRecord& event, Clock& clock);
  static ScheduleDraft FromItem(const ScheduleItem& item);

  // "Station To Schedule: Radio", followed by " (Event)" for an event.
  std::string StationShown(const ScheduleTexts& texts) const;
  // What is missing: never Passed.
  DraftFault Missing(std::string_view shortDatePattern) const;
  // The same, and a single notice must lie after `now`, local time.
  DraftFault Fault(std::string_view shortDatePattern, const DateTime& now) const;
  // Only for a draft that misses nothing.
  ScheduleFields ToFields(ClockStyle style, std::string_view shortDatePattern) const;

  // "Every Thursday at 8:00 PM"; "" while something is missing.
  std::string Summary(const ScheduleTexts& texts, std::string_view shortDatePattern) const;
};

// The lists of the dialog's time boxes.
std::vector<std::string> HourChoices(ClockStyle style);  // "1" to "12", or "0" to "23"
std::vector<std::string> MinuteChoices();                // "00" to "59"
// Positions in the lists for a time of day, and back. `half`: 0 = PM, 1 = AM, the order of the box.
struct TimeChoice {
  int hour = 0;
  int minute = 0;
  int half = 0;
};
TimeChoice ChoiceOf(const TimeOfDay& time, ClockStyle style);
TimeOfDay TimeOfChoice(const TimeChoice& choice, ClockStyle style);

}  // namespace sonaro
