#include "output/BrowseLists.h"

#include <algorithm>
#include <functional>
#include <tuple>
#include <vector>

namespace sonaro {
namespace {

using Station = DirectoryStation;
using Condition = std::function<bool(const Station&)>;
using Score = std::function<double(const Station&)>;

// Stations that can be recommended: they answered when they were last tried, or nobody tried them.
bool IsHeard(const Station& station) { return station.ratings.reliability != 1; }

// The identifiers of the best stations that satisfy `condition`. Equal scores keep the order of the
// directory.
std::string Best(const Directory& directory, const Condition& condition, const Score& score) {
  std::vector<const Station*> chosen;
  for (const Station& station : directory.stations) {
    if (condition(station)) chosen.push_back(&station);
  }
  std::stable_sort(chosen.begin(), chosen.end(),
                   [&](const Station* a, const Station* b) { return score(*a) > score(*b); });
  if (chosen.size() > kRankingLength) chosen.resize(kRankingLength);
  std::string ids;
  for (const Station* station : chosen) {
    if (!ids.empty()) ids += ' ';
    ids += std::to_string(station->id);
  }
  return ids;
}

// No list says when a station was entered. Stations that the directory before this one did not have are new
// for certain; where there is none, those count that are played but have hardly been voted for yet.
std::string NewStations(const Directory& directory) {
  if (directory.followsAnother) {
    return Best(
        directory, [](const Station& s) { return s.isNew && IsHeard(s); },
        [](const Station& s) { return s.ratings.quality; });
  }
  constexpr std::int64_t kFewVotes = 5;
  return Best(
      directory,
      [](const Station& s) {
        return IsHeard(s) && s.source.votes && *s.source.votes <= kFewVotes &&
               s.source.clicks.value_or(0) > 0;
      },
      [](const Station& s) { return static_cast<double>(s.source.clicks.value_or(0)); });
}

// Only stations that are known to work: the bottom of the list would else be a list of dead ones.
std::string LeastPopular(const Directory& directory) {
  return Best(
      directory,
      [](const Station& s) { return s.ratings.reliability >= 3 && (s.source.votes || s.source.clicks); },
      [](const Station& s) { return -s.ratings.popularity; });
}

// Ratings are whole numbers with many ties. Popularity is between 0 and 1, so added to the rating it breaks
// the ties.
std::string ByRating(const Directory& directory, int Ratings::*rating) {
  return Best(
      directory, [rating](const Station& s) { return IsHeard(s) && s.ratings.*rating > 0; },
      [rating](const Station& s) { return static_cast<double>(s.ratings.*rating) + s.ratings.popularity; });
}

}  // namespace

std::string RankingList(const Directory& directory) {
  // In the order of kRankingNames. One line each: name TAB identifiers with blanks between them CR LF.
  const std::array<std::string, kRankingNames.size()> lists = {
      NewStations(directory),
      Best(
          directory, [](const Station& s) { return s.ratings.popularity > 0 && IsHeard(s); },
          [](const Station& s) { return s.ratings.popularity; }),
      LeastPopular(directory),
      Best(
          directory, [](const Station& s) { return s.ratings.quality > 0 && IsHeard(s); },
          [](const Station& s) { return s.ratings.quality; }),
      ByRating(directory, &Ratings::sound),
      ByRating(directory, &Ratings::speed),
      ByRating(directory, &Ratings::webSite)};
  std::string text;
  for (std::size_t i = 0; i < lists.size(); ++i) {
    text += std::string(kRankingNames[i]) + '\t' + lists[i] + "\r\n";
  }
  return text;
}

std::string ReliableList(const Directory& directory) {
  return Best(
             directory, [](const Station& s) { return s.ratings.reliability >= 3; },
             [](const Station& s) { return s.ratings.reliability + s.ratings.popularity; }) +
         "\r\n";
}

}  // namespace sonaro
