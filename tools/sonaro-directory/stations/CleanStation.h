// Makes a station out of a list fit for the directory.
#pragma once

#include "model/SkipLog.h"
#include "model/SourceStation.h"

namespace sonaro {

// Entries and addresses that were left out are counted apart.
struct MakeLogs {
  SkipLog entries;
  SkipLog addresses;
};

// Cleans every text (one line, no control character, no blanks at the ends, at most 200 bytes of name), drops
// unusable addresses, puts the others in order, drops tags that are none, and takes codec and bit rate from
// name and address when the list does not give them; impossible bit rates are corrected or dropped. A station
// without a name is called by its host. False, with the reason logged, when no address is left.
bool CleanStation(SourceStation& station, MakeLogs& logs);

}  // namespace sonaro
