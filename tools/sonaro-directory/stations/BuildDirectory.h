// Makes a directory out of the stations of one or several lists.
#pragma once

#include <cstddef>
#include <vector>

#include "model/Directory.h"
#include "model/SourceStation.h"
#include "stations/CleanStation.h"
#include "stations/StationIds.h"

namespace sonaro {

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
