#include <string>

#include "base/Dates.h"
#include "fuzz/Targets.h"
#include "model/SkipLog.h"
#include "readers/ReadSource.h"
#include "readers/Readers.h"
#include "stations/BuildDirectory.h"

namespace sonaro {
namespace {

// What stands in a field of the list that is written.
void RequireOneLine(std::string_view text) {
  Require(text.find_first_of(std::string_view("\0\t\r\n", 4)) == std::string_view::npos, "one plain line");
}

}  // namespace

// A station list in any format that the directory tool reads, and the same bytes as a list of events.
void FuzzToolReaders(std::string_view input) {
  SkipLog skips(nullptr);
  const SourceResult result = ReadSourceBytes("list", std::string(input), skips);
  Require((result.format == SourceFormat::NotAList) == !result.failure.empty(), "a list, or why it is none");
  MakeLogs logs{SkipLog(nullptr), SkipLog(nullptr)};
  for (SourceStation station : result.stations) {
    if (!CleanStation(station, logs)) continue;
    Require(!station.name.empty() && !station.addresses.empty(), "a station has a name and an address");
    for (const std::string& text : station.addresses) RequireOneLine(text);
    for (const std::string& text : station.tags) RequireOneLine(text);
    for (const std::string& text : {station.name, station.webSite, station.country, station.region,
                                    station.language, station.codec, station.slogan})
      RequireOneLine(text);
  }
  for (const SourceEvent& event : ReadEvents("events", input, skips)) {
    Require(!event.name.empty() && !event.station.empty(), "an event has a name and a station");
    Require(DateFromDays(DaysFromEpoch(event.start.date)) == event.start.date, "a day that there is");
  }
}

}  // namespace sonaro
