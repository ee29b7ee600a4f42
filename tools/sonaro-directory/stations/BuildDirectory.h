// Makes a directory out of the stations of one or several lists, and the steps to it.
#pragma once

#include <cstddef>
#include <vector>

#include "model/Directory.h"
#include "model/SkipLog.h"
#include "model/Sources.h"
#include "stations/StationIds.h"

namespace sonaro {

// Entries and addresses that were left out are counted apart.
struct MakeLogs {
  SkipLog entries;
  SkipLog addresses;
};

// Makes a station out of a list fit for the directory: cleans every text (one line, no control character, no
// blanks at the ends, at most 200 bytes of name), drops unusable addresses, puts the others in order, drops
// tags that are none, and takes codec and bit rate from name and address when the list does not give them;
// impossible bit rates are corrected or dropped. A station without a name is called by its host. False, with
// the reason logged, when no address is left.
bool CleanStation(SourceStation& station, MakeLogs& logs);

// Finds the entries, of one list or of several, that are the same station. Entries with the same name (letter
// case, accents and punctuation aside) that share an address become one, in the place of the first: its
// fields, filled from the others where they are empty, all addresses, and the highest votes and clicks.
// Returns how many entries went into others.
std::size_t JoinSameStations(std::vector<SourceStation>& stations);

struct BuiltDirectory {
  Directory directory;
  std::size_t joined = 0;  // entries that were the same station as another
};

// Cleans, joins, locates, classifies and rates the stations, keeps the `limit` best (0: all) and gives them
// their identifiers. The result depends on the stations, not on the order of the lists, except where two
// entries of one station contradict each other: then the first counts.
BuiltDirectory BuildDirectory(std::vector<SourceStation> stations, std::size_t limit,
                              const EarlierIds& earlier, MakeLogs& logs);

}  // namespace sonaro
