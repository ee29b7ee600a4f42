// The countries of the world by their two-letter codes, with the short names that people use and the
// continent that each is looked for in.
#pragma once

#include <span>
#include <string_view>

namespace sonaro {

enum class Continent : int { Africa, Antarctica, Asia, Europe, NorthAmerica, Oceania, SouthAmerica };
inline constexpr int kContinents = 7;

std::string_view ContinentName(Continent continent);

struct Country {
  std::string_view code;  // ISO 3166-1, capitals
  std::string_view name;
  Continent continent;
  std::string_view otherNames;  // joined by "|"; the official name need not be there when a word of it is
};

// In the order of the codes.
std::span<const Country> Countries();

// Null when there is no such country. The code in any letter case.
const Country* CountryByCode(std::string_view code);
// By its short name or one of the others, compared by MatchKey; a leading "the" does not count.
const Country* CountryByName(std::string_view name);

}  // namespace sonaro
