// The schedule as an iCalendar file (RFC 5545), so that a phone's calendar can remind too. Times are written
// as floating local times: an item is meant for the user's wall clock wherever that is.
#pragma once

#include <string>

#include "base/Dates.h"

namespace sonaro {

class ScheduleStore;

// An item has one identity in all exports for as long as its name, station and times stay.
//
// The whole file, UTF-8, lines ended by CR LF and folded at 75 bytes. Live items and items whose time or date
// cannot be read have no moment to write and are left out. `gmtNow` stamps the entries; daily and weekly
// items begin on their first day from `today` on.
std::string ExportCalendar(const ScheduleStore& store, const Date& today, const DateTime& gmtNow);

}  // namespace sonaro
