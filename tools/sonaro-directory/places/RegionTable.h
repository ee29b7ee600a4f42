// Regions of the countries with the most stations, and the spellings, older names, abbreviations and cities
// by which lists mean them.
#pragma once

#include <span>
#include <string_view>

namespace sonaro {

struct RegionLine {
  std::string_view country;    // ISO 3166-1, capitals
  std::string_view name;       // as shown
  std::string_view spellings;  // joined by "|", compared by MatchKey; the name itself is always one
};

std::span<const RegionLine> RegionsOfAmerica();
std::span<const RegionLine> RegionsOfWesternEurope();
std::span<const RegionLine> RegionsElsewhere();

}  // namespace sonaro
