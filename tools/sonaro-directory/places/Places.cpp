// How a station gets its place. The country comes as a code in good lists and as a name in others; the region
// is free text: "NY", "Köln", "Street 7, Town (District)". Known regions of the larger countries are found
// through a table of names, spellings and towns. Where the table has no regions of a country, a text becomes
// a region of its own when at least kLeastForRegion stations spell it alike: one station's text is mostly a
// mistake or a street.
#include "places/Places.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <map>
#include <unordered_map>
#include <utility>

#include "base/Text.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

constexpr std::size_t kLeastForRegion = 2;
// Bytes; what is longer is an address or a sentence.
constexpr std::size_t kMaxRegion = 40;

using RegionMap = std::unordered_map<std::string, std::string_view>;

// The code has two letters always, so that no separator is needed.
std::string RegionKey(std::string_view countryCode, std::string_view text) {
  return std::string(countryCode) + MatchKey(text);
}

// The first to claim a key keeps it.
const RegionMap& Regions() {
  static const RegionMap regions = [] {
    RegionMap map;
    std::vector<std::vector<std::string_view>> lines;  // country, name, spellings
    for (const std::string_view line : SplitLines(RegionTableText())) {
      if (!line.empty() && !line.starts_with('#')) lines.push_back(SplitAtMost(line, '\t', 3));
    }
    // Names first: "Buenos Aires" is the province even where a list of the capital's spellings has it too.
    for (const auto& line : lines) map.emplace(RegionKey(line[0], line[1]), line[1]);
    for (const auto& line : lines) {
      for (const std::string_view spelling : Split(line[2], '|')) {
        if (!spelling.empty()) map.emplace(RegionKey(line[0], spelling), line[1]);
      }
    }
    return map;
  }();
  return regions;
}

std::string_view Lookup(const Country& country, std::string_view text) {
  const auto found = Regions().find(RegionKey(country.code, text));
  return found == Regions().end() ? std::string_view() : found->second;
}

std::vector<std::string_view> SplitAtAny(std::string_view text, std::string_view separators) {
  std::vector<std::string_view> parts;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(separators), text.size());
    if (const std::string_view part = TrimBlanks(text.substr(0, end)); !part.empty()) parts.push_back(part);
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return parts;
}

// Bytes: "NRW", "ACT". In other scripts three bytes are one or two letters, which is as short.
bool IsAbbreviation(std::string_view word) { return word.size() <= 3; }

