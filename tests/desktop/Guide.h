// The directory as a desktop test sees it on disk: to know what the program must have done.
#pragma once

#include <string>
#include <vector>

#include "directory/EventRecord.h"
#include "directory/StationRecord.h"

namespace sonaro::desktop {

// The station of the data folder, its links and web site unscrambled; empty when there is none.
StationRecord StationIn(const std::string& folder, const std::string& identifier);
// A line of "Station.snr" for a station with this link text and web site (scrambled here).
std::string StationLine(int identifier, const std::string& name, const std::string& linkText,
                        const std::string& webSite = "");
// An event of station 1 at a GMT stamp ("200505052215").
EventRecord Event(int id, const std::string& name, const std::string& station, const std::string& startGmt,
                  const std::string& webSite = "");
// Replaces the events of the data folder.
bool PutEvents(const std::string& folder, const std::vector<EventRecord>& events);

}  // namespace sonaro::desktop
