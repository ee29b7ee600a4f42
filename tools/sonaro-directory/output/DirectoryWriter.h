// Writes a directory into a data folder: the station list and table, the event tables, the browse tree, the
// rankings and the kinds of search. Each file is put in place as a whole; what the user has made there stays.
// While files of two directories may lie side by side the folder is marked as unfinished.
#pragma once

#include <string>
#include <vector>

#include "base/DataFolder.h"
#include "directory/EventRecord.h"
#include "model/Directory.h"
#include "model/SkipLog.h"
#include "model/Sources.h"
#include "stations/StationTexts.h"

namespace sonaro {

// The file that marks a folder in which the writing has begun and not ended.
inline constexpr std::string_view kUnfinishedMark = "\\unfinished.snr";

// Events out of a list as the records of the event tables.
struct EventRecords {
  std::vector<EventRecord> current;  // the first seven days of the list, by identifier
  std::vector<EventRecord> coming;   // what is later
};

// Stations are found by identifier or name; events of others are logged and left out. The identifier of an
// event is computed from what it is, so that it stays the same when the list is read again.
EventRecords MakeEventRecords(const std::vector<SourceEvent>& events, const Directory& directory,
                              SkipLog& skips);

struct WriteOptions {
  LinkPlayer player = LinkPlayer::Asx;
  ScramblingAlphabets alphabets = BuiltInAlphabets();
};

// The text of "\Station.snr": one station a line in the order of the identifiers.
std::string StationListText(const Directory& directory, const WriteOptions& options);

// The text of "\searchst.snr": the directory first, then the service's searches of the web.
std::string SearchKindsText();

// "" when everything was written, else one sentence about what was not. A folder that this fails or dies in
// is as it was, or stays marked until it is written again.
std::string WriteDirectory(DataFolder& data, const Directory& directory, const EventRecords& events,
                           const WriteOptions& options);

}  // namespace sonaro
