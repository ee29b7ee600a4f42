// Where stations are and which languages they speak, out of what lists say in many spellings.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Sources.h"
#include "places/Countries.h"

namespace sonaro {

struct StationPlace {
  const Country* country = nullptr;  // null: not told
  std::string region;  // a region that is browsed by; "" when the station stands under its country only
  std::string nearby;  // what the list says about the region when that is more than its name: a city
  // "Region, Country", "Country" or "".
  std::string Text() const;
};

// The place of every station, in their order. A region of the table is taken by any of its spellings; other
// texts are regions when at least two stations of the country have them, in the spelling that most of them
// use. Texts that cannot be a place (addresses, bit rates, the country itself) count as none.
std::vector<StationPlace> LocateStations(const std::vector<SourceStation>& stations);

// The region of the table that `text` means in a country, "" when there is none. "Sydney NSW", "Houston, TX"
// and "Texas (USA)" are understood.
std::string_view KnownRegion(const Country& country, std::string_view text);

// regions.tsv as it is, embedded by CMake.
std::string_view RegionTableText();

// The languages that `text` names, in English where it is a known name ("deutsch", "castellano. español" and
// "engilsh" are), each once, at most four. Names may be joined by commas, semicolons or slashes.
std::vector<std::string> LanguagesIn(std::string_view text);

// True for the name of a known language in any of its spellings.
bool IsLanguage(std::string_view text);

}  // namespace sonaro
