// Takes favourite groups and the user's own stations out to playlist files and back in. What comes in that
// the directory knows stays a station of the directory; anything else becomes one of the user's own. Owned by
// the main window; asks nobody anything.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "playlists/Playlist.h"
#include "stations/StationKey.h"

namespace sonaro {

class FavoriteGroups;
class Files;
class OwnStationIndex;
class PersonalStations;
class StationSource;

struct ImportResult {
  enum class Status {
    Ok,
    NotRead,       // the file could not be read
    NotAPlaylist,  // it is something else
    NotSaved,      // nothing could be stored
    GroupNotSaved  // `added` stations are among the user's own now, but not in the group
  };
  Status status = Status::Ok;
  std::size_t added = 0;
  std::size_t known = 0;     // were there already
  std::size_t skipped = 0;   // entries that cannot be used
  bool damaged = false;      // the file breaks off
  std::size_t compared = 0;  // pairs of stations: the work that a long list costs
};

class PlaylistTransfer {
 public:
  PlaylistTransfer(Files& files, FavoriteGroups& groups, PersonalStations& personal,
                   const StationSource& source)
      : files_(files), groups_(groups), personal_(personal), source_(source) {}

  // `path` as the user gave it; the end of its name tells the format. False when it could not be written.
  [[nodiscard]] bool ExportGroup(std::size_t group, const std::string& path);
  [[nodiscard]] bool ExportPersonalStations(const std::string& path);

  ImportResult ImportIntoGroup(std::size_t group, const std::string& path);
  ImportResult ImportPersonalStations(const std::string& path);

 private:
  PlaylistEntry EntryOf(const StationKey& key) const;
  [[nodiscard]] bool Save(Playlist playlist, const std::string& path);
  ImportResult Read(const std::string& path, Playlist& playlist);
  // The stations of the entries in their order, those that were missing having been added to the user's own.
  std::vector<StationKey> StationsFor(const std::vector<PlaylistEntry>& entries, ImportResult& result);
  StationKey KnownStation(const PlaylistEntry& entry, const OwnStationIndex& own) const;

  Files& files_;
  FavoriteGroups& groups_;
  PersonalStations& personal_;
  const StationSource& source_;
};

}  // namespace sonaro
