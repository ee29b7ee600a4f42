// Finds the entries, of one list or of several, that are the same station.
#pragma once

#include <cstddef>
#include <vector>

#include "model/SourceStation.h"

namespace sonaro {

// Entries with the same name (letter case, accents and punctuation aside) that share an address become one,
// in the place of the first: its fields, filled from the others where they are empty, all addresses, and the
// highest votes and clicks. Returns how many entries went into others.
std::size_t JoinSameStations(std::vector<SourceStation>& stations);

}  // namespace sonaro