bool IsCapitals(std::string_view word) {
  return std::all_of(word.begin(), word.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

// Looks for the region in runs of up to three words, the last words first: "City ST" is the usual order.
// Short words count only in capitals, since "or", "in" and "me" are words too. Longer runs first: "West
// Virginia" must not be taken for "Virginia".
std::string_view RegionInWords(const Country& country, std::string_view text) {
  const std::vector<std::string_view> words = SplitAtAny(text, " ,.;:/()-");
  for (std::size_t length = std::min<std::size_t>(3, words.size()); length > 0; --length) {
    for (std::size_t start = words.size() - length + 1; start-- > 0;) {
      const std::string_view first = words[start];
      if (length == 1 && IsAbbreviation(first) && !IsCapitals(first)) continue;
      const char* end = words[start + length - 1].data() + words[start + length - 1].size();
      const std::string_view run(first.data(), static_cast<std::size_t>(end - first.data()));
      if (const std::string_view region = Lookup(country, run); !region.empty()) return region;
    }
  }
  return {};
}

// A text that cannot name a region: junk, or a country.
bool IsNoPlace(std::string_view text) {
  constexpr std::array<std::string_view, 29> kJunk = {
      "aucun",    "bach",         "sef",        "i italien", "groupe bz", "web",     "online",  "internet",
      "national", "select state", "select one", "none",      "other",     "pangea",  "aac",     "mp3",
      "music",    "outside us",   "state",      "region",    "oblast",    "unknown", "classic", "nincs",
      "europe",   "world",        "ici",        "global",    "any"};
  const std::string key = MatchKey(text);
  if (key.size() < 3 || text.size() > kMaxRegion) return true;
  if (key.find_first_of("0123456789") != std::string::npos) return true;
  if (std::find(kJunk.begin(), kJunk.end(), key) != kJunk.end()) return true;
  return CountryByName(text) != nullptr;
}

// Countries all of whose regions are in the table: what is not there is a town or somebody's mistake.
bool HasAllRegions(const Country& country) {
  constexpr std::array<std::string_view, 16> kComplete = {"AR", "AT", "AU", "BR", "CA", "CN", "DE", "ES",
                                                          "FR", "GB", "IT", "MX", "NL", "PL", "CL", "US"};
  return std::find(kComplete.begin(), kComplete.end(), country.code) != kComplete.end();
}

// "Khomas Region" is "Khomas".
std::string_view WithoutKind(std::string_view region) {
  constexpr std::array<std::string_view, 6> kKinds = {"region",   "province", "state",
                                                      "district", "county",   "oblast"};
  const std::size_t blank = region.rfind(' ');
  if (blank == std::string_view::npos || blank == 0) return region;
  const std::string last = FoldCase(region.substr(blank + 1));
  return std::find(kKinds.begin(), kKinds.end(), last) == kKinds.end() ? region
                                                                       : TrimBlanks(region.substr(0, blank));
}

// The part of a free text that is most likely the region: "Street 7, Town" means Town, "Town (District)" too.
std::string_view LikelyRegion(std::string_view text) {
  if (text.find("://") != std::string_view::npos) return {};
  const std::string_view plain = TrimBlanks(text.substr(0, text.find('(')));
  for (const std::string_view candidate : {plain, text}) {
    const std::vector<std::string_view> parts = SplitAtAny(candidate, ",;()/");
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
      if (!IsNoPlace(*part)) return WithoutKind(*part);
    }
  }
  return {};
}

// True when two texts differ in nothing but blanks, accents and letter case.
bool SpellTheSame(std::string_view a, std::string_view b) {
  std::string first = MatchKey(a);
  std::string second = MatchKey(b);
  std::erase(first, ' ');
  std::erase(second, ' ');
  return first == second;
}

// The region last: some lists write the country there.
const Country* CountryOf(const SourceStation& station) {
  if (const Country* country = CountryByCode(station.countryCode)) return country;
  if (const Country* country = CountryByName(station.country)) return country;
  return CountryByName(station.region);
}

// The spelling to show: the most frequent, then one that begins with a capital, then the first in byte order.
std::string BestSpelling(const std::map<std::string, std::size_t>& spellings) {
  const auto rank = [](const auto& spelling) {
    const bool capital = Capitalized(spelling.first) == spelling.first;
    return std::pair(spelling.second, capital);
  };
  const auto best = std::max_element(spellings.begin(), spellings.end(),
                                     [&](const auto& a, const auto& b) { return rank(a) < rank(b); });
  return Capitalized(best->first);
}

struct FreeRegion {
  std::size_t stations = 0;
  std::map<std::string, std::size_t> spellings;
};

}  // namespace

std::string StationPlace::Text() const {
  if (!country) return {};
  const std::string& where = region.empty() ? nearby : region;
  std::string text(country->name);
  return where.empty() || EqualIgnoringCase(where, text) ? text : where + ", " + text;
}

std::string_view KnownRegion(const Country& country, std::string_view text) {
  if (const std::string_view region = Lookup(country, text); !region.empty()) return region;
  const std::vector<std::string_view> parts = SplitAtAny(text, ",;()/");
  for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
    if (const std::string_view region = Lookup(country, *part); !region.empty()) return region;
  }
  return RegionInWords(country, text);
}

// Two passes: the first resolves what tables know and counts the other texts, the second decides which of
// these are regions. Until then such a text is `nearby`, a place that is shown and searched but is no entry
// of the tree.
std::vector<StationPlace> LocateStations(const std::vector<SourceStation>& stations) {
  std::vector<StationPlace> places(stations.size());
  std::map<std::string, FreeRegion> freeRegions;
  std::vector<std::string> freeKeys(stations.size());
  for (std::size_t i = 0; i < stations.size(); ++i) {
    StationPlace& place = places[i];
    place.country = CountryOf(stations[i]);
    if (!place.country || stations[i].region.empty()) continue;
    const std::string& text = stations[i].region;
    place.region = KnownRegion(*place.country, text);
    const std::string_view likely = LikelyRegion(text);
    if (!likely.empty() && !SpellTheSame(likely, place.region)) place.nearby = Capitalized(likely);
    if (!place.region.empty() || likely.empty() || HasAllRegions(*place.country)) continue;
    freeKeys[i] = RegionKey(place.country->code, likely);
    FreeRegion& region = freeRegions[freeKeys[i]];
    ++region.stations;
    ++region.spellings[std::string(likely)];
  }
  for (std::size_t i = 0; i < stations.size(); ++i) {
    if (freeKeys[i].empty()) continue;
    const FreeRegion& region = freeRegions[freeKeys[i]];
    if (region.stations < kLeastForRegion) continue;
    places[i].region = BestSpelling(region.spellings);
    places[i].nearby.clear();
  }
  return places;
}

}  // namespace sonaro
