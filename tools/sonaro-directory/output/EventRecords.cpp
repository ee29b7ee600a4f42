#include "output/DirectoryWriter.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <set>
#include <string>
#include <unordered_map>

#include "base/Numbers.h"
#include "stations/Addresses.h"
#include "stations/StationIds.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

// The current table covers a week from the day of the first event; the other takes what comes later. The tool
// does not look at the clock: the same input gives the same tables whenever it is run.
constexpr std::int64_t kCurrentDays = 7;

// Event lists name a station by its identifier or by its name. A number that is no identifier may still be a
// name ("1000"), so both are tried.
class StationFinder {
 public:
  explicit StationFinder(const Directory& directory) {
    for (const DirectoryStation& station : directory.stations) {
      byId_.emplace(station.id, &station);
      byName_.emplace(NameKey(station.source.name), &station);  // of several the best one
    }
  }

  const DirectoryStation* Find(const std::string& nameOrId) const {
    std::int32_t id = 0;
    if (ParseStationId(nameOrId, id)) {
      if (const auto found = byId_.find(id); found != byId_.end()) return found->second;
    }
    const auto found = byName_.find(NameKey(nameOrId));
    return found == byName_.end() ? nullptr : found->second;
  }

 private:
  std::unordered_map<std::int32_t, const DirectoryStation*> byId_;
  std::unordered_map<std::string, const DirectoryStation*> byName_;
};

// "YYYYMMDDhhmm" in GMT, the form in which the event tables hold a start; sorting the text sorts by time.
std::string GmtStamp(const DateTime& at) {
  std::array<char, 48> stamp{};
  std::snprintf(stamp.data(), stamp.size(), "%04d%02d%02d%02d%02d", at.date.year, at.date.month, at.date.day,
                at.time.hour, at.time.minute);
  return stamp.data();
}

EventRecord RecordOf(const SourceEvent& event, const DirectoryStation& station) {
  EventRecord record;
  record[EventField::Name] = event.name;
  record[EventField::StationId] = std::to_string(station.id);
  record[EventField::StationName] = station.source.name;
  record[EventField::StartGmt] = GmtStamp(event.start);
  record[EventField::Minutes] = std::to_string(event.minutes);
  record[EventField::Category] = event.category;
  record[EventField::WebAddress] = CheckWebSite(event.web).address;
  record[EventField::Description] = event.description;
  return record;
}

void SortById(std::vector<EventRecord>& records) {
  std::sort(records.begin(), records.end(),
            [](const EventRecord& a, const EventRecord& b) { return a.EventId < b.EventId; });
}

}  // namespace

EventRecords MakeEventRecords(const std::vector<SourceEvent>& events, const Directory& directory,
                              SkipLog& skips) {
  EventRecords records;
  if (events.empty()) return records;
  const auto first =
      std::min_element(events.begin(), events.end(),
                       [](const SourceEvent& a, const SourceEvent& b) { return a.start < b.start; });
  const std::int64_t lastCurrentDay = DaysFromEpoch(first->start.date) + kCurrentDays - 1;
  const StationFinder stations(directory);
  std::set<std::int32_t> taken;
  for (const SourceEvent& event : events) {
    const DirectoryStation* station = stations.Find(event.station);
    if (!station) {
      skips.Skip(event.place, event.station, "an event of a station that is not in the directory");
      continue;
    }
    EventRecord record = RecordOf(event, *station);
    // The identifier follows from start, station and name, so that an event keeps it when the directory is
    // made again. Of two with the same hash the later in the file moves on.
    record.EventId = FirstFreeId(IdNumber(record[EventField::StartGmt] + '\n' +
                                          record[EventField::StationId] + '\n' + NameKey(event.name)),
                                 [&](std::int32_t id) { return taken.count(id) == 0; });
    taken.insert(record.EventId);
    const bool current = DaysFromEpoch(event.start.date) <= lastCurrentDay;
    (current ? records.current : records.coming).push_back(std::move(record));
  }
  SortById(records.current);
  SortById(records.coming);
  return records;
}

}  // namespace sonaro
