#include "playlists/PlaylistTransfer.h"

#include <algorithm>
#include <functional>
#include <tuple>
#include <unordered_set>
#include <utility>

#include "base/DataFolder.h"
#include "base/Files.h"
#include "base/Text.h"
#include "stations/FavoriteGroups.h"
#include "stations/StationKey.h"
#include "stations/StationSource.h"

namespace sonaro {
namespace {

auto WithoutIndex(const PersonalStation& s) { return std::tie(s.name, s.links, s.webSite, s.type, s.note); }

bool HasNoLink(const PersonalStation& station) { return station.links == std::array<std::string, 3>(); }

}  // namespace

// The user's own stations for one import, found by everything but their index.
class OwnStationIndex {
 public:
  // `compared` grows by one for each pair of stations that is compared.
  OwnStationIndex(std::vector<PersonalStation> stations, std::size_t& compared)
      : stations_(std::move(stations)), known_(stations_.size(), HashOfStation(), SameStation{compared}) {
    for (const PersonalStation& station : stations_) known_.insert(&station);
  }
  OwnStationIndex(const OwnStationIndex&) = delete;
  OwnStationIndex& operator=(const OwnStationIndex&) = delete;

  // Null when there is none.
  const PersonalStation* Find(const PersonalStation& wanted) const {
    const auto found = known_.find(&wanted);
    return found == known_.end() ? nullptr : *found;
  }

 private:
  struct HashOfStation {
    std::size_t operator()(const PersonalStation* station) const {
      std::string text = station->name;  // and all else, or a file could be made of stations that collide
      for (const std::string* field : {&station->links[0], &station->links[1], &station->links[2],
                                       &station->webSite, &station->type, &station->note}) {
        text.append(1, '\t').append(*field);
      }
      return std::hash<std::string>()(text);
    }
  };

  struct SameStation {
    std::size_t& compared;
    bool operator()(const PersonalStation* a, const PersonalStation* b) const {
      ++compared;
      return WithoutIndex(*a) == WithoutIndex(*b);
    }
  };

