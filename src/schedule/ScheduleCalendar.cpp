#include "schedule/ScheduleCalendar.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "base/Text.h"
#include "schedule/ScheduleStore.h"

namespace sonaro {

namespace {

constexpr int kLastHour = 23;

// From an item's weekday to the day before it. The last row is misspelled and so never names a day; it does
// no harm and stays, since schedules are shared with programs that have it.
constexpr std::array<std::pair<std::string_view, std::string_view>, 8> kDayBefore = {{
    {"Friday", "Thursday"},
    {"Thursday", "Wednesday"},
    {"Wednesday", "Tuesday"},
    {"Tuesday", "Monday"},
    {"Monday", "Sunday"},
    {"Sunday", "Saturday"},
    {"Saturday", "Friday"},
    {"Friday", "Thusday"},
}};

// The full name of one of the seven days, letter case mended; "" for any other text.
std::string DayNamed(std::string_view text) {
  for (int day = 0; day < kDaysInWeek; ++day) {
    if (EqualIgnoringCase(EnglishDayName(day), text)) return std::string(EnglishDayName(day));
  }
  return {};
}

Date DayAfter(const Date& day) { return DateFromDays(DaysFromEpoch(day) + 1); }

}  // namespace

bool ComesBefore(const Occurrence& a, const Occurrence& b) {
  return a.at != b.at ? a.at < b.at : a.slot < b.slot;
}

ScheduleCalendar::ScheduleCalendar(const ScheduleStore& store, std::string shortDatePattern)
    : store_(store), shortDatePattern_(std::move(shortDatePattern)) {}

void ScheduleCalendar::Refresh() {
  if (generation_ == store_.Generation()) return;
  generation_ = store_.Generation();
  entries_.clear();
  for (std::size_t slot = 0; slot < store_.SlotCount(); ++slot) {
    if (std::optional<Entry> entry = Read(slot, store_.Item(slot), shortDatePattern_)) {
      entries_.push_back(std::move(*entry));
    }
  }
}

std::optional<ScheduleCalendar::Entry> ScheduleCalendar::Read(std::size_t slot, const ScheduleItem& item,
                                                              std::string_view shortDatePattern) {
  const std::optional<TimeOfDay> time = item.Free() ? std::nullopt : ParseTime(item.time);
  if (!time) return std::nullopt;
  Entry entry{slot, KindOf(item.kind), *time, {}, {}, {}};
  if (entry.kind == ScheduleKind::Once) {
    const std::optional<DateTime> date = ParseDate(item.date, shortDatePattern);
    if (!date) return std::nullopt;
    entry.date = date->date;
  }
  if (entry.kind == ScheduleKind::Daily) entry.days = DaysOf(item.kind);
  if (entry.kind == ScheduleKind::Weekly) entry.weekday = DayNamed(item.weekday);
  return entry;
}

bool ScheduleCalendar::DueOn(const Entry& entry, const Date& day) {
  switch (entry.kind) {
    case ScheduleKind::Daily:
      return entry.days[static_cast<std::size_t>(Weekday(day))];
    case ScheduleKind::Weekly:
      return entry.weekday == EnglishDayName(Weekday(day));
    case ScheduleKind::Once:
      return entry.date == day;
    default:
      return false;
  }
}

bool ScheduleCalendar::DueAfterMidnight(const Entry& entry, const Date& today) {
  if (entry.kind != ScheduleKind::Weekly) return DueOn(entry, DayAfter(today));
  const std::string_view name = EnglishDayName(Weekday(today));
  return std::any_of(kDayBefore.begin(), kDayBefore.end(),
                     [&](const auto& row) { return row.first == entry.weekday && row.second == name; });
}

std::vector<std::size_t> ScheduleCalendar::DueThisOrNextHour(const DateTime& now) {
  Refresh();
  const int nextHour = now.time.hour == kLastHour ? 0 : now.time.hour + 1;
  std::vector<std::size_t> due;
  for (const Entry& entry : entries_) {
    if (entry.time.hour != now.time.hour && entry.time.hour != nextHour) continue;
    const bool afterMidnight = now.time.hour == kLastHour && entry.time.hour == 0;
    if (afterMidnight ? DueAfterMidnight(entry, now.date) : DueOn(entry, now.date)) due.push_back(entry.slot);
  }
  return due;
}

const ScheduleCalendar::Entry* ScheduleCalendar::Find(std::size_t slot) {
  Refresh();
  const auto found =
      std::lower_bound(entries_.begin(), entries_.end(), slot,
                       [](const Entry& entry, std::size_t wanted) { return entry.slot < wanted; });
  return found != entries_.end() && found->slot == slot ? &*found : nullptr;
}

std::optional<TimeOfDay> ScheduleCalendar::TimeOf(std::size_t slot) {
  const Entry* entry = Find(slot);
  return entry ? std::optional(entry->time) : std::nullopt;
}

std::optional<DateTime> ScheduleCalendar::Next(std::size_t slot, const DateTime& now) {
  const Entry* entry = Find(slot);
  return entry ? NextOfEntry(*entry, now) : std::nullopt;
}

std::optional<DateTime> ScheduleCalendar::NextOf(const ScheduleItem& item, const DateTime& now,
                                                 std::string_view shortDatePattern) {
  const std::optional<Entry> entry = Read(0, item, shortDatePattern);
  return entry ? NextOfEntry(*entry, now) : std::nullopt;
}

std::optional<DateTime> ScheduleCalendar::NextOfEntry(const Entry& entry, const DateTime& now) {
  if (entry.kind == ScheduleKind::Once) {
    const DateTime at{entry.date, entry.time};
    return at > now ? std::optional(at) : std::nullopt;
  }
  Date day = now.date;
  for (int ahead = 0; ahead <= kDaysInWeek; ++ahead, day = DayAfter(day)) {
    const DateTime at{day, entry.time};
    if (at > now && DueOn(entry, day)) return at;
  }
  return std::nullopt;
}

std::vector<Occurrence> ScheduleCalendar::Between(const DateTime& from, const DateTime& to) {
  Refresh();
  std::vector<Occurrence> found;
  for (Date day = from.date; day <= to.date; day = DayAfter(day)) {
    for (const Entry& entry : entries_) {
      const DateTime at{day, entry.time};
      if (at > from && at <= to && DueOn(entry, day)) found.push_back({entry.slot, at});
    }
  }
  std::sort(found.begin(), found.end(), ComesBefore);
  return found;
}

}  // namespace sonaro
