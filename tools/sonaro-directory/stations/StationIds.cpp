// Identifiers are what favourites, schedules and recent lists of users refer to, for years. A station must
// keep its identifier from one directory to the next although nothing in the sources says which it is.
//
// Two things serve that. An identifier is a hash of name and first address, so that the same station gets the
// same one even without the directory before. And with --previous the earlier identifier is looked up by name
// and any address, or by name and web site, so that it survives a move to another server.
//
// Stations take their identifiers in the order of their identities, not of their quality: the hash of a
// station can be taken, and who then moves on must not depend on last week's clicks.
#include "stations/StationIds.h"

#include <algorithm>
#include <numeric>

#include "base/Numbers.h"
#include "base/Text.h"
#include "directory/StationListFile.h"
#include "directory/StationRecord.h"
#include "stations/Addresses.h"
#include "stations/PlayLink.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

std::string Identity(std::string_view name, std::string_view address) {
  return NameKey(name) + '\n' + AddressKey(address);
}

}  // namespace

EarlierIds::EarlierIds(std::string_view stationList, const ScramblingAlphabets& alphabets) {
  constexpr std::size_t kColumns = StationRecord::kFieldCount + 1;
  const std::vector<std::string_view> lines = SplitLines(stationList);
  StationLine station;
  // Whoever builds the table lets the last line of an identifier win, so the others must not count here
  // either.
  std::unordered_map<std::int32_t, std::string_view> lastLines;  // of several with one identifier
  for (const std::string_view line : lines) {
    if (ParseStationLine(line, station)) lastLines[station.id] = line;
  }
  for (const std::string_view line : lines) {
    const std::vector<std::string_view> columns = SplitAtMost(line, '\t', kColumns);
    if (columns.size() < kColumns || !ParseStationLine(line, station)) continue;
    const std::int32_t id = station.id;
    // Compared by address: the texts of two lines can be equal.
    if (lastLines[id].data() != line.data()) continue;
    ids_.insert(id);
    const auto plain = [&](StationField field) {
      std::string text(columns[static_cast<std::size_t>(field)]);
      return UnscrambleText(text, alphabets);
    };
    const std::string_view name = columns[static_cast<std::size_t>(StationField::Name)];
    for (const StationField field : {StationField::LinkOne, StationField::LinkTwo, StationField::LinkThree,
                                     StationField::AlternateLink}) {
      const std::string address = PlayLink::FromText(plain(field)).address;
      if (!address.empty()) byNameAndAddress_.emplace(Identity(name, address), id);
    }
    const std::string webSite = plain(StationField::WebSite);
    if (!webSite.empty()) byNameAndWebSite_.emplace(Identity(name, webSite), id);
  }
}

// By address before web site: several stations of one network share a web site more often than an address.
std::int32_t EarlierIds::Find(const SourceStation& station) const {
  for (const std::string& address : station.addresses) {
    const auto found = byNameAndAddress_.find(Identity(station.name, address));
    if (found != byNameAndAddress_.end()) return found->second;
  }
  const auto found = byNameAndWebSite_.find(Identity(station.name, station.webSite));
  return found != byNameAndWebSite_.end() ? found->second : 0;
}

void AssignIds(std::vector<DirectoryStation>& stations, const EarlierIds& earlier) {
  std::vector<std::string> identities;
  identities.reserve(stations.size());
  for (const DirectoryStation& station : stations) {
    identities.push_back(Identity(station.source.name, station.source.firstAddress));
  }
  std::vector<std::size_t> order(stations.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(),
            [&](std::size_t a, std::size_t b) { return identities[a] < identities[b]; });

  std::unordered_set<std::int32_t> taken;
  for (const std::size_t index : order) {
    const std::int32_t id = earlier.Find(stations[index].source);
    // Two stations may match one earlier station; the second of them is treated as new.
    if (id != 0 && taken.insert(id).second) stations[index].id = id;
  }
  for (const std::size_t index : order) {
    if (stations[index].id != 0) continue;
    stations[index].id = FirstFreeId(IdNumber(identities[index]), [&](std::int32_t id) {
      // Not even an identifier that is free now: a favourite of a station that went would play a stranger.
      return taken.count(id) == 0 && !earlier.Has(id);
    });
    stations[index].isNew = true;
    taken.insert(stations[index].id);
  }
}

}  // namespace sonaro