  const std::vector<PersonalStation> stations_;
  std::unordered_set<const PersonalStation*, HashOfStation, SameStation> known_;
};

// A station of the directory is exported with its name and links, for other players, and with its identifier,
// by which an import finds it again.
bool PlaylistTransfer::ExportGroup(std::size_t group, const std::string& path) {
  if (group >= groups_.Count()) return false;
  Playlist playlist;
  playlist.title = groups_.Name(group);
  for (const StationKey& key : groups_.Keys(group)) {
    PlaylistEntry entry = EntryOf(key);
    if (!entry.station.name.empty()) playlist.entries.push_back(std::move(entry));
  }
  return Save(std::move(playlist), path);
}

bool PlaylistTransfer::ExportPersonalStations(const std::string& path) {
  Playlist playlist;
  for (PersonalStation& station : personal_.All()) {
    station.index = 0;
    playlist.entries.push_back({std::move(station), {}});
  }
  return Save(std::move(playlist), path);
}

PlaylistEntry PlaylistTransfer::EntryOf(const StationKey& key) const {
  PlaylistEntry entry;
  if (!key.IsOfGuide()) {
    if (const PersonalStation* own = key.IsOfUser() ? personal_.Find(key.number) : nullptr) {
      entry.station = *own;
    }
    entry.station.index = 0;
    return entry;
  }
  const Station station = source_.Find(key);
  entry.stationId = key.Token();
  entry.station.name = station.key ? station.name : entry.stationId;
  entry.station.links = station.links;
  entry.station.webSite = station.webSite;
  entry.station.type = station.mediaType;
  return entry;
}

bool PlaylistTransfer::Save(Playlist playlist, const std::string& path) {
  playlist.format = FormatOfFileName(path);
  return SaveWholeFile(files_, path, WritePlaylist(playlist));
}

ImportResult PlaylistTransfer::Read(const std::string& path, Playlist& playlist) {
  ImportResult result;
  const ReadResult file = ReadWholeFile(files_, path);
  if (file.status != ReadStatus::Ok) {
    result.status = ImportResult::Status::NotRead;
    return result;
  }
  playlist = ReadPlaylist(file.bytes);
  if (playlist.format == PlaylistFormat::NotAPlaylist) result.status = ImportResult::Status::NotAPlaylist;
  result.skipped = playlist.skipped;
  result.damaged = playlist.damaged;
  return result;
}

ImportResult PlaylistTransfer::ImportPersonalStations(const std::string& path) {
  Playlist playlist;
  ImportResult result = Read(path, playlist);
  if (result.status != ImportResult::Status::Ok) return result;
  // Everything becomes a station of the user's own here, also what the directory has.
  for (PlaylistEntry& entry : playlist.entries) entry.stationId.clear();
  const std::size_t before = personal_.All().size();
  const auto stations = StationsFor(playlist.entries, result);
  result.added = personal_.All().size() - before;
  result.known = stations.size() - result.added;
  return result;
}

ImportResult PlaylistTransfer::ImportIntoGroup(std::size_t group, const std::string& path) {
  Playlist playlist;
  ImportResult result = Read(path, playlist);
  if (result.status != ImportResult::Status::Ok || group >= groups_.Count()) return result;
  const std::size_t ownBefore = personal_.All().size();
  const auto stations = StationsFor(playlist.entries, result);
  if (result.status != ImportResult::Status::Ok) return result;
  const std::size_t before = groups_.Keys(group).size();
  if (groups_.AddStations(group, stations) == FavoriteChange::NotSaved) {
    result.added = personal_.All().size() - ownBefore;
    const bool some = result.added > 0;
    result.status = some ? ImportResult::Status::GroupNotSaved : ImportResult::Status::NotSaved;
    return result;
  }
  result.added = groups_.Keys(group).size() - before;
  result.known = stations.size() - result.added;
  return result;
}

// The stations of all entries in their order. Those that neither the directory nor the own stations have are
// collected and added with one write: a file of a thousand stations must not be saved a thousand times.
std::vector<StationKey> PlaylistTransfer::StationsFor(const std::vector<PlaylistEntry>& entries,
                                                      ImportResult& result) {
  const OwnStationIndex own(personal_.All(), result.compared);
  std::vector<StationKey> stations;
  std::vector<PersonalStation> fresh;
  std::vector<std::size_t> places;  // of the fresh ones in `stations`
  for (const PlaylistEntry& entry : entries) {
    stations.push_back(KnownStation(entry, own));
    if (stations.back()) continue;
    if (HasNoLink(entry.station) && entry.station.webSite.empty()) {
      ++result.skipped;
      continue;
    }
    places.push_back(stations.size() - 1);
    fresh.push_back(entry.station);
  }
  const std::vector<std::int32_t> indices = personal_.AddAll(fresh);
  if (indices.size() != fresh.size()) result.status = ImportResult::Status::NotSaved;
  for (std::size_t i = 0; i < std::min(indices.size(), places.size()); ++i) {
    if (indices[i] != 0) stations[places[i]] = StationKey::OfUser(indices[i]);
  }
  std::erase(stations, StationKey());
  return stations;
}

StationKey PlaylistTransfer::KnownStation(const PlaylistEntry& entry, const OwnStationIndex& own) const {
  const StationKey key = StationKey::FromToken(entry.stationId);
  if (key.IsOfGuide()) {
    const Station station = source_.Find(key);
    // Another guide may have given the identifier to another station. The entry's name is one that was
    // cleaned.
    const std::string name = CleanField(station.name, PersonalStation::kMaxName);
    if (station.key ? EqualIgnoringCase(name, entry.station.name) : HasNoLink(entry.station)) return key;
  }
  const PersonalStation* const same = own.Find(entry.station);
  return same ? StationKey::OfUser(same->index) : StationKey();
}

}  // namespace sonaro
