#include "playlists/PlaylistFields.h"

#include <array>
#include <utility>

#include "base/Text.h"
#include "stations/OwnLink.h"
#include "stations/PlayLink.h"

namespace sonaro {
namespace {

constexpr std::array<std::string_view, 3> kLinkNames{"link1", "link2", "link3"};
constexpr std::string_view kSite = "site";
constexpr std::string_view kType = "type";
constexpr std::string_view kNote = "note";
constexpr std::string_view kStation = "station";

std::string LinkTextOf(std::string_view address) {
  return PlayLink{PlayWay::AsxProgram, std::string(address)}.ToText();
}

bool HasSomethingToPlay(const PlaylistEntry& entry) {
  const PersonalStation& station = entry.station;
  for (const std::string& link : station.links) {
    if (!link.empty()) return true;
  }
  return !station.webSite.empty() || !entry.stationId.empty();
}

}  // namespace

void ForEachPlaylistField(const PlaylistEntry& entry,
                          const std::function<void(std::string_view, std::string_view)>& put) {
  const PersonalStation& station = entry.station;
  const std::string address = AddressOf(entry);
  for (std::size_t i = 0; i < kLinkNames.size(); ++i) {
    const std::string& link = station.links[i];
    // The plain address of the first link is what every player reads; a field repeats it only when the link
    // says more, such as another player.
    const bool toldByAddress = i == 0 && link == LinkTextOf(address);
    if (!link.empty() && !toldByAddress) put(kLinkNames[i], link);
  }
  const std::pair<std::string_view, std::string_view> others[] = {
      {kSite, station.webSite}, {kType, station.type}, {kNote, station.note}, {kStation, entry.stationId}};
  for (const auto& [name, value] : others) {
    if (!value.empty()) put(name, value);
  }
}

void SetPlaylistField(PlaylistEntry& entry, std::string_view name, std::string_view value) {
  PersonalStation& station = entry.station;
  for (std::size_t i = 0; i < kLinkNames.size(); ++i) {
    if (name == kLinkNames[i]) station.links[i] = OwnLinkText(value).value_or("");
  }
  if (name == kSite) station.webSite = value;
  if (name == kType) station.type = value;
  if (name == kNote) station.note = value;
  if (name == kStation) entry.stationId = value;
}

std::string AddressOf(const PlaylistEntry& entry) {
  return PlayLink::FromText(entry.station.links[0]).address;
}

// A link of our own field says more than the address and came first.
void TakeAddress(PlaylistEntry& entry, std::string_view address) {
  if (!entry.station.links[0].empty()) return;
  if (const auto own = OwnAddress(address)) entry.station.links[0] = LinkTextOf(*own);
}

void AddEntry(Playlist& playlist, PlaylistEntry entry) {
  entry.station = Cleaned(entry.station);
  entry.stationId = CleanField(entry.stationId, PersonalStation::kMaxName);
  if (entry.station.name.empty() || !HasSomethingToPlay(entry) ||
      playlist.entries.size() >= Playlist::kMaxEntries) {
    ++playlist.skipped;
    return;
  }
  playlist.entries.push_back(std::move(entry));
}

}  // namespace sonaro
