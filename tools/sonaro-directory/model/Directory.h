// The directory as it is written out: every station with its identifier, place, genres and ratings.
#pragma once

#include <cstdint>
#include <vector>

#include "genres/Genres.h"
#include "model/Sources.h"
#include "places/Places.h"
#include "stations/Ratings.h"

namespace sonaro {

struct DirectoryStation {
  std::int32_t id = 0;
  SourceStation source;
  StationPlace place;
  Classification genres;
  Ratings ratings;
  bool isNew = false;  // not in the directory that this one follows
};

struct Directory {
  std::vector<DirectoryStation> stations;  // best first; lists keep this order
  bool followsAnother = false;             // `isNew` means something
};

}  // namespace sonaro
