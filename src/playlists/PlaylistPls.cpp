// PLS: numbered keys, "File1=" and "Title1=". Fields of our own are further keys: "Sonaro-type1=MP3".
#include <cstdint>
#include <map>

#include "base/Numbers.h"
#include "base/Text.h"
#include "playlists/PlaylistFields.h"

namespace sonaro {
namespace {

constexpr std::string_view kPlsHead = "[playlist]";
constexpr std::string_view kTitleKey = "X-Sonaro-Title";
constexpr std::string_view kFieldKey = "Sonaro-";

struct NumberedKey {
  std::string_view name;
  std::int64_t number = 0;
};

// "File12" is File and 12. The fields of our own may end in a digit themselves, so theirs follows a point:
// "Sonaro-link2.12".
NumberedKey Parse(std::string_view key) {
  const std::size_t lastOther = key.find_last_not_of("0123456789");
  const std::size_t digits = lastOther == std::string_view::npos ? 0 : lastOther + 1;
  NumberedKey parsed{key.substr(0, digits), NumberValue(key.substr(digits))};
  if (parsed.name.ends_with('.')) parsed.name.remove_suffix(1);
  return parsed;
}

class PlsReader {
 public:
  void ReadLine(std::string_view line, Playlist& playlist) {
    const auto fields = SplitAtMost(line, '=', 2);
    if (fields.size() < 2) return;
    const std::string_view value = TrimBlanks(fields[1]);
    if (EqualIgnoringCase(fields[0], kTitleKey)) {
      playlist.title = value;
      return;
    }
    const NumberedKey key = Parse(TrimBlanks(fields[0]));
    if (key.number <= 0) return;
    if (EqualIgnoringCase(key.name, "File")) {
      addresses_[key.number] = value;
      // Makes the entry, so that an address without a title counts too.
      entries_[key.number];
    } else if (EqualIgnoringCase(key.name, "Title")) {
      entries_[key.number].station.name = value;
    } else if (StartsWithIgnoringCase(key.name, kFieldKey)) {
      SetPlaylistField(entries_[key.number], key.name.substr(kFieldKey.size()), value);
    }
  }

  // Lines of one entry may stand anywhere in the file, so entries are whole only at its end. They come in the
  // order of their numbers.
  void Finish(Playlist& playlist) {
    for (auto& [number, entry] : entries_) {
      const std::string_view address = addresses_[number];
      TakeAddress(entry, address);
      if (entry.station.name.empty()) entry.station.name = address;
      AddEntry(playlist, std::move(entry));
    }
  }

 private:
  std::map<std::int64_t, PlaylistEntry> entries_;
  std::map<std::int64_t, std::string_view> addresses_;
};

}  // namespace

void ReadPls(std::string_view text, Playlist& playlist) {
  PlsReader reader;
  for (const std::string_view line : SplitLines(text)) reader.ReadLine(line, playlist);
  reader.Finish(playlist);
}

std::string WritePls(const Playlist& playlist) {
  std::string out = std::string(kPlsHead) + "\r\n";
  if (!playlist.title.empty()) out += std::string(kTitleKey) + "=" + playlist.title + "\r\n";
  std::size_t count = 0;
  for (const PlaylistEntry& entry : playlist.entries) {
    const std::string number = std::to_string(++count);
    const std::string address = AddressOf(entry);
    if (!address.empty()) out += "File" + number + "=" + address + "\r\n";
    out += "Title" + number + "=" + entry.station.name + "\r\n";
    // Unknown, as for every stream; some players want the line.
    out += "Length" + number + "=-1\r\n";
    ForEachPlaylistField(entry, [&](std::string_view name, std::string_view value) {
      out += std::string(kFieldKey) + std::string(name) + "." + number + "=" + std::string(value) + "\r\n";
    });
  }
  return out + "NumberOfEntries=" + std::to_string(count) + "\r\nVersion=2\r\n";
}

}  // namespace sonaro
