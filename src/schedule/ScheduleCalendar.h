// When the items of the schedule table come on: which of them matter within this or the next clock hour, when
// each comes next, and what came on between two moments. All times are the local wall clock.
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "base/Dates.h"
#include "schedule/ScheduleItem.h"

namespace sonaro {

class ScheduleStore;

struct Occurrence {
  std::size_t slot = 0;
  DateTime at;
  auto operator<=>(const Occurrence&) const = default;
};

// By time, then by slot.
bool ComesBefore(const Occurrence& a, const Occurrence& b);

class ScheduleCalendar {
 public:
  explicit ScheduleCalendar(const ScheduleStore& store) : store_(store) {}

  // The slots, in table order, of the items whose hour is the current one or the next and that are due on the
  // day tested: today, or tomorrow for an item of hour 0 asked about in hour 23. Live items never are.
  std::vector<std::size_t> DueThisOrNextHour(const DateTime& now) const;

  // The item's time of day; nothing when its text is no time or the slot is free.
  std::optional<TimeOfDay> TimeOf(std::size_t slot) const;

  // The first moment after `now` at which the item comes on; nothing for live and unreadable items and for a
  // date that has passed.
  std::optional<DateTime> Next(std::size_t slot, const DateTime& now) const;

  // The same for an item that is in no table yet.
  static std::optional<DateTime> NextOf(const ScheduleItem& item, const DateTime& now);

  // Everything that comes on after `from` and not after `to`, in order of time, then of slot.
  std::vector<Occurrence> Between(const DateTime& from, const DateTime& to) const;

 private:
  // Whether the item has all that says when it comes.
  static bool Comes(const ScheduleItem& item);
  static bool DueOn(const ScheduleItem& item, const Date& day);

  const ScheduleStore& store_;
};

}  // namespace sonaro
