// The rows of frmSched: every occupied slot of the schedule table, and the personal shows.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Dates.h"

namespace sonaro {

class ComingEvents;
class PersonalShows;
class ScheduleCalendar;
class ScheduleStore;
class ScheduleTexts;
struct NextNotice;

// The columns of both lists.
enum ScheduleColumn : int { kNextColumn, kNameColumn, kOftenColumn, kNoteColumn, kScheduleColumns };

struct ScheduleRow {
  std::string key;  // "S" + slot + TAB + the item's action field; "P" + position for a personal show
  std::optional<DateTime> at;  // when it comes next, local time; none when it does not come again
  // "Today 8:00 PM", "" without `at`; the name; "every Thursday at 8:00 PM"; "Notify me " and the note.
  std::array<std::string, kScheduleColumns> cells;
};

// In the order of the slots.
std::vector<ScheduleRow> ScheduleRows(const ScheduleStore& store, const ScheduleCalendar& calendar,
                                      const DateTime& now, const ScheduleTexts& texts);
// A show has the columns of its item in the schedule, the soonest one's if there are several; one without an
// item that comes again has the local time of its next broadcast.
std::vector<ScheduleRow> ShowRows(PersonalShows& shows, const ScheduleStore& store,
                                  const ScheduleCalendar& calendar, const ComingEvents& events,
                                  const DateTime& now, const ScheduleTexts& texts);
// By time, what does not come again last, or by the text of another column, letter case ignored.
void SortRows(std::vector<ScheduleRow>& rows, int column);

// The item that comes on next. Empty when none does.
NextNotice SoonestNotice(const ScheduleStore& store, const ScheduleCalendar& calendar, const DateTime& now,
                         const ScheduleTexts& texts);

// The slot or position that a row's key names; -1 when it names the other kind.
int SlotOfKey(std::string_view key);
int ShowOfKey(std::string_view key);

}  // namespace sonaro
