// The broadcast events that are coming, as the page of the coming events shows them: in local time, with what
// the schedule and the personal shows know of each. Owned by Application; keeps nothing, so that an event is
// always looked up by its key in what the diary holds now.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "schedule/EventDiary.h"
#include "schedule/ScheduleDraft.h"
#include "stations/Commands.h"

namespace sonaro {

class PersonalShows;
class ScheduleTexts;
class StationSource;

class ComingEvents {
 public:
  // More lines than anybody reads would only make the page slow.
  static constexpr std::size_t kMaxEvents = 200;

  struct Dependencies {
    const EventDiary& diary;
    const ScheduleStore& store;
    PersonalShows& shows;
    const StationSource& source;
    Clock& clock;
    const ScheduleTexts& texts;
  };

  explicit ComingEvents(const Dependencies& dependencies) : dependencies_(dependencies) {}

  // What has not begun, soonest first, at most kMaxEvents.
  std::vector<EventLine> Lines() const;
  // An item that would tell of the event; nothing when it has begun or is gone.
  std::optional<ScheduleDraft> DraftFor(const EventKey& event) const;
  // Adds the event to the personal shows, or removes it when it is one; either tells the user.
  void ChangePersonalShow(const EventKey& event);
  // The local time at which the next event of this name begins; letter case is ignored.
  std::optional<DateTime> NextBroadcast(std::string_view show) const;

 private:
  std::optional<BroadcastEvent> Find(const EventKey& event) const;
  bool IsNoticed(const EventRecord& event, const DateTime& local) const;

  Dependencies dependencies_;
};

}  // namespace sonaro
