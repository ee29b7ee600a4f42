// Lists overlap, and one list may hold a station several times. Two entries are the same station when their
// names have the same key and they share an address. The name alone is not enough ("Radio One" exists
// everywhere), nor is the address: one server can carry several programmes that are told apart by name only.
//
// One pass with a hash map of "name, address" keys. The first entry wins each field; a later one fills what
// is empty and adds its addresses. Two entries that only a third one connects stay separate when the third
// comes last: it is joined with the first that it matches.
#include "stations/BuildDirectory.h"

#include <algorithm>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

#include "base/Text.h"
#include "stations/Addresses.h"
#include "text/CleanText.h"

namespace sonaro {
namespace {

void FillEmpty(std::string& field, std::string& other) {
  if (field.empty()) field = std::move(other);
}

template <typename Value>
void KeepHigher(std::optional<Value>& value, const std::optional<Value>& other) {
  if (other && (!value || *value < *other)) value = other;
}

void JoinInto(SourceStation& station, SourceStation& other) {
  for (std::string& address : other.addresses) {
    if (std::find(station.addresses.begin(), station.addresses.end(), address) == station.addresses.end()) {
      station.addresses.push_back(std::move(address));
    }
  }
  station.addresses = BestFirst(std::move(station.addresses));
  // Together: the code of one entry with the country of another could contradict each other.
  if (station.countryCode.empty() && station.country.empty()) {
    station.countryCode = std::move(other.countryCode);
    station.country = std::move(other.country);
  }
  FillEmpty(station.region, other.region);
  FillEmpty(station.webSite, other.webSite);
  FillEmpty(station.language, other.language);
  FillEmpty(station.slogan, other.slogan);
  FillEmpty(station.codec, other.codec);
  if (station.bitRate == 0) station.bitRate = other.bitRate;
  if (station.tags.empty()) station.tags = std::move(other.tags);
  KeepHigher(station.votes, other.votes);
  KeepHigher(station.clicks, other.clicks);
  KeepHigher(station.answered, other.answered);
}

}  // namespace

std::size_t JoinSameStations(std::vector<SourceStation>& stations) {
  std::unordered_map<std::string, std::size_t> known;  // name and address -> index
  std::vector<SourceStation> joined;
  joined.reserve(stations.size());
  for (SourceStation& station : stations) {
    std::vector<std::string> keys;
    const std::string name = NameKey(station.name);
    for (const std::string& address : station.addresses) keys.push_back(name + '\n' + AddressKey(address));
    std::size_t index = joined.size();
    for (const std::string& key : keys) {
      if (const auto found = known.find(key); found != known.end()) {
        index = found->second;
        break;
      }
    }
    if (index == joined.size()) {
      joined.push_back(std::move(station));
    } else {
      JoinInto(joined[index], station);
    }
    // The addresses that the entry brought lead to the station from now on too; keys that are known keep
    // theirs.
    for (std::string& key : keys) known.emplace(std::move(key), index);
  }
  const std::size_t gone = stations.size() - joined.size();
  stations = std::move(joined);
  return gone;
}

}  // namespace sonaro
