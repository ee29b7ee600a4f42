// M3U: an "#EXTINF" line with the name, then the address. Fields of our own stand between the two as
// comments:
// "#SONARO:type=MP3".
#include <optional>

#include "base/Text.h"
#include "mainwindow/PlaylistFields.h"

namespace sonaro {
namespace {

constexpr std::string_view kM3uHead = "#EXTM3U";
constexpr std::string_view kTitle = "#PLAYLIST:";
constexpr std::string_view kInfo = "#EXTINF:";
constexpr std::string_view kHomepage = "# Homepage:";
constexpr std::string_view kField = "#SONARO:";

// The length of an attribute like tvg-logo="..." at the start of the text; 0 when there is none.
std::size_t AttributeLength(std::string_view text) {
  const std::size_t quote = text.find("=\"");
  if (quote == std::string_view::npos || quote == 0) return 0;
  if (text.substr(0, quote).find_first_of(" ,\"") != std::string_view::npos) return 0;
  const std::size_t end = text.find('"', quote + 2);
  return end == std::string_view::npos ? 0 : end + 1;
}

// The name out of what follows "#EXTINF:": the duration, attributes, and the name, with a comma before it or,
// as some programs write, a blank.
std::string_view NameIn(std::string_view info) {
  const std::size_t duration = info.find_first_not_of("-.0123456789");
  if (duration == std::string_view::npos) return {};
  info.remove_prefix(duration);
  while (info.starts_with(' ')) {
    info.remove_prefix(1);
    const std::size_t attribute = AttributeLength(info);
    if (attribute == 0 && !info.starts_with(' ')) break;
    info.remove_prefix(attribute);
  }
  if (info.starts_with(',')) info.remove_prefix(1);
  return TrimBlanks(info);
}

class M3uReader {
 public:
  explicit M3uReader(Playlist& playlist) : playlist_(playlist) {}

  void ReadLine(std::string_view line) {
    if (line.empty()) return;
    if (StartsWithIgnoringCase(line, kInfo)) {
      Finish();
      Entry().station.name = NameIn(line.substr(kInfo.size()));
    } else if (StartsWithIgnoringCase(line, kHomepage)) {
      homepage_ = TrimBlanks(line.substr(kHomepage.size()));
    } else if (line.starts_with(kField)) {
      const auto field = SplitAtMost(line.substr(kField.size()), '=', 2);
      if (field.size() == 2) SetPlaylistField(Entry(), field[0], field[1]);
    } else if (StartsWithIgnoringCase(line, kTitle)) {
      playlist_.title = TrimBlanks(line.substr(kTitle.size()));
    } else if (!line.starts_with('#')) {
      TakeAddress(Entry(), line);
      if (entry_->station.name.empty()) entry_->station.name = TrimBlanks(line);
      Finish();
    }
  }

  // An entry of ours can do without an address.
  void Finish() {
    if (!entry_) return;
    if (entry_->station.webSite.empty()) entry_->station.webSite = homepage_;
    AddEntry(playlist_, std::move(*entry_));
    entry_.reset();
    homepage_.clear();
  }

 private:
  PlaylistEntry& Entry() {
    if (!entry_) entry_.emplace();
    return *entry_;
  }

  Playlist& playlist_;
  std::optional<PlaylistEntry> entry_;
  std::string homepage_;
};

}  // namespace

void ReadM3u(std::string_view text, Playlist& playlist) {
  M3uReader reader(playlist);
  for (const std::string_view line : SplitLines(text)) reader.ReadLine(TrimBlanks(line));
  reader.Finish();
}

std::string WriteM3u(const Playlist& playlist) {
  std::string out = std::string(kM3uHead) + "\r\n";
  if (!playlist.title.empty()) out += std::string(kTitle) + playlist.title + "\r\n";
  for (const PlaylistEntry& entry : playlist.entries) {
    out += std::string(kInfo) + "-1," + entry.station.name + "\r\n";
    ForEachPlaylistField(entry, [&out](std::string_view name, std::string_view value) {
      out += std::string(kField) + std::string(name) + "=" + std::string(value) + "\r\n";
    });
    const std::string address = AddressOf(entry);
    if (!address.empty()) out += address + "\r\n";
  }
  return out;
}

}  // namespace sonaro
