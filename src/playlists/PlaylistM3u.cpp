// M3U: an "#EXTINF" line with the name, then the address. Fields of our own stand between the two as
// comments:
// "#SONARO:type=MP3".
#include <algorithm>
#include <optional>

#include "base/Text.h"
#include "playlists/PlaylistFields.h"

namespace sonaro {
namespace {

constexpr std::string_view kM3uHead = "#EXTM3U";
constexpr std::string_view kTitle = "#PLAYLIST:";
constexpr std::string_view kInfo = "#EXTINF:";
constexpr std::string_view kHomepage = "# Homepage:";
constexpr std::string_view kField = "#SONARO:";

// Goes through the text behind "#EXTINF:" from its start to its end, and counts what it looked at.
class InfoScanner {
 public:
  InfoScanner(std::string_view rest, std::size_t& looked) : rest_(rest), looked_(looked) {}

  std::string_view Rest() const { return rest_; }
  void SkipAllOf(std::string_view characters) { Skip(rest_.find_first_not_of(characters)); }
  void SkipToOneOf(std::string_view characters) { Skip(rest_.find_first_of(characters)); }
  bool SkipIf(std::string_view start) {
    if (!rest_.starts_with(start)) return false;
    Skip(start.size());
    return true;
  }
  // An attribute like tvg-logo="...". Without one the rest stays as it is.
  bool SkipAttribute() {
    const std::string_view before = rest_;
    SkipToOneOf(" ,\"=");
    if (rest_.size() < before.size() && SkipIf("=\"")) {
      SkipToOneOf("\"");
      if (SkipIf("\"")) return true;
    }
    rest_ = before;
    return false;
  }

 private:
  void Skip(std::size_t length) {
    const std::size_t taken = std::min(length, rest_.size());
    looked_ += taken;
    rest_.remove_prefix(taken);
  }

  std::string_view rest_;
  std::size_t& looked_;
};

class M3uReader {
 public:
  explicit M3uReader(Playlist& playlist) : playlist_(playlist) {}

  void ReadLine(std::string_view line) {
    if (line.empty()) return;
    if (StartsWithIgnoringCase(line, kInfo)) {
      Finish();
      Entry().station.name = NameInInfo(line.substr(kInfo.size()), looked_);
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
  std::size_t looked_ = 0;
};

}  // namespace

// "-1 tvg-logo="..." group-title="a, b",Name": the duration, attributes, a comma and the name. A name may
// hold commas too, so the attributes have to be passed one by one. `looked` lets a test prove that each
// character is looked at a bounded number of times.
std::string_view NameInInfo(std::string_view info, std::size_t& looked) {
  InfoScanner scanner(info, looked);
  scanner.SkipAllOf("-.0123456789");
  bool more = true;
  while (more && scanner.SkipIf(" ")) {
    scanner.SkipAllOf(" ");
    more = scanner.SkipAttribute();
  }
  scanner.SkipIf(",");
  return TrimBlanks(scanner.Rest());
}

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
