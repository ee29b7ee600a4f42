// The broadcast events that are coming or beginning, out of the event tables. Owned by Application; reads the
// tables when told to and keeps what it read. Times are GMT; a stamp that is no time leaves its event out.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "base/Dates.h"
#include "directory/EventRecord.h"
#include "schedule/ScheduleCalendar.h"

namespace sonaro {

class EvList;
class ScheduleStore;

struct BroadcastEvent {
  DateTime gmt;
  EventRecord record;
};

class EventDiary {
 public:
  explicit EventDiary(EvList& events) : events_(events) {}

  // Reads both event sets anew; an event that stands in both counts once.
  void Reload();

  // The next events that have not begun, soonest first, at most `most`.
  std::vector<BroadcastEvent> Coming(const DateTime& gmtNow, std::size_t most) const;

  // When the next event of this name begins; letter case is ignored.
  std::optional<DateTime> Next(std::string_view name, const DateTime& gmtNow) const;

  // The live items whose event begins after `from` and not after `to`, and when. A live item waits for the
  // event of its name, on its station when it names one.
  std::vector<Occurrence> Starting(const ScheduleStore& store, const DateTime& from,
                                   const DateTime& to) const;

 private:
  // The first event that has not begun.
  std::vector<BroadcastEvent>::const_iterator After(const DateTime& gmtNow) const;

  EvList& events_;
  std::vector<BroadcastEvent> diary_;  // in order of time
};

}  // namespace sonaro
