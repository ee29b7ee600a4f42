// The rows of frmSched: every occupied slot of the schedule table, soonest first, and the personal shows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Dates.h"

namespace sonaro {

class PersonalShows;
class ScheduleCalendar;
class ScheduleStore;

struct ScheduleRow {
  std::string key;   // "S" + slot + TAB + the item's action field; "P" + position for a personal show
  std::string next;  // "Today 8:00 PM"; "" when it does not come again
  std::string name;
  std::string schedule;  // "every Thursday at 8:00 PM"
  std::string action;    // "Notify me " and the note
};

std::vector<ScheduleRow> ScheduleRows(const ScheduleStore& store, ScheduleCalendar& calendar,
                                      const DateTime& now, ClockStyle style);
std::vector<ScheduleRow> ShowRows(PersonalShows& shows);

// The slot or position that a row's key names; -1 when it names the other kind.
int SlotOfKey(std::string_view key);
int ShowOfKey(std::string_view key);

}  // namespace sonaro
