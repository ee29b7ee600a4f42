// When the items of the schedule table come on: which of them matter within this or the next clock hour, when
// each comes next, and what came on between two moments. All times are the local wall clock. Reads the items'
// texts once for each generation of the table, since the evaluator asks every half hour and the list on show
// for every row.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
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
  ScheduleCalendar(const ScheduleStore& store, std::string shortDatePattern);

  // The slots, in table order, of the items whose hour is the current one or the next and that are due on the
  // day tested: today, or tomorrow for an item of hour 0 asked about in hour 23. Live items never are.
  std::vector<std::size_t> DueThisOrNextHour(const DateTime& now);

  // The item's time of day; nothing when its text is no time or the slot is free.
  std::optional<TimeOfDay> TimeOf(std::size_t slot);

  // The first moment after `now` at which the item comes on; nothing for live and unreadable items and for a
  // date that has passed.
  std::optional<DateTime> Next(std::size_t slot, const DateTime& now);

  // The same for an item that is in no table yet.
  static std::optional<DateTime> NextOf(const ScheduleItem& item, const DateTime& now,
                                        std::string_view shortDatePattern);

  // Everything that comes on after `from` and not after `to`, in order of time, then of slot.
  std::vector<Occurrence> Between(const DateTime& from, const DateTime& to);

 private:
  struct Entry {
    std::size_t slot = 0;
    ScheduleKind kind = ScheduleKind::Unknown;
    TimeOfDay time;
    Date date;            // once
    DayFlags days{};      // daily
    std::string weekday;  // weekly: the full English name, "" when the text is none
  };

  void Refresh();
  static std::optional<Entry> Read(std::size_t slot, const ScheduleItem& item,
                                   std::string_view shortDatePattern);
  static std::optional<DateTime> NextOfEntry(const Entry& entry, const DateTime& now);
  static bool DueOn(const Entry& entry, const Date& day);
  static bool DueAfterMidnight(const Entry& entry, const Date& today);
  const Entry* Find(std::size_t slot);

  const ScheduleStore& store_;
  std::string shortDatePattern_;
  std::vector<Entry> entries_;  // items with a time, in slot order
  std::optional<std::uint64_t> generation_;
};

}  // namespace sonaro
