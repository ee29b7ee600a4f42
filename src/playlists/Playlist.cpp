#include "playlists/Playlist.h"

#include <algorithm>
#include <optional>

#include "base/Text.h"
#include "base/Utf8.h"
#include "playlists/PlaylistFields.h"

namespace sonaro {
namespace {

bool IsUtf8(std::string_view text) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = DecodeUtf8(text, at).length;
    if (length == 0) return false;
    at += length;
  }
  return true;
}

// Bytes that are no UTF-8 become the Latin-1 characters that they stand for, so that the rest stays what it
// is.
std::string Repaired(std::string_view text) {
  std::string out;
  while (!text.empty()) {
    const std::size_t length = DecodeUtf8(text, 0).length;
    if (length == 0) AppendUtf8(out, static_cast<unsigned char>(text[0]));
    out += text.substr(0, length);
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return out;
}

// A file that is not wholly UTF-8 is taken for Latin-1, the encoding of old players.
std::string Decoded(std::string_view bytes) {
  if (const std::optional<Utf16Text> wide = DecodeMarkedUtf16(bytes)) return wide->text;
  if (bytes.starts_with(kMarkOfUtf8)) bytes.remove_prefix(kMarkOfUtf8.size());
  if (IsUtf8(bytes)) return std::string(bytes);
  std::string text;
  for (const char c : bytes) AppendUtf8(text, static_cast<unsigned char>(c));
  return text;
}

bool LooksLikeAddress(std::string_view line) {
  constexpr std::string_view kSchemeLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  const std::size_t scheme = line.find_first_not_of(kSchemeLetters);
  return scheme != std::string_view::npos && scheme > 0 && line.substr(scheme).starts_with("://");
}

}  // namespace

// By the first line that says something, never by the file's name: playlists come from servers under any
// name.
PlaylistFormat RecognisePlaylist(std::string_view text) {
  for (const std::string_view line : SplitLines(text)) {
    const std::string_view start = TrimBlanks(line);
    if (start.empty()) continue;
    if (StartsWithIgnoringCase(start, "#EXTM3U")) return PlaylistFormat::M3u;
    if (StartsWithIgnoringCase(start, "[playlist]")) return PlaylistFormat::Pls;
    if (start.starts_with('<')) {
      return ContainsIgnoringCase(text.substr(0, 4096), "<opml") ? PlaylistFormat::Opml
                                                                 : PlaylistFormat::NotAPlaylist;
    }
    if (start.starts_with('#')) continue;
    return LooksLikeAddress(start) ? PlaylistFormat::M3u : PlaylistFormat::NotAPlaylist;
  }
  return PlaylistFormat::NotAPlaylist;
}

Playlist ReadPlaylist(std::string_view bytes) {
  const std::string text = Decoded(bytes);
  Playlist playlist;
  playlist.format = RecognisePlaylist(text);
  switch (playlist.format) {
    case PlaylistFormat::M3u:
      ReadM3u(text, playlist);
      break;
    case PlaylistFormat::Pls:
      ReadPls(text, playlist);
      break;
    case PlaylistFormat::Opml:
      ReadOpml(text, playlist);
      break;
    case PlaylistFormat::NotAPlaylist:
      break;
  }
  playlist.title = CleanField(playlist.title, PersonalStation::kMaxName);
  return playlist;
}

namespace {

std::string Written(const Playlist& playlist) {
  switch (playlist.format) {
    case PlaylistFormat::M3u:
      return WriteM3u(playlist);
    case PlaylistFormat::Pls:
      return WritePls(playlist);
    case PlaylistFormat::Opml:
      return WriteOpml(playlist);
    case PlaylistFormat::NotAPlaylist:
      break;
  }
  return {};
}

}  // namespace

// Station names may come from files in another encoding, and a playlist has to be UTF-8 as a whole.
std::string WritePlaylist(const Playlist& playlist) { return Repaired(Written(playlist)); }

PlaylistFormat FormatOfFileName(std::string_view name) {
  if (EndsWithIgnoringCase(name, ".pls")) return PlaylistFormat::Pls;
  if (EndsWithIgnoringCase(name, ".opml") || EndsWithIgnoringCase(name, ".xml")) return PlaylistFormat::Opml;
  return PlaylistFormat::M3u;
}

}  // namespace sonaro
