// The events of two tables, the current one and the one that an update has brought for the days after it, as
// one list. It is read anew after every update only: the pages and the evaluator ask it every minute.
#include "schedule/EventDiary.h"

#include <algorithm>

#include "base/Text.h"
#include "directory/EvList.h"
#include "schedule/ScheduleStore.h"
#include "schedule/TimeZone.h"

namespace sonaro {

namespace {

// An item that names a station waits for the event on that station, another for the event wherever it is.
bool WaitsFor(const ScheduleItem& item, const EventRecord& event) {
  const ItemName& name = item.name;
  if (!EqualIgnoringCase(name.name, event[EventField::Name])) return false;
  return !name.IsEvent() || EqualIgnoringCase(name.station, event[EventField::StationName]);
}

}  // namespace

void EventDiary::Reload() {
  diary_.clear();
  for (EventSet set : {EventSet::Current, EventSet::Coming}) {
    for (EventRecord& event : events_.AllEvents(set)) {
      if (const auto gmt = ParseServiceTime(event[EventField::StartGmt])) {
        diary_.push_back({*gmt, std::move(event)});
      }
    }
  }
  const auto before = [](const BroadcastEvent& a, const BroadcastEvent& b) {
    return a.gmt != b.gmt ? a.gmt < b.gmt : a.record.EventId < b.record.EventId;
  };
  std::sort(diary_.begin(), diary_.end(), before);
  const auto same = [](const BroadcastEvent& a, const BroadcastEvent& b) {
    return a.gmt == b.gmt && a.record.EventId == b.record.EventId;
  };
  // An event may be in both tables.
  diary_.erase(std::unique(diary_.begin(), diary_.end(), same), diary_.end());
}

// The diary is sorted, so what is coming is its end.
std::vector<BroadcastEvent>::const_iterator EventDiary::After(const DateTime& gmtNow) const {
  return std::upper_bound(diary_.begin(), diary_.end(), gmtNow,
                          [](const DateTime& now, const BroadcastEvent& event) { return now < event.gmt; });
}

std::vector<BroadcastEvent> EventDiary::Coming(const DateTime& gmtNow, std::size_t most) const {
  const auto first = After(gmtNow);
  const auto count = std::min(most, static_cast<std::size_t>(diary_.end() - first));
  return {first, first + static_cast<std::ptrdiff_t>(count)};
}

// By name alone, since the list of personal shows knows no stations.
std::optional<DateTime> EventDiary::Next(std::string_view name, const DateTime& gmtNow) const {
  const auto found = std::find_if(After(gmtNow), diary_.end(), [&](const BroadcastEvent& event) {
    return EqualIgnoringCase(event.record[EventField::Name], name);
  });
  return found == diary_.end() ? std::nullopt : std::optional(found->gmt);
}

std::vector<Occurrence> EventDiary::Starting(const ScheduleStore& store, const DateTime& from,
                                             const DateTime& to) const {
  std::vector<Occurrence> starting;
  for (const BroadcastEvent& event : diary_) {
    if (event.gmt <= from || event.gmt > to) continue;
    for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) {
      const ScheduleItem& item = store.Item(slot);
      if (item.kind == ScheduleKind::Live && WaitsFor(item, event.record)) {
        starting.push_back({slot, event.gmt});
      }
    }
  }
  return starting;
}

}  // namespace sonaro
