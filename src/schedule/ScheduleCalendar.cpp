// When items come on. An item whose time makes no sense, or that has no valid date and needs one, never comes
// on. All times are local.
#include "schedule/ScheduleCalendar.h"

#include <algorithm>

#include "schedule/ScheduleStore.h"

namespace sonaro {

namespace {

constexpr int kLastHour = 23;

Date DayAfter(const Date& day) { return DateFromDays(DaysFromEpoch(day) + 1); }

}  // namespace

bool ComesBefore(const Occurrence& a, const Occurrence& b) {
  return a.at != b.at ? a.at < b.at : a.slot < b.slot;
}

// A weekly item whose day is misspelled has a time and no day: its day flags are all off, so DueOn says no.
bool ScheduleCalendar::Comes(const ScheduleItem& item) {
  return !item.Free() && item.time && (item.kind != ScheduleKind::Once || item.date);
}

bool ScheduleCalendar::DueOn(const ScheduleItem& item, const Date& day) {
  switch (item.kind) {
    case ScheduleKind::Daily:
    case ScheduleKind::Weekly:
      return item.days[static_cast<std::size_t>(Weekday(day))];
    case ScheduleKind::Once:
      return item.date == day;
    default:
      return false;
  }
}

// Two hours, so that an evaluation every half hour misses nothing between two of them. The hour after 23 is
// that of the next day.
std::vector<std::size_t> ScheduleCalendar::DueThisOrNextHour(const DateTime& now) const {
  const int nextHour = now.time.hour == kLastHour ? 0 : now.time.hour + 1;
  std::vector<std::size_t> due;
  for (std::size_t slot = 0; slot < store_.SlotCount(); ++slot) {
    const ScheduleItem& item = store_.Item(slot);
    if (!Comes(item) || (item.time->hour != now.time.hour && item.time->hour != nextHour)) continue;
    const bool afterMidnight = now.time.hour == kLastHour && item.time->hour == 0;
    if (DueOn(item, afterMidnight ? DayAfter(now.date) : now.date)) due.push_back(slot);
  }
  return due;
}

std::optional<TimeOfDay> ScheduleCalendar::TimeOf(std::size_t slot) const {
  const bool comes = slot < store_.SlotCount() && Comes(store_.Item(slot));
  return comes ? store_.Item(slot).time : std::nullopt;
}

std::optional<DateTime> ScheduleCalendar::Next(std::size_t slot, const DateTime& now) const {
  return slot < store_.SlotCount() ? NextOf(store_.Item(slot), now) : std::nullopt;
}

std::optional<DateTime> ScheduleCalendar::NextOf(const ScheduleItem& item, const DateTime& now) {
  if (!Comes(item)) return std::nullopt;
  if (item.kind == ScheduleKind::Once) {
    const DateTime at{*item.date, *item.time};
    return at > now ? std::optional(at) : std::nullopt;
  }
  Date day = now.date;
  // Eight days: an item that came on earlier today may be next in a week.
  for (int ahead = 0; ahead <= kDaysInWeek; ++ahead, day = DayAfter(day)) {
    const DateTime at{day, *item.time};
    if (at > now && DueOn(item, day)) return at;
  }
  return std::nullopt;
}

std::vector<Occurrence> ScheduleCalendar::Between(const DateTime& from, const DateTime& to) const {
  std::vector<Occurrence> found;
  // Day by day and not by arithmetic: the caller asks for a day at most, and flags have no period.
  for (std::size_t slot = 0; slot < store_.SlotCount(); ++slot) {
    const ScheduleItem& item = store_.Item(slot);
    if (!Comes(item)) continue;
    for (Date day = from.date; day <= to.date; day = DayAfter(day)) {
      const DateTime at{day, *item.time};
      if (at > from && at <= to && DueOn(item, day)) found.push_back({slot, at});
    }
  }
  std::sort(found.begin(), found.end(), ComesBefore);
  return found;
}

}  // namespace sonaro
