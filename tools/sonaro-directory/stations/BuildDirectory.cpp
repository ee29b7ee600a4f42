#include "stations/BuildDirectory.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace sonaro {
namespace {

// Name and address at the end make the order total: two runs over the same lists write the same files.
void SortBestFirst(std::vector<DirectoryStation>& stations) {
  const auto rank = [](const DirectoryStation& station) {
    return std::tuple(-station.ratings.popularity, -station.ratings.quality,
                      std::string_view(station.source.name), std::string_view(station.source.firstAddress));
  };
  std::sort(stations.begin(), stations.end(),
            [&](const DirectoryStation& a, const DirectoryStation& b) { return rank(a) < rank(b); });
}

}  // namespace

BuiltDirectory BuildDirectory(std::vector<SourceStation> stations, std::size_t limit,
                              const EarlierIds& earlier, MakeLogs& logs) {
  // The order of the steps matters. Stations are cleaned before they are joined, since joining compares names
  // and addresses; they are located all together, since regions that are in no table are recognised by how
  // many stations name them; identifiers come last, when it is known which stations stay.
  std::erase_if(stations, [&](SourceStation& station) { return !CleanStation(station, logs); });
  BuiltDirectory built;
  built.joined = JoinSameStations(stations);
  std::vector<StationPlace> places = LocateStations(stations);
  built.directory.followsAnother = !earlier.Empty();
  built.directory.stations.reserve(stations.size());
  for (std::size_t i = 0; i < stations.size(); ++i) {
    DirectoryStation station;
    station.genres = ClassifyStation(stations[i]);
    station.ratings = RateStation(stations[i]);
    station.place = std::move(places[i]);
    station.source = std::move(stations[i]);
    built.directory.stations.push_back(std::move(station));
  }
  SortBestFirst(built.directory.stations);
  if (limit > 0 && built.directory.stations.size() > limit) built.directory.stations.resize(limit);
  AssignIds(built.directory.stations, earlier);
  return built;
}

}  // namespace sonaro
