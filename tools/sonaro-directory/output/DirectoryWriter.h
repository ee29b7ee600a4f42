// Writes a directory into a data folder: the station list and table, the event tables, the browse tree, the
// rankings and the kinds of search. Each file is put in place as a whole; what the user has made there stays.
#pragma once

#include <string>

#include "base/DataFolder.h"
#include "model/Directory.h"
#include "output/EventRecords.h"
#include "stations/StationTexts.h"

namespace sonaro {

struct WriteOptions {
  LinkPlayer player = LinkPlayer::Asx;
  ScramblingAlphabets alphabets = BuiltInAlphabets();
};

// The text of "\station.snr": one station a line in the order of the identifiers.
std::string StationListText(const Directory& directory, const WriteOptions& options);

// The text of "\searchst.snr": the directory first, then the service's searches of the web.
std::string SearchKindsText();

// "" when everything was written, else one sentence about what was not.
std::string WriteDirectory(DataFolder& data, const Directory& directory, const EventRecords& events,
                           const WriteOptions& options);

}  // namespace sonaro
