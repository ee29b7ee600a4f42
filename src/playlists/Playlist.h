// Playlists as files that other programs read: M3U, PLS and OPML, for taking stations out and in. What a
// format has no place for goes into comments or attributes of our own, so that a list that comes back has
// lost nothing. Works on texts in memory; reads and writes no file.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "stations/PersonalStations.h"

namespace sonaro {

enum class PlaylistFormat { NotAPlaylist, M3u, Pls, Opml };

struct PlaylistEntry {
  PersonalStation station;  // its index is not carried
  std::string stationId;    // the identifier of a directory station; "" for a station of the user's own
  bool operator==(const PlaylistEntry&) const = default;
};

struct Playlist {
  static constexpr std::size_t kMaxEntries = 20000;

  PlaylistFormat format = PlaylistFormat::NotAPlaylist;
  std::string title;
  std::vector<PlaylistEntry> entries;
  std::size_t skipped = 0;  // entries without a name or without an address that may be played
  bool damaged = false;     // the file ends before its entries do; what stood before is there
};

// Told by the content, never by the name of the file.
PlaylistFormat RecognisePlaylist(std::string_view text);
// Reads a whole file's bytes: UTF-8 with or without a mark at its start, otherwise Latin-1.
Playlist ReadPlaylist(std::string_view bytes);
// The whole file's text, UTF-8, lines ending in CR LF. "" for NotAPlaylist.
std::string WritePlaylist(const Playlist& playlist);
// By the end of a file's name (".m3u", ".m3u8", ".pls", ".opml", ".xml"), letter case ignored; M3u otherwise.
PlaylistFormat FormatOfFileName(std::string_view name);

}  // namespace sonaro
