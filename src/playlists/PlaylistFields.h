// What the playlist formats share: the fields of our own that an entry carries beside its address and name.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "playlists/Playlist.h"

namespace sonaro {

// Calls `put` for each field that the entry's address and name alone do not tell: "link1" (when it is more
// than an address for the .asx program), "link2", "link3", "site", "type", "note", "station".
void ForEachPlaylistField(const PlaylistEntry& entry,
                          const std::function<void(std::string_view name, std::string_view value)>& put);
// The reverse; an unknown name is ignored.
void SetPlaylistField(PlaylistEntry& entry, std::string_view name, std::string_view value);

// What other programs are given as the entry's address: that of its first link; "" when it has none.
std::string AddressOf(const PlaylistEntry& entry);
// Takes an address out of a file as the first link, unless a field has set that already. Only what an
// own link may be (OwnLink.h) is taken.
void TakeAddress(PlaylistEntry& entry, std::string_view address);

// The name out of what follows "#EXTINF:" in an M3U file: the duration, attributes, and the name, with a
// comma before it or, as some programs write, a blank. `looked` grows by the bytes that were looked at, at
// most twice as many as there are.
std::string_view NameInInfo(std::string_view info, std::size_t& looked);

// Adds a complete entry, or counts it as skipped when it has no name or nothing to play.
void AddEntry(Playlist& playlist, PlaylistEntry entry);

// The three formats. The readers append to `playlist`; `text` is UTF-8.
void ReadM3u(std::string_view text, Playlist& playlist);
void ReadPls(std::string_view text, Playlist& playlist);
void ReadOpml(std::string_view text, Playlist& playlist);
std::string WriteM3u(const Playlist& playlist);
std::string WritePls(const Playlist& playlist);
std::string WriteOpml(const Playlist& playlist);

}  // namespace sonaro
