// Turns events out of a list into the records of the event tables.
#pragma once

#include <vector>

#include "directory/EventRecord.h"
#include "model/Directory.h"
#include "model/SkipLog.h"
#include "model/SourceEvent.h"

namespace sonaro {

struct EventRecords {
  std::vector<EventRecord> current;  // the first seven days of the list, by identifier
  std::vector<EventRecord> coming;   // what is later
};

// Stations are found by identifier or name; events of others are logged and left out. The identifier of an
// event is computed from what it is, so that it stays the same when the list is read again.
EventRecords MakeEventRecords(const std::vector<SourceEvent>& events, const Directory& directory,
                              SkipLog& skips);

}  // namespace sonaro
