// An event's times are GMT in the guide; the user sees, and schedules, his own wall clock. The offset in
// force now is taken for all of them, so an event beyond the next change of summer time is shown an hour off
// until that day.
#include "schedule/ComingEvents.h"

#include <algorithm>

#include "platform/Clock.h"
#include "schedule/PersonalShows.h"
#include "schedule/ScheduleStore.h"
#include "schedule/ScheduleTexts.h"
#include "schedule/TimeZone.h"
#include "stations/StationSource.h"

namespace sonaro {

namespace {

// The show of an event as the list of the personal shows keeps it: what stands before the first capital X
// tells shows apart, and a number holds none.
std::string ShowKeyOf(const EventRecord& event) {
  return std::to_string(event.EventId) + "X" + event[EventField::Name];
}

EventKey KeyOf(const BroadcastEvent& event) { return {event.record.EventId, event.gmt}; }

}  // namespace

std::vector<EventLine> ComingEvents::Lines() const {
  const auto& [diary, store, shows, source, clock, texts] = dependencies_;
  const DateTime now = clock.LocalNow();
  const std::int32_t offset = GetZoneOffset(clock);
  // Read once: each call looks at the file.
  const std::vector<std::string> personal = shows.List();
  std::vector<EventLine> lines;
  for (const BroadcastEvent& event : diary.Coming(clock.GmtNow(), kMaxEvents)) {
    const DateTime local = AddSeconds(event.gmt, offset);
    const StationKey station = StationKey::FromToken(event.record[EventField::StationId]);
    // The events may come from a newer guide than the stations.
    const bool known = station && !source.NameOf(station).empty();
    lines.push_back({.event = KeyOf(event),
                     .when = texts.Next(local, now),
                     .name = event.record[EventField::Name],
                     .station = event.record[EventField::StationName],
                     .key = known ? station : StationKey(),
                     .noticed = IsNoticed(event.record, local),
                     .personalShow = PersonalShows::Holds(personal, ShowKeyOf(event.record))});
  }
  return lines;
}

// An item of its day, or one that comes again and again, under its name and station.
bool ComingEvents::IsNoticed(const EventRecord& event, const DateTime& local) const {
  const ScheduleStore& store = dependencies_.store;
  for (std::size_t slot = 0; slot < store.SlotCount(); ++slot) {
    const ScheduleItem& item = store.Item(slot);
    if (item.Free() || (item.kind == ScheduleKind::Once && item.date != local.date)) continue;
    if (item.name.name == event[EventField::Name] && item.name.station == event[EventField::StationName])
      return true;
  }
  return false;
}

// Among what is coming only: nothing can be done with an event that has begun, and its line is about to go.
std::optional<BroadcastEvent> ComingEvents::Find(const EventKey& event) const {
  const auto coming = dependencies_.diary.Coming(dependencies_.clock.GmtNow(), kMaxEvents);
  const auto found = std::find_if(coming.begin(), coming.end(),
                                  [&](const BroadcastEvent& other) { return KeyOf(other) == event; });
  return found == coming.end() ? std::nullopt : std::optional(*found);
}

std::optional<ScheduleDraft> ComingEvents::DraftFor(const EventKey& event) const {
  const std::optional<BroadcastEvent> found = Find(event);
  return found ? std::optional(ScheduleDraft::ForEvent(found->record, dependencies_.clock)) : std::nullopt;
}

void ComingEvents::ChangePersonalShow(const EventKey& event) {
  const std::optional<BroadcastEvent> found = Find(event);
  if (!found) return;
  const std::string show = ShowKeyOf(found->record);
  PersonalShows& shows = dependencies_.shows;
  if (PersonalShows::Holds(shows.List(), show)) {
    shows.RemovePersonalShow(show);
  } else {
    shows.AddPersonalShow(show);
  }
}

std::optional<DateTime> ComingEvents::NextBroadcast(std::string_view show) const {
  Clock& clock = dependencies_.clock;
  const std::optional<DateTime> gmt = dependencies_.diary.Next(show, clock.GmtNow());
  return gmt ? std::optional(AddSeconds(*gmt, GetZoneOffset(clock))) : std::nullopt;
}

}  // namespace sonaro
